// The six players as a record: what each was told, in one order, and what it is doing now. Files play in virtual time.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/ports.h"

namespace pawnfield {

// Log lines read "<channel> url <path>", "<channel> position <seconds>", "<channel> volume <0..100>",
// "<channel> play", "<channel> stop" and "<channel> pause".
using MediaLog = std::vector<std::string>;

// What the players share.
struct MediaDeck {
  MediaLog Log;
  // Seconds by path; a file that isn't listed plays for a minute. 0 is a file that can't be played.
  std::map<std::string, double> Durations;
  // Null: nothing ever comes to its end.
  const Clock* Time = nullptr;
};

class RecordedChannel : public MediaChannel {
 public:
  RecordedChannel(std::string name, MediaDeck& deck) : name_(std::move(name)), deck_(deck) {}

  void SetUrl(const std::string& path) override;
  void SetPosition(double seconds) override;
  void Play() override;
  void Stop() override;
  void Pause() override;
  void SetVolume(int volume) override;
  double CurrentPosition() const override;
  double Duration() const override { return duration_; }
  bool IsSilent() const override { return silent_; }

  // The operator's hand on the player's own controls, or the file's end: notifies the program.
  void Report(PlayState state);
  // The sound device goes or comes back: notifies the program.
  void FallSilent(bool silent);

  std::string Url;
  double Position = 0;
  int Volume = 100;
  bool Playing = false;
  bool Paused = false;

 private:
  void Log(const std::string& what) { deck_.Log.push_back(name_ + " " + what); }
  double Now() const { return deck_.Time == nullptr ? 0 : static_cast<double>(deck_.Time->NowMs()) / 1000; }
  // Position becomes what has been reached, counted from now on.
  void Settle();

  std::string name_;
  MediaDeck& deck_;
  double duration_ = 0;
  double since_ = 0;
  bool silent_ = false;
};

struct RecordedMedia {
  MediaChannels Channels() {
    return {EventPlayer, KeyPressPlayer, SoundClipPlayer, CorrectIncorrectPlayer, BackgroundPlayer, MediaPlayer1};
  }

  MediaDeck Deck;
  MediaLog& Log = Deck.Log;
  RecordedChannel EventPlayer{"EventPlayer", Deck};
  RecordedChannel KeyPressPlayer{"KeyPressPlayer", Deck};
  RecordedChannel SoundClipPlayer{"SoundClipPlayer", Deck};
  RecordedChannel CorrectIncorrectPlayer{"CorrectIncorrectPlayer", Deck};
  RecordedChannel BackgroundPlayer{"BackgroundPlayer", Deck};
  RecordedChannel MediaPlayer1{"MediaPlayer1", Deck};
};

}  // namespace pawnfield
