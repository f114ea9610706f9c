#include "media/sound_panel.h"

#include <array>
#include <cmath>
#include <utility>

#include "forms/main_form.h"
#include "forms/volume_slider.h"
#include "media/background_music.h"
#include "media/media_kinds.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "platform/attach.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::size_t kMusic = 3;
constexpr int kLetters = 26;

struct Level {
  MediaChannel& Channel;
  int& Volume;
};

std::array<Level, 5> Levels(Show& show) {
  GameState& state = show.state;
  const MediaChannels& media = show.platform.media;
  return {{{media.EventPlayer, state.EventPlayerVolume},
           {media.KeyPressPlayer, state.KeyPressPlayerVolume},
           {media.SoundClipPlayer, state.SoundClipPlayerVolume},
           {media.BackgroundPlayer, state.BackgroundPlayerVolume},
           {media.CorrectIncorrectPlayer, state.CorrectIncorrectVolume}}};
}

// Seconds that a player has to go; 0 for one that is at rest.
double SecondsLeft(const MediaChannel& channel) {
  const double left = channel.Duration() - channel.CurrentPosition();
  return left > 0 ? left : 0;
}

void TakeVolume(Show& show, std::size_t index, int percent) {
  const Level level = Levels(show)[index];
  level.Volume = percent;
  if (index == kMusic) show.state.MusicMuted = false;
  level.Channel.SetVolume(AudibleVolume(percent));
}

// Off and on again at the volume it had; music that was stopped begins its track anew.
void btnMute_Click(Show& show) {
  GameState& state = show.state;
  if (std::exchange(state.MusicStopped, false)) {
    state.MusicMuted = false;
    show.frmMain.tmrBGMusic.Enabled = state.MusicEnabled;
  } else {
    state.MusicMuted = !state.MusicMuted;
  }
  show.platform.media.BackgroundPlayer.SetVolume(state.MusicMuted ? 0 : AudibleVolume(state.BackgroundPlayerVolume));
}

void btnStopAll_Click(Show& show) {
  show.frmMain.btnStopSounds.Click();
  show.frmMain.tmrBGMusic.Enabled = false;
  StopBackground(show);
  show.state.MusicStopped = show.state.MusicEnabled;
  show.frmMain.lblStatusBar.Caption = "All sounds stopped, and the music";
}

const char* KindText(Medium kind) {
  switch (kind) {
    case Medium::Picture:
      return "picture";
    case Medium::Sound:
      return "sound";
    case Medium::Video:
      return "film";
    case Medium::None:
      break;
  }
  return "";
}

// What the letter's sound or film has to go; empty for what doesn't play.
std::string LeftOf(const Show& show, const std::string& path, Medium kind) {
  const MediaChannels& media = show.platform.media;
  const bool film = kind == Medium::Video && show.frmMain.picMOD.Visible && show.frmMain.MediaPlayer1.URL == Trim(path);
  const bool sound = kind == Medium::Sound && show.CuePlayed == path;
  if (!film && !sound) return "";
  const double left = SecondsLeft(film ? media.MediaPlayer1 : media.KeyPressPlayer);
  return left > 0 ? TimeText(left) : "";
}

void MeasureOnce(Show& show, const std::string& path, Medium kind) {
  if (kind == Medium::Picture || kind == Medium::None || !show.CueLengths.try_emplace(path, 0).second) return;
  show.platform.mediaFiles.Measure(path, [&show, path](double seconds) { show.CueLengths[path] = seconds; });
}

void ShowCues(Show& show) {
  std::vector<ListView::Row> rows;
  for (int letter = 0; letter < kLetters; ++letter) {
    const std::string path = SoundEntry(show, kSoundFirstKey + letter);
    if (Trim(path).empty()) continue;
    const Medium kind = MediaKind(path);
    MeasureOnce(show, path, kind);
    const auto length = show.CueLengths.find(path);
    const bool known = length != show.CueLengths.end() && length->second > 0;
    rows.push_back({std::string(1, static_cast<char>('A' + letter)), ExtractFileName(path), KindText(kind),
                    known ? TimeText(length->second) : "", LeftOf(show, path, kind)});
  }
  show.frmMain.lstCues.ListItems = rows;
}

std::string MuteCaption(const GameState& state) {
  if (state.MusicStopped) return "Play";
  return state.MusicMuted ? "Unmute" : "Mute";
}

}  // namespace

std::string TimeText(double seconds) {
  const int whole = seconds > 0 ? static_cast<int>(std::ceil(seconds)) : 0;
  const std::string rest = std::to_string(whole % 60);
  return std::to_string(whole / 60) + ":" + (rest.size() < 2 ? "0" : "") + rest;
}

std::string NowPlaying(const Show& show) {
  const MediaChannels& media = show.platform.media;
  const MainForm& form = show.frmMain;
  const bool film = form.picMOD.Visible && !form.MediaPlayer1.URL->empty();
  const std::pair<const MediaChannel&, std::string> sources[] = {
      {media.MediaPlayer1, film ? form.MediaPlayer1.URL.Get() : ""},
      {media.KeyPressPlayer, show.CuePlayed},
      {media.BackgroundPlayer, show.MusicPlayed}};
  for (const auto& [channel, path] : sources) {
    const double left = SecondsLeft(channel);
    if (!path.empty() && left > 0) return "NOW: " + ExtractFileName(path) + " " + TimeText(left);
  }
  return "";
}

void ShowSoundPanel(Show& show) {
  MainForm& form = show.frmMain;
  for (std::size_t i = 0; i < form.fdrVolume.Size(); ++i) form.fdrVolume[i].Value = Levels(show)[i].Volume;
  form.fdrMusic.Value = show.state.BackgroundPlayerVolume;
  form.btnMute.Caption = MuteCaption(show.state);
  form.lblNowPlaying.Caption = NowPlaying(show);
  if (form.fraCues.Visible) ShowCues(show);
  form.tmrSoundPanel.Enabled = !form.lblNowPlaying.Caption->empty() || form.fraCues.Visible;
}

void AttachSoundPanel(Show& show) {
  MainForm& form = show.frmMain;
  OnClick(show, form.btnMute, btnMute_Click);
  OnClick(show, form.btnStopAll, btnStopAll_Click);
  form.btnCues.OnClick = [&form] { form.fraCues.Visible = !form.fraCues.Visible; };
  form.fdrMusic.OnClick = [&show] { TakeVolume(show, kMusic, show.frmMain.fdrMusic.Value); };
  for (std::size_t i = 0; i < form.fdrVolume.Size(); ++i) {
    form.fdrVolume[i].OnClick = [&show, i] { TakeVolume(show, i, show.frmMain.fdrVolume[i].Value); };
  }
  // The panel itself is written after the event, as after every other.
  form.tmrSoundPanel.OnTimer = [] {};
}

}  // namespace pawnfield
