#include "program/check_sounds.h"

#include <array>

#include "forms/main_form.h"
#include "forms/show_check_form.h"
#include "show/show.h"
#include "show/show_check_state.h"

namespace pawnfield {

namespace {

constexpr int kChannels = 5, kMusic = 4;

struct Channel {
  const char* Name;
  const char* Pips;
};

constexpr std::array<Channel, kChannels> kNames{{{"effects", "one pip"},
                                                 {"keys", "two pips"},
                                                 {"clips", "three pips"},
                                                 {"music", "four pips"},
                                                 {"verdicts", "five pips"}}};

MediaChannel& PlayerOf(const Show& show, int channel) {
  const MediaChannels& media = show.platform.media;
  const std::array<MediaChannel*, kChannels> players{&media.EventPlayer, &media.KeyPressPlayer, &media.SoundClipPlayer,
                                                     &media.BackgroundPlayer, &media.CorrectIncorrectPlayer};
  return *players[static_cast<std::size_t>(channel - 1)];
}

void KeepMusic(Show& show) {
  const MediaChannel& music = show.platform.media.BackgroundPlayer;
  const bool runs = music.CurrentPosition() != music.Duration() && !show.state.MusicStopped;
  show.check->MusicAt = runs ? music.CurrentPosition() : -1;
  // It would begin the next track behind the pips.
  Timer& timer = show.frmMain.tmrBGMusic;
  show.check->MusicTimer = timer.Enabled;
  timer.Enabled = false;
}

void BringMusicBack(Show& show) {
  MediaChannel& music = show.platform.media.BackgroundPlayer;
  music.Stop();
  show.frmMain.tmrBGMusic.Enabled = show.check->MusicTimer;
  if (show.check->MusicAt < 0 || show.MusicPlayed.empty()) return;
  music.SetUrl(show.MusicPlayed);
  music.SetPosition(show.check->MusicAt);
}

void Play(Show& show) {
  const int channel = show.check->Channel;
  if (channel == kMusic) KeepMusic(show);
  MediaChannel& player = PlayerOf(show, channel);
  player.SetPosition(0);
  player.SetUrl(show.AppPath("\\Sound Effects\\Check" + std::to_string(channel) + ".Wav"));
}

void End(Show& show) {
  const int channel = show.check->Channel;
  if (channel == 0) return;
  channel == kMusic ? BringMusicBack(show) : PlayerOf(show, channel).Stop();
}

}  // namespace

void BeginSounds(Show& show) {
  EndSounds(show);
  show.check->Channel = 1;
  show.frmShowCheck.tmrSounds.Restart();
  Play(show);
}

void StepSounds(Show& show) {
  int& channel = show.check->Channel;
  if (channel == 0) return;
  if (channel == kChannels) {
    EndSounds(show);
    show.check->SoundsPlayed = true;
    return;
  }
  End(show);
  ++channel;
  Play(show);
}

void EndSounds(Show& show) {
  End(show);
  show.check->Channel = 0;
  show.frmShowCheck.tmrSounds.Enabled = false;
}

std::string ChannelText(int channel) {
  const Channel& named = kNames[static_cast<std::size_t>(channel - 1)];
  return std::string(named.Name) + ", " + named.Pips;
}

std::string SilentChannels(const Show& show) {
  const GameState& state = show.state;
  const std::array<int, kChannels> volumes{state.EventPlayerVolume, state.KeyPressPlayerVolume,
                                           state.SoundClipPlayerVolume, state.BackgroundPlayerVolume,
                                           state.CorrectIncorrectVolume};
  std::string silent;
  for (std::size_t i = 0; i < kChannels; ++i) {
    const bool muted = i + 1 == kMusic && state.MusicMuted;
    if (volumes[i] == 0 || muted) silent += std::string(silent.empty() ? "" : ", ") + kNames[i].Name;
  }
  return silent;
}

}  // namespace pawnfield
