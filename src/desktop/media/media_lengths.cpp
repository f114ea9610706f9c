#include "desktop/media/media_lengths.h"

#include <mpv/client.h>

#include <QString>
#include <cmath>

#include "desktop/media/media_files.h"

namespace pawnfield {

namespace {

constexpr double kLongestWaitSeconds = 3;
constexpr int kIdleMs = 2000;

mpv_handle* SilentPlayer() {
  mpv_handle* player = mpv_create();
  if (player == nullptr) return nullptr;
  for (const auto& [name, value] : {std::pair{"config", "no"},
                                    {"terminal", "no"},
                                    {"load-scripts", "no"},
                                    {"demuxer", "lavf"},
                                    {"stream-lavf-o", "protocol_whitelist=file"},
                                    {"demuxer-lavf-o", "protocol_whitelist=file"},
                                    {"ytdl", "no"},
                                    {"ao", "null"},
                                    {"vo", "null"},
                                    {"pause", "yes"}}) {
    mpv_set_option_string(player, name, value);
  }
  if (mpv_initialize(player) >= 0) return player;
  mpv_terminate_destroy(player);
  return nullptr;
}

// Waits for the disk.
double ReadLength(const std::string& path) {
  const auto native = FindPlayableFile(path);
  mpv_handle* player = native ? SilentPlayer() : nullptr;
  if (player == nullptr) return 0;
  const QByteArray file = native->toUtf8();
  const char* command[] = {"loadfile", file.constData(), nullptr};
  mpv_command(player, command);
  double seconds = 0;
  for (bool waits = true; waits;) {
    const mpv_event_id event = mpv_wait_event(player, kLongestWaitSeconds)->event_id;
    if (event == MPV_EVENT_FILE_LOADED) mpv_get_property(player, "duration", MPV_FORMAT_DOUBLE, &seconds);
    waits = event != MPV_EVENT_FILE_LOADED && event != MPV_EVENT_END_FILE && event != MPV_EVENT_NONE;
  }
  mpv_terminate_destroy(player);
  return std::isfinite(seconds) ? seconds : 0;
}

}  // namespace

MediaLengths::MediaLengths() {
  workers_.setMaxThreadCount(1);
  workers_.setExpiryTimeout(kIdleMs);
}

MediaLengths::~MediaLengths() {
  workers_.clear();
  workers_.waitForDone();
}

double MediaLengths::Of(const std::string& path) {
  const auto [entry, isNew] = known_.try_emplace(path, 0);
  if (isNew) {
    workers_.start([this, path] {
      const double seconds = ReadLength(path);
      QMetaObject::invokeMethod(
          this,
          [this, path, seconds] {
            known_[path] = seconds;
            emit Found();
          },
          Qt::QueuedConnection);
    });
  }
  return entry->second;
}

QString ClockText(double seconds) {
  if (seconds <= 0) return {};
  const auto whole = static_cast<int>(std::ceil(seconds));
  return QString("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QChar('0'));
}

}  // namespace pawnfield
