#include "platform/sim/recorded_media.h"

#include "platform/text.h"

namespace pawnfield {

void RecordedChannel::SetUrl(const std::string& path) {
  Log("url " + path);
  Url = path;
  Playing = !path.empty();
  Paused = false;
}

void RecordedChannel::SetPosition(double seconds) {
  Log("position " + NumberText(seconds));
  Position = seconds;
}

void RecordedChannel::Stop() {
  Log("stop");
  Playing = false;
  Paused = false;
}

void RecordedChannel::Pause() {
  Log("pause");
  Paused = Playing;
}

void RecordedChannel::SetVolume(int volume) {
  Log("volume " + std::to_string(volume));
  Volume = volume;
}

}  // namespace pawnfield
