// A timer that belongs to no form: fires on the clock about every Interval milliseconds while Enabled.
#pragma once

#include <functional>

#include "platform/ports.h"

namespace pawnfield {

class SelfTimer {
 public:
  // Runs inside the guard.
  using Handler = std::function<void()>;
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

 private:
  void Arm();

  Clock& clock_;
  Form holder_{"SelfTimer"};
  Timer timer_{holder_, "Timer"};
  bool enabled_ = true;
  int interval_ = 0;
};

}  // namespace pawnfield
