// A timer that belongs to no form: fires on the clock about every Interval milliseconds while Enabled.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/ports.h"

namespace pawnfield {

class SelfTimer {
 public:
  // The handler is given the seconds since the first event after creation or Reset, and runs inside the guard.
  using Handler = std::function<void(double seconds)>;
  using GuardFunction = decltype(Form::Guard);

  SelfTimer(Clock& clock, Handler handler, GuardFunction guard);
  ~SelfTimer();
  SelfTimer(const SelfTimer&) = delete;
  SelfTimer& operator=(const SelfTimer&) = delete;

  bool Enabled() const { return enabled_; }
  // Starts the period anew, or stops.
  void SetEnabled(bool enabled);
  int Interval() const { return interval_; }
  // Starts the period anew with that length; 0 stops, a negative value is ignored.
  void SetInterval(int milliseconds);
  void Reset() { first_.reset(); }

 private:
  void Arm();
  void Fire();

  Clock& clock_;
  Handler handler_;
  Form holder_{"SelfTimer"};
  Timer timer_{holder_, "Timer"};
  bool enabled_ = true;
  int interval_ = 0;
  std::optional<std::int64_t> first_;
};

}  // namespace pawnfield
