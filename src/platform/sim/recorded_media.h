// The five players as a record: what each was told, in one order, and what it is doing now.
#pragma once

#include <string>
#include <vector>

#include "platform/ports.h"

namespace pawnfield {

// Log lines read "<channel> url <path>", "<channel> position <seconds>", "<channel> volume <0..100>",
// "<channel> stop" and "<channel> pause".
using MediaLog = std::vector<std::string>;

class RecordedChannel : public MediaChannel {
 public:
  RecordedChannel(std::string name, MediaLog& log) : name_(std::move(name)), log_(log) {}

  void SetUrl(const std::string& path) override;
  void SetPosition(double seconds) override;
  void Stop() override;
  void Pause() override;
  void SetVolume(int volume) override;

  std::string Url;
  double Position = 0;
  int Volume = 100;
  bool Playing = false;
  bool Paused = false;

 private:
  void Log(const std::string& what) { log_.push_back(name_ + " " + what); }

  std::string name_;
  MediaLog& log_;
};

struct RecordedMedia {
  MediaChannels Channels() {
    return {EventPlayer, KeyPressPlayer, SoundClipPlayer, CorrectIncorrectPlayer, BackgroundPlayer};
  }

  MediaLog Log;
  RecordedChannel EventPlayer{"EventPlayer", Log};
  RecordedChannel KeyPressPlayer{"KeyPressPlayer", Log};
  RecordedChannel SoundClipPlayer{"SoundClipPlayer", Log};
  RecordedChannel CorrectIncorrectPlayer{"CorrectIncorrectPlayer", Log};
  RecordedChannel BackgroundPlayer{"BackgroundPlayer", Log};
};

}  // namespace pawnfield
