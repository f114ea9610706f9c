#include "desktop/media/media_length.h"

namespace pawnfield {

namespace {
constexpr int kLookMs = 40;
constexpr int kMostLooks = 50;
}  // namespace

MediaLength::MediaLength() : MpvChannel({{"vid", "no"}, {"vo", "null"}, {"ao", "null"}, {"mute", "yes"}}) {
  look_.setInterval(kLookMs);
  QObject::connect(&look_, &QTimer::timeout, this, [this] { LookAgain(); });
}

void MediaLength::Measure(const std::string& path, std::function<void(double seconds)> then) {
  asked_.emplace_back(path, std::move(then));
  if (!look_.isActive()) LookAtNext();
}

void MediaLength::LookAtNext() {
  looks_ = 0;
  SetUrl(asked_.front().first);
  look_.start();
}

// A file whose length isn't known by now can't be played, or doesn't say.
void MediaLength::LookAgain() {
  const double seconds = Duration();
  if (seconds <= 0 && ++looks_ < kMostLooks) return;
  const auto then = std::move(asked_.front().second);
  asked_.pop_front();
  look_.stop();
  Stop();
  if (!asked_.empty()) LookAtNext();
  then(seconds > 0 ? seconds : 0);
}

}  // namespace pawnfield
