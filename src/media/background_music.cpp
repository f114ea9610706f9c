#include "media/background_music.h"

#include "forms/main_form.h"
#include "media/media_kinds.h"
#include "media/sound_channels.h"
#include "platform/errors.h"
#include "platform/escapes.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::size_t kMostTracks = 100;
constexpr std::size_t kLongestPath = 256;

bool MusicFileIsThere(const Show& show) {
  const std::string& path = show.state.BgMusicFileName;
  return !Trim(path).empty() && show.platform.files.CanOpen(path);
}

void PlayTrack(Show& show, const std::string& path) {
  show.MusicPlayed = path;
  show.platform.media.BackgroundPlayer.SetUrl(path);
  show.platform.media.BackgroundPlayer.SetPosition(0);
}

void PlayNextOfFolder(Show& show) {
  GameState& state = show.state;
  const int count = static_cast<int>(state.MusicList.size());
  if (count == 0) return;
  state.MusicIndex = state.MusicIndex >= count ? 1 : state.MusicIndex + 1;
  PlayTrack(show, state.MusicList[static_cast<std::size_t>(state.MusicIndex - 1)]);
}

}  // namespace

bool LoadMusicList(Show& show) {
  const std::string folder = show.platform.folders.DataRoot + "\\BackgroundMusic\\";
  std::vector<std::string>& list = show.state.MusicList;
  list.clear();
  for (const std::string& name : show.platform.files.List(folder, "")) {
    if (!IsMusicTrack(name)) continue;
    if (list.size() == kMostTracks) {
      ReportError(show.platform.dialogs, SubscriptError(), "frmMain", "LoadMusicList", folder);
      break;
    }
    list.push_back(FirstLetters(folder + name, kLongestPath));
  }
  return !list.empty();
}

void DecideOnMusic(Show& show) {
  GameState& state = show.state;
  state.MusicIndex = 0;
  switch (state.BackgroundMusic) {
    case kMusicFolderMode:
      state.MusicEnabled = LoadMusicList(show);
      break;
    case kMusicFileMode:
      state.MusicEnabled = MusicFileIsThere(show);
      break;
    default:
      state.MusicEnabled = false;
  }
  if (!state.MusicEnabled) state.BackgroundMusic = 0;
}

void StartMusic(Show& show) {
  show.state.MusicStopped = false;
  if (show.state.MusicEnabled) show.frmMain.tmrBGMusic.Enabled = true;
  RestartBackground(show);
}

void BringMusicBack(Show& show) {
  show.state.MusicStopped = false;
  if (show.state.MusicEnabled) show.frmMain.tmrBGMusic.Enabled = true;
  ResumeBackground(show);
}

void EndMusic(Show& show) {
  show.frmMain.tmrBGMusic.Enabled = false;
  StopBackground(show);
}

void tmrBGMusic_Timer(Show& show) {
  if (!show.state.MusicEnabled) return;
  if (show.state.MusicWaits) {
    const MediaChannel& clip = show.platform.media.SoundClipPlayer;
    if (clip.CurrentPosition() == clip.Duration()) ResumeBackground(show);
    return;
  }
  const MediaChannel& player = show.platform.media.BackgroundPlayer;
  // Equal at the end of a track, and when nothing has been played yet.
  if (player.CurrentPosition() != player.Duration()) return;
  if (show.state.BackgroundMusic == kMusicFolderMode) PlayNextOfFolder(show);
  if (show.state.BackgroundMusic == kMusicFileMode && MusicFileIsThere(show)) {
    PlayTrack(show, show.state.BgMusicFileName);
  }
  RestartBackground(show);
}

}  // namespace pawnfield
