// One player over libmpv: its own handle, opened and warm from the start. No call waits for the player.
#pragma once

#include <mpv/client.h>

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>
#include <initializer_list>
#include <optional>
#include <utility>

#include "platform/ports.h"

namespace pawnfield {

class MpvChannel : public QObject, public MediaChannel {
 public:
  MpvChannel();
  ~MpvChannel() override;
  MpvChannel(const MpvChannel&) = delete;
  MpvChannel& operator=(const MpvChannel&) = delete;

  void SetUrl(const std::string& path) override;
  void SetPosition(double seconds) override;
  void Play() override;
  void Stop() override;
  void Pause() override;
  void SetVolume(int volume) override;
  double CurrentPosition() const override;
  double Duration() const override;
  bool IsSilent() const override { return output_ == "null"; }

  // Goes to the moment and stays paused when it is paused.
  void SeekTo(double seconds);
  // True from the first sound to the end of the file, a pause included.
  bool IsPlaying() const { return state_ == State::Running; }
  bool IsPaused() const { return paused_; }
  // How many files have been played to their end, and how many could not be played.
  int Ended() const { return ended_; }
  int Failed() const { return failed_; }
  // The driver that the sound goes to, as the player names it: "null" while there is no device.
  QByteArray Output() const { return output_; }

 protected:
  using Option = std::pair<const char*, const char*>;
  // For players that are opened with other options.
  explicit MpvChannel(std::initializer_list<Option> options);
  mpv_handle* Handle() const { return player_; }
  // Closes the player; the object does nothing from then on.
  void Close();
  // The file has ended, has been stopped or has turned out to be none.
  virtual void FileGone() {}
  // A property that a derived player observes.
  virtual void PropertyChanged(const mpv_event_property&) {}

 private:
  enum class State { Idle, Loading, Running };
  void Drain();
  void HandleProperty(const mpv_event_property& property);
  void HandleRestart();
  void HandleEnd(const mpv_event_end_file& end);
  void BecomeIdle(double position, double duration);
  void Command(std::initializer_list<const char*> words, std::uint64_t reply = 0);
  void SetPaused(bool paused);
  void NotifyState(PlayState state);
  void LookForDevice();
  void Load(const std::optional<QString>& native, std::uint64_t load);

  mpv_handle* player_ = nullptr;
  State state_ = State::Idle;
  // As the program spells it.
  std::string file_;
  // The file that counts: the number of its load command, and its entry of the player's list once that is known.
  // Events of earlier ones are late.
  std::uint64_t load_ = 0;
  std::int64_t wanted_ = 0;
  std::int64_t entry_ = 0;
  std::optional<double> pendingSeek_;
  bool paused_ = false;
  double position_ = 0;
  double duration_ = 0;
  std::optional<PlayState> notified_;
  QByteArray output_;
  QTimer deviceWatch_;
  // Finds the files, one after another.
  QThreadPool finder_;
  int ended_ = 0;
  int failed_ = 0;
};

// The player's scale is cubic: the console's 0..100 as it is heard.
double CubicVolume(int volume);

}  // namespace pawnfield
