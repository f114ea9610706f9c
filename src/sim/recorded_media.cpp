#include "sim/recorded_media.h"

#include <algorithm>

#include "platform/text.h"

namespace pawnfield {

namespace {
constexpr double kUsualSeconds = 60;
}

void RecordedChannel::SetUrl(const std::string& path) {
  Log("url " + path);
  Url = path;
  const auto listed = deck_.Durations.find(path);
  duration_ = path.empty() ? 0 : listed == deck_.Durations.end() ? kUsualSeconds : listed->second;
  Playing = duration_ > 0;
  Paused = false;
  Position = 0;
  since_ = Now();
}

void RecordedChannel::SetPosition(double seconds) {
  Log("position " + NumberText(seconds));
  if (CurrentPosition() == Duration()) return;
  Position = seconds;
  since_ = Now();
  Paused = false;
}

void RecordedChannel::Play() {
  Log("play");
  Settle();
  Playing = !Url.empty();
  Paused = false;
}

void RecordedChannel::Stop() {
  Log("stop");
  Playing = false;
  Paused = false;
  Position = 0;
  duration_ = 0;
}

void RecordedChannel::Pause() {
  Log("pause");
  Settle();
  Paused = Playing;
}

void RecordedChannel::SetVolume(int volume) {
  Log("volume " + std::to_string(volume));
  Volume = volume;
}

double RecordedChannel::CurrentPosition() const {
  const double played = Playing && !Paused ? Now() - since_ : 0;
  return std::min(Position + played, duration_);
}

void RecordedChannel::Settle() {
  Position = CurrentPosition();
  since_ = Now();
}

void RecordedChannel::FallSilent(bool silent) {
  silent_ = silent;
  if (OnSilenceChange) OnSilenceChange();
}

void RecordedChannel::Report(PlayState state) {
  Playing = state != PlayState::Stopped;
  Paused = state == PlayState::Paused;
  if (OnPlayStateChange) OnPlayStateChange(state);
}

}  // namespace pawnfield
