// Time that moves only when it is told to: an observer of the timers of the forms attached to it.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/ports.h"

namespace pawnfield {

class VirtualClock : public Clock, public Observer {
 public:
  std::int64_t NowMs() const override { return now_; }
  // What the calendar says; it stands still while the clock runs.
  LocalTime Now() const override { return Calendar; }
  void Attach(Form& form) override;
  void Detach(Form& form) override;
  // What falls due meanwhile fires at the next Advance.
  void Pause(int ms) override { now_ += ms; }
  void Changed(Control& control, PropertyId id) override;

  // Fires what falls due within the next ms milliseconds, in due order; equal times in the order of starting. Timers
  // that are started on the way and fall due before the end fire too.
  void Advance(std::int64_t ms);
  // A machine that sleeps: time goes on and nothing fires. What fell due meanwhile fires once at the next Advance.
  void Sleep(std::int64_t ms) { now_ += ms; }
  // The timers that run now, in the order of starting.
  std::vector<const Timer*> Running() const;

  LocalTime Calendar{2026, 3, 1, 20, 0, 0};

 private:
  struct Entry {
    Timer* timer = nullptr;
    std::int64_t due = 0;
    std::int64_t started = 0;
  };

  void Start(Timer& timer);
  void Stop(const Timer& timer);
  Entry* NextDue(std::int64_t until);

  std::int64_t now_ = 0;
  std::int64_t starts_ = 0;
  std::vector<Entry> entries_;
};

}  // namespace pawnfield
