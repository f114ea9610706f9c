#include "desktop/media/mpv_channel.h"

#include <QFile>
#include <QMetaObject>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "desktop/media/media_files.h"
#include "desktop/media/player_options.h"
#include "desktop/media/sound_devices.h"

namespace pawnfield {

namespace {

constexpr int kDeviceWatchMs = 1000;
constexpr int kFinderIdleMs = 1000;
// A file that is still playing is never at its very end.
constexpr double kBeforeEnd = 0.001;
constexpr double kUnknownDuration = -1;

enum Observed : std::uint64_t { kPosition = 1, kDuration, kPause, kOutput };

// The list entry that a load command made, 0 when it made none.
std::int64_t EntryOf(const mpv_node& result) {
  if (result.format != MPV_FORMAT_NODE_MAP) return 0;
  for (int i = 0; i < result.u.list->num; ++i) {
    if (std::strcmp(result.u.list->keys[i], "playlist_entry_id") == 0) return result.u.list->values[i].u.int64;
  }
  return 0;
}

}  // namespace

double CubicVolume(int volume) { return 100 * std::cbrt(std::clamp(volume, 0, 100) / 100.0); }

MpvChannel::MpvChannel() : MpvChannel({{"vid", "no"}, {"vo", "null"}}) {}

MpvChannel::MpvChannel(std::initializer_list<Option> options) : player_(mpv_create()) {
  if (player_ == nullptr) return;
  SetPlayerOptions(player_);
  mpv_set_option_string(player_, "ao", SoundOutputs().constData());
  for (const auto& [name, value] : options) mpv_set_option_string(player_, name, value);
  if (mpv_initialize(player_) < 0) {
    Close();
    return;
  }
  mpv_observe_property(player_, kPosition, "time-pos", MPV_FORMAT_DOUBLE);
  mpv_observe_property(player_, kDuration, "duration", MPV_FORMAT_DOUBLE);
  mpv_observe_property(player_, kPause, "pause", MPV_FORMAT_FLAG);
  mpv_observe_property(player_, kOutput, "current-ao", MPV_FORMAT_STRING);
  // The player calls from a thread of its own; its events are read on this object's thread.
  mpv_set_wakeup_callback(
      player_,
      [](void* self) {
        auto* channel = static_cast<MpvChannel*>(self);
        QMetaObject::invokeMethod(
            channel, [channel] { channel->Drain(); }, Qt::QueuedConnection);
      },
      this);
  finder_.setMaxThreadCount(1);
  finder_.setExpiryTimeout(kFinderIdleMs);
  deviceWatch_.setInterval(kDeviceWatchMs);
  QObject::connect(&deviceWatch_, &QTimer::timeout, this, [this] { LookForDevice(); });
}

MpvChannel::~MpvChannel() {
  finder_.waitForDone();
  Close();
}

void MpvChannel::Close() {
  if (player_ == nullptr) return;
  mpv_set_wakeup_callback(player_, nullptr, nullptr);
  mpv_terminate_destroy(std::exchange(player_, nullptr));
}

void MpvChannel::Command(std::initializer_list<const char*> words, std::uint64_t reply) {
  std::vector<const char*> arguments(words);
  arguments.push_back(nullptr);
  mpv_command_async(player_, reply, arguments.data());
}

void MpvChannel::SetPaused(bool paused) {
  paused_ = paused;
  int flag = paused ? 1 : 0;
  mpv_set_property_async(player_, 0, "pause", MPV_FORMAT_FLAG, &flag);
}

void MpvChannel::SetUrl(const std::string& path) {
  if (player_ == nullptr) return;
  // What stood of the old file ends here; a seek that was asked for it must not reach the new one.
  notified_.reset();
  pendingSeek_.reset();
  file_ = path;
  if (path.empty()) {
    Stop();
    return;
  }
  state_ = State::Loading;
  position_ = 0;
  duration_ = 0;
  wanted_ = 0;
  paused_ = false;
  // The disk may take its time to report whether the file is there.
  finder_.start([this, path, load = ++load_] {
    const std::optional<QString> native = FindPlayableFile(path);
    QMetaObject::invokeMethod(
        this, [this, native, load] { Load(native, load); }, Qt::QueuedConnection);
  });
}

void MpvChannel::Load(const std::optional<QString>& native, std::uint64_t load) {
  if (player_ == nullptr || load != load_) return;
  if (!native) {
    file_.clear();
    Stop();
    return;
  }
  Command({"loadfile", QFile::encodeName(*native).constData(), "replace"}, load);
  SetPaused(paused_);
}

void MpvChannel::SetPosition(double seconds) {
  if (player_ == nullptr || state_ == State::Idle) return;
  pendingSeek_ = std::max(0.0, seconds);
  if (state_ != State::Running) return;
  // A play follows a return to 0 at once as a rule, and then nothing of the old file may be heard again.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (state_ != State::Running || !pendingSeek_) return;
        SeekTo(*pendingSeek_);
        if (paused_) SetPaused(false);
      },
      Qt::QueuedConnection);
}

void MpvChannel::SeekTo(double seconds) {
  pendingSeek_.reset();
  if (state_ != State::Running) return;
  position_ = seconds;
  Command({"seek", QByteArray::number(seconds, 'f', 3).constData(), "absolute+exact"});
}

void MpvChannel::Play() {
  if (player_ == nullptr) return;
  if (state_ != State::Idle) {
    SetPaused(false);
  } else if (!file_.empty()) {
    SetUrl(std::string(file_));
  }
}

void MpvChannel::Stop() {
  if (player_ == nullptr) return;
  wanted_ = 0;
  ++load_;
  Command({"stop"});
  BecomeIdle(0, 0);
}

void MpvChannel::Pause() {
  if (player_ != nullptr) SetPaused(true);
}

void MpvChannel::SetVolume(int volume) {
  if (player_ == nullptr) return;
  double level = CubicVolume(volume);
  mpv_set_property_async(player_, 0, "volume", MPV_FORMAT_DOUBLE, &level);
}

double MpvChannel::Duration() const {
  if (state_ == State::Idle) return duration_;
  return state_ == State::Running && duration_ > 0 ? duration_ : kUnknownDuration;
}

double MpvChannel::CurrentPosition() const {
  if (state_ != State::Running || duration_ <= 0) return position_;
  return std::clamp(position_, 0.0, std::max(0.0, duration_ - kBeforeEnd));
}

void MpvChannel::Drain() {
  while (player_ != nullptr) {
    const mpv_event* event = mpv_wait_event(player_, 0);
    switch (event->event_id) {
      case MPV_EVENT_NONE:
        return;
      case MPV_EVENT_COMMAND_REPLY:
        // The reply comes before the file's first event.
        if (event->reply_userdata != 0 && event->reply_userdata == load_ && event->error >= 0) {
          wanted_ = EntryOf(static_cast<const mpv_event_command*>(event->data)->result);
        }
        break;
      case MPV_EVENT_START_FILE:
        entry_ = static_cast<const mpv_event_start_file*>(event->data)->playlist_entry_id;
        break;
      case MPV_EVENT_PROPERTY_CHANGE:
      case MPV_EVENT_GET_PROPERTY_REPLY:
        HandleProperty(*static_cast<const mpv_event_property*>(event->data));
        break;
      case MPV_EVENT_PLAYBACK_RESTART:
        HandleRestart();
        break;
      case MPV_EVENT_END_FILE:
        HandleEnd(*static_cast<const mpv_event_end_file*>(event->data));
        break;
      default:
        break;
    }
  }
}

void MpvChannel::HandleProperty(const mpv_event_property& property) {
  const QByteArray name = property.name;
  if (name == "current-ao") {
    const bool silent = IsSilent();
    // A player that is at rest has none, which says nothing about the machine's.
    if (property.format == MPV_FORMAT_STRING) output_ = QByteArray(*static_cast<char**>(property.data));
    if (silent != IsSilent() && OnSilenceChange) OnSilenceChange();
  } else if (name == "time-pos" || name == "duration") {
    if (property.format != MPV_FORMAT_DOUBLE) return;
    (name == "time-pos" ? position_ : duration_) = *static_cast<double*>(property.data);
  } else if (name == "pause") {
    if (property.format != MPV_FORMAT_FLAG || state_ != State::Running) return;
    NotifyState(*static_cast<int*>(property.data) != 0 ? PlayState::Paused : PlayState::Playing);
  } else {
    PropertyChanged(property);
  }
}

void MpvChannel::HandleRestart() {
  if (wanted_ == 0 || entry_ != wanted_) return;
  state_ = State::Running;
  deviceWatch_.start();
  // A file as long as the last one is no change that would be announced.
  mpv_get_property_async(player_, kDuration, "duration", MPV_FORMAT_DOUBLE);
  if (pendingSeek_ && *pendingSeek_ > 0) SeekTo(*pendingSeek_);
  pendingSeek_.reset();
  NotifyState(paused_ ? PlayState::Paused : PlayState::Playing);
}

void MpvChannel::HandleEnd(const mpv_event_end_file& end) {
  // The end of a file that was cut arrives while the next one loads, and says nothing about it.
  if (wanted_ == 0 || end.playlist_entry_id != wanted_) return;
  if (end.reason == MPV_END_FILE_REASON_STOP || end.reason == MPV_END_FILE_REASON_REDIRECT) return;
  wanted_ = 0;
  if (end.reason == MPV_END_FILE_REASON_EOF) {
    ++ended_;
    BecomeIdle(duration_, duration_);
  } else {
    ++failed_;
    BecomeIdle(0, 0);
  }
}

void MpvChannel::BecomeIdle(double position, double duration) {
  state_ = State::Idle;
  deviceWatch_.stop();
  pendingSeek_.reset();
  position_ = position;
  duration_ = duration;
  FileGone();
  NotifyState(PlayState::Stopped);
}

void MpvChannel::NotifyState(PlayState state) {
  if (notified_ == state || !OnPlayStateChange) return;
  notified_ = state;
  // Whoever has just given a file is notified afterwards, like of any other change.
  QMetaObject::invokeMethod(
      this,
      [this, state, load = load_] {
        if (load == load_ && OnPlayStateChange) OnPlayStateChange(state);
      },
      Qt::QueuedConnection);
}

void MpvChannel::LookForDevice() {
  // The player itself goes on in silence when its device is gone, and never looks for it again.
  if (player_ == nullptr || output_ != "null" || !HasSoundDevice()) return;
  QByteArray outputs = SoundOutputs();
  char* text = outputs.data();
  mpv_set_property_async(player_, 0, "ao", MPV_FORMAT_STRING, &text);
  Command({"ao-reload"});
}

}  // namespace pawnfield
