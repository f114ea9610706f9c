#include "platform/desktop/mpv_channel.h"

#include <QFile>
#include <QFileInfo>
#include <QMetaObject>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/desktop/native_path.h"

namespace pawnfield {

namespace {

constexpr qint64 kSniffBytes = 512;

bool HasSoundCard() {
  QFile cards("/proc/asound/cards");
  return cards.open(QIODevice::ReadOnly) && cards.readAll().contains('[');
}

void SetOptions(mpv_handle* player) {
  // Without a card the card library writes to the terminal at every play.
  const char* outputs = HasSoundCard() ? "pulse,alsa,null" : "pulse,null";
  const std::array<std::array<const char*, 2>, 17> options{{{"config", "no"},
                                                            {"idle", "yes"},
                                                            {"terminal", "no"},
                                                            {"load-scripts", "no"},
                                                            {"osc", "no"},
                                                            {"ytdl", "no"},
                                                            {"sub-auto", "no"},
                                                            {"gapless-audio", "no"},
                                                            {"audio-fallback-to-null", "yes"},
                                                            {"ao", outputs},
                                                            {"vid", "no"},
                                                            {"vo", "null"},
                                                            {"audio-display", "no"},
                                                            {"sid", "no"},
                                                            {"audio-file-auto", "no"},
                                                            {"input-default-bindings", "no"},
                                                            {"audio-client-name", "Pawnfield"}}};
  for (const auto& option : options) mpv_set_option_string(player, option[0], option[1]);
}

bool IsTextByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= 0x20 || value == '\t' || value == '\r' || value == '\n';
}

}  // namespace

double CubicVolume(int volume) { return 100 * std::cbrt(std::clamp(volume, 0, 100) / 100.0); }

bool IsPlayableFile(const QString& path) {
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return false;
  const QByteArray start = file.read(kSniffBytes);
  return !start.isEmpty() && !std::all_of(start.begin(), start.end(), IsTextByte);
}

MpvChannel::MpvChannel() : player_(mpv_create()) {
  if (player_ == nullptr) return;
  SetOptions(player_);
  if (mpv_initialize(player_) < 0) {
    mpv_terminate_destroy(player_);
    player_ = nullptr;
    return;
  }
  // The player calls from a thread of its own; its events are read on this object's thread.
  mpv_set_wakeup_callback(
      player_,
      [](void* self) {
        auto* channel = static_cast<MpvChannel*>(self);
        QMetaObject::invokeMethod(
            channel, [channel] { channel->Drain(); }, Qt::QueuedConnection);
      },
      this);
}

MpvChannel::~MpvChannel() {
  if (player_ == nullptr) return;
  mpv_set_wakeup_callback(player_, nullptr, nullptr);
  mpv_terminate_destroy(player_);
}

void MpvChannel::Command(std::initializer_list<const char*> words) {
  std::vector<const char*> arguments(words);
  arguments.push_back(nullptr);
  mpv_command_async(player_, 0, arguments.data());
}

void MpvChannel::SetPaused(bool paused) {
  int flag = paused ? 1 : 0;
  mpv_set_property_async(player_, 0, "pause", MPV_FORMAT_FLAG, &flag);
}

void MpvChannel::SetUrl(const std::string& path) {
  if (player_ == nullptr) return;
  const auto native = NativePlainFile(path);
  if (!native || !IsPlayableFile(*native)) {
    Stop();
    return;
  }
  // What stood of the old file ends here; a seek that was asked for it must not reach the new one.
  pendingSeek_.reset();
  playing_ = false;
  state_ = State::Loading;
  Command({"loadfile", QFile::encodeName(*native).constData(), "replace"});
  SetPaused(false);
}

void MpvChannel::SetPosition(double seconds) {
  if (player_ == nullptr || state_ == State::Idle) return;
  pendingSeek_ = std::max(0.0, seconds);
  if (state_ != State::Running) return;
  // A play follows a return to 0 at once as a rule, and then nothing of the old file may be heard again.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (state_ == State::Running && pendingSeek_) SeekTo(*pendingSeek_);
      },
      Qt::QueuedConnection);
}

void MpvChannel::SeekTo(double seconds) {
  Command({"seek", QByteArray::number(seconds, 'f', 3).constData(), "absolute+exact"});
  pendingSeek_.reset();
}

void MpvChannel::Stop() {
  if (player_ == nullptr) return;
  pendingSeek_.reset();
  playing_ = false;
  state_ = State::Idle;
  Command({"stop"});
}

void MpvChannel::Pause() {
  if (player_ != nullptr) SetPaused(true);
}

void MpvChannel::SetVolume(int volume) {
  if (player_ == nullptr) return;
  double level = CubicVolume(volume);
  mpv_set_property_async(player_, 0, "volume", MPV_FORMAT_DOUBLE, &level);
}

void MpvChannel::Drain() {
  while (player_ != nullptr) {
    const mpv_event* event = mpv_wait_event(player_, 0);
    if (event->event_id == MPV_EVENT_NONE) return;
    if (event->event_id == MPV_EVENT_START_FILE) {
      entry_ = static_cast<const mpv_event_start_file*>(event->data)->playlist_entry_id;
    } else if (event->event_id == MPV_EVENT_PLAYBACK_RESTART && state_ != State::Idle) {
      state_ = State::Running;
      playing_ = true;
      if (pendingSeek_) SeekTo(*pendingSeek_);
    } else if (event->event_id == MPV_EVENT_END_FILE) {
      HandleEnd(*static_cast<const mpv_event_end_file*>(event->data));
    }
  }
}

void MpvChannel::HandleEnd(const mpv_event_end_file& end) {
  // The end of a file that was cut arrives while the next one loads, and says nothing about it.
  if (end.playlist_entry_id != entry_ || end.reason == MPV_END_FILE_REASON_STOP) return;
  if (end.reason == MPV_END_FILE_REASON_EOF) ++ended_;
  if (end.reason == MPV_END_FILE_REASON_ERROR) ++failed_;
  playing_ = false;
  state_ = State::Idle;
  pendingSeek_.reset();
}

}  // namespace pawnfield
