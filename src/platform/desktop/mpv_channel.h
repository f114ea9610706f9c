// One sound channel over libmpv: its own handle, opened and warm from the start. No call waits for the player.
#pragma once

#include <mpv/client.h>

#include <QObject>
#include <QString>
#include <optional>

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
  void Stop() override;
  void Pause() override;
  void SetVolume(int volume) override;

  // For tests and the console's own use: true from the first sound to the end of the file.
  bool IsPlaying() const { return playing_; }
  // How many files have been played to their end, and how many could not be played.
  int Ended() const { return ended_; }
  int Failed() const { return failed_; }

 private:
  enum class State { Idle, Loading, Running };
  void Drain();
  void HandleEnd(const mpv_event_end_file& end);
  void Command(std::initializer_list<const char*> words);
  void SeekTo(double seconds);
  void SetPaused(bool paused);

  mpv_handle* player_ = nullptr;
  State state_ = State::Idle;
  // The entry of the play list that counts; events of earlier ones are late.
  std::int64_t entry_ = 0;
  std::optional<double> pendingSeek_;
  bool playing_ = false;
  int ended_ = 0;
  int failed_ = 0;
};

// True for a plain file that is not text: a list of other files in a text is not followed.
bool IsPlayableFile(const QString& path);
// The player's scale is cubic: the console's 0..100 as it is heard.
double CubicVolume(int volume);

}  // namespace pawnfield
