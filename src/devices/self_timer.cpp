#include "devices/self_timer.h"

#include <utility>

namespace pawnfield {

SelfTimer::SelfTimer(Clock& clock, Handler handler, GuardFunction guard) : clock_(clock), handler_(std::move(handler)) {
  holder_.Guard = std::move(guard);
  timer_.OnTimer = [this] { Fire(); };
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

void SelfTimer::Fire() {
  constexpr double kMsPerSecond = 1000;
  const std::int64_t now = clock_.NowMs();
  if (!first_) first_ = now;
  handler_(static_cast<double>(now - *first_) / kMsPerSecond);
}

}  // namespace pawnfield
