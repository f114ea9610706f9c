#include "media/sound_channels.h"

#include <utility>

#include "forms/main_form.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// The position comes first, so that a channel that is given the file it has starts it anew.
void Play(MediaChannel& channel, const std::string& path) {
  channel.SetPosition(0);
  channel.SetUrl(path);
}

// Every player but the music's; a film that ends so leaves the screens.
void btnStopSounds_Click(Show& show) {
  EndQuestionClip(show);
  StopEvent(show);
  StopKeyPress(show);
  show.platform.media.CorrectIncorrectPlayer.Stop();
  show.platform.media.MediaPlayer1.Stop();
  show.frmMain.lblStatusBar.Caption = "Sounds stopped, all but the music";
}

void optSoundBank_Click(Show& show, std::size_t index) { show.state.SoundSet = static_cast<int>(index) + 1; }

}  // namespace

void PlayKeyPress(Show& show, const std::string& path) {
  show.CuePlayed = path;
  Play(show.platform.media.KeyPressPlayer, path);
}

void PlayEvent(Show& show, const std::string& path) { Play(show.platform.media.EventPlayer, path); }

void PlaySoundClip(Show& show, const std::string& path) { Play(show.platform.media.SoundClipPlayer, path); }

void PlayCorrectIncorrect(Show& show, const std::string& path) {
  Play(show.platform.media.CorrectIncorrectPlayer, path);
}

void StopKeyPress(Show& show) { show.platform.media.KeyPressPlayer.Stop(); }

void StopEvent(Show& show) { show.platform.media.EventPlayer.Stop(); }

void StopSoundClip(Show& show) { show.platform.media.SoundClipPlayer.Stop(); }

void RestartBackground(Show& show) { show.platform.media.BackgroundPlayer.SetPosition(0); }

void StopBackground(Show& show) {
  show.state.MusicWaits = false;
  show.platform.media.BackgroundPlayer.Stop();
}

void PauseBackground(Show& show) { show.platform.media.BackgroundPlayer.Pause(); }

void PlayQuestionClip(Show& show, const std::string& path) {
  if (show.state.MusicEnabled) {
    PauseBackground(show);
    show.state.MusicWaits = true;
  }
  PlaySoundClip(show, path);
}

void EndQuestionClip(Show& show) {
  StopSoundClip(show);
  ResumeBackground(show);
}

void ResumeBackground(Show& show) {
  if (!std::exchange(show.state.MusicWaits, false)) return;
  MediaChannel& music = show.platform.media.BackgroundPlayer;
  // What is not in the middle of a track has the next one begun by the music's timer.
  if (music.CurrentPosition() != music.Duration()) music.Play();
}

void PlayPawn(Show& show) {
  const std::string path = show.AppPath("\\Sound Effects\\Pawn.Wav");
  const bool afterVerdict = show.state.Nature().Trivia && !show.state.Animation;
  afterVerdict ? PlayCorrectIncorrect(show, path) : PlayEvent(show, path);
}

void LoadVolumes(Show& show) {
  const GameState& state = show.state;
  const MediaChannels& media = show.platform.media;
  media.EventPlayer.SetVolume(state.EventPlayerVolume);
  media.KeyPressPlayer.SetVolume(state.KeyPressPlayerVolume);
  media.SoundClipPlayer.SetVolume(state.SoundClipPlayerVolume);
  media.BackgroundPlayer.SetVolume(state.BackgroundPlayerVolume);
  media.CorrectIncorrectPlayer.SetVolume(state.CorrectIncorrectVolume);
}

void BindSoundChannels(Show& show) {
  MainForm& form = show.frmMain;
  form.btnPlay.OnClick = [&show] { PlayQuestionClip(show, show.frmMain.lblQuestion[0].Caption); };
  form.btnStop.OnClick = [&show] { EndQuestionClip(show); };
  form.btnStopSounds.OnClick = [&show] { btnStopSounds_Click(show); };
  for (std::size_t i = 0; i < form.optSoundBank.Size(); ++i) {
    form.optSoundBank[i].OnClick = [&show, i] { optSoundBank_Click(show, i); };
  }
}

}  // namespace pawnfield
