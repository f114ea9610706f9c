#include "devices/self_timer.h"

#include <utility>

namespace pawnfield {

SelfTimer::SelfTimer(Clock& clock, Handler handler, GuardFunction guard) : clock_(clock) {
  holder_.Guard = std::move(guard);
  timer_.OnTimer = std::move(handler);
  clock_.Attach(holder_);
}

SelfTimer::~SelfTimer() { clock_.Detach(holder_); }

void SelfTimer::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Arm();
}

void SelfTimer::SetInterval(int milliseconds) {
  if (milliseconds < 0) return;
  interval_ = milliseconds;
  Arm();
}

void SelfTimer::Arm() {
  timer_.Enabled = false;
  timer_.Interval = interval_;
  timer_.Enabled = enabled_ && interval_ > 0;
}

}  // namespace pawnfield
