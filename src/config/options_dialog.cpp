#include "config/options_dialog.h"

#include <array>
#include <string>

#include "forms/main_form.h"
#include "forms/options_form.h"
#include "media/background_music.h"
#include "media/sound_channels.h"
#include "platform/text.h"
#include "show/settings_table.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kNoMusic = 0;

// What a slider moves.
struct Volume {
  VolumeSlider& slider;
  MediaChannel& channel;
  int& variable;
};

std::array<Volume, 5> Volumes(Show& show) {
  OptionsForm& form = show.frmOptions;
  GameState& state = show.state;
  const MediaChannels& media = show.platform.media;
  return {{{form.picEvent, media.EventPlayer, state.EventPlayerVolume},
           {form.picKeyPress, media.KeyPressPlayer, state.KeyPressPlayerVolume},
           {form.picAudioClips, media.SoundClipPlayer, state.SoundClipPlayerVolume},
           {form.picBackground, media.BackgroundPlayer, state.BackgroundPlayerVolume},
           {form.picAnimation, media.CorrectIncorrectPlayer, state.CorrectIncorrectVolume}}};
}

bool MusicFileExists(const Show& show) {
  const std::string file = Trim(show.state.BgMusicFileName);
  return !file.empty() && show.platform.files.CanOpen(file);
}

void SelectItem(ComboBox& list, int index) {
  if (index < 0 || index >= static_cast<int>(list.List->size())) throw RuntimeError(380, "Invalid property value");
  list.ListIndex = index;
}

void LoadMusic(Show& show) {
  OptionsForm& form = show.frmOptions;
  GameState& state = show.state;
  if (!kMusicModes.Holds(state.BackgroundMusic)) state.BackgroundMusic = kNoMusic;
  form.optBackgroundMusic[static_cast<std::size_t>(state.BackgroundMusic)].SelectInGroup();
  if (!MusicFileExists(show)) state.BgMusicFileName.clear();
  form.lblBackgroundMusic.Caption = ExtractFileName(state.BgMusicFileName);
}

void Change(Show& show) {
  OptionsForm& form = show.frmOptions;
  if (!form.Loaded) return;
  form.btnApply.Enabled = true;
  form.Changed = true;
}

void btnRoutingDefaults_Click(Show& show) {
  OptionsForm& form = show.frmOptions;
  if (!form.Loaded) return;
  Change(show);
  for (std::size_t i = 0; i < form.cboRouting.Size(); ++i) form.cboRouting[i].ListIndex = static_cast<int>(i);
}

void btnBGMusic_Click(Show& show) {
  FileDialogRequest request;
  request.Title = "Background Music";
  request.Filter = "Music(*.mp3)|*.mp3";
  const std::string chosen = show.platform.dialogs.ChooseFile(request);
  if (chosen.empty()) return;
  show.state.BgMusicFileName = chosen;
  show.frmOptions.lblBackgroundMusic.Caption = ExtractFileName(chosen);
  Change(show);
}

void MusicOff(Show& show) {
  StopBackground(show);
  show.state.BackgroundMusic = kNoMusic;
  show.state.MusicEnabled = false;
}

void ApplySingleFile(Show& show) {
  if (Trim(show.frmOptions.lblBackgroundMusic.Caption).empty()) {
    MusicOff(show);
  } else if (MusicFileExists(show)) {
    show.state.BackgroundMusic = kMusicFileMode;
    show.state.MusicEnabled = true;
  } else {
    show.state.BackgroundMusic = kNoMusic;
    show.state.BgMusicFileName.clear();
  }
}

// The mode stays that of the folder when the folder holds no music: nothing to play is what stops it.
void ApplyMusicFolder(Show& show) {
  show.state.MusicEnabled = LoadMusicList(show);
  show.state.MusicIndex = 0;
  show.state.BackgroundMusic = kMusicFolderMode;
}

void ApplyMusic(Show& show) {
  const OptionsForm& form = show.frmOptions;
  const bool playing = show.state.MusicEnabled && show.frmMain.tmrBGMusic.Enabled;
  if (form.optBackgroundMusic[2].Value) ApplySingleFile(show);
  if (form.optBackgroundMusic[0].Value) MusicOff(show);
  if (form.optBackgroundMusic[1].Value) ApplyMusicFolder(show);
  // Music that is new waits for a game; in the room there may be nobody yet, or somebody speaks.
  show.frmMain.tmrBGMusic.Enabled = playing;
}

void Close(Show& show) {
  show.frmOptions.Visible = false;
  show.frmMain.Visible = true;
}

void TakeVolume(Volume volume, int percent) {
  volume.channel.SetVolume(AudibleVolume(percent));
  volume.variable = percent;
}

void AttachSlider(Show& show, std::size_t index) {
  VolumeSlider& slider = *show.frmOptions.Sliders()[index];
  slider.RealSlider.OnMouseDown = [&slider](MouseButton button, double x) { GrabKnob(slider, button, x); };
  slider.RealSlider.OnMouseMove = [&slider](double x) { DragKnob(slider, x); };
  slider.RealSlider.OnMouseUp = [&slider] { slider.Dragging = false; };
  slider.RealSlider.OnStep = [&show, &slider, index](int percent) {
    MoveKnobTo(slider, percent);
    TakeVolume(Volumes(show)[index], ShowPercent(slider));
  };
  slider.SlideTimer.OnTimer = [&show, &slider, index] { TakeVolume(Volumes(show)[index], SlideTick(slider)); };
}

}  // namespace

void LoadOptionsDialog(Show& show) {
  OptionsForm& form = show.frmOptions;
  for (std::size_t i = 0; i < form.cboRouting.Size(); ++i)
    SelectItem(form.cboRouting[i], show.state.Routing[i + 1] - 1);
  form.chkTSSupport.Value = show.state.TSSupport ? 1 : 0;
  for (const Volume& volume : Volumes(show)) LoadSlider(volume.slider, volume.variable);
  LoadMusic(show);
  SelectItem(form.cboMODPictureTmr, show.state.MODPictureTimer - kPictureHolds.Low);
}

void mnuFileOptions_Click(Show& show) {
  OptionsForm& form = show.frmOptions;
  LoadOptionsDialog(show);
  form.btnApply.Enabled = false;
  form.Changed = false;
  form.Loaded = true;
  show.platform.dialogs.ShowModal(form);
}

void btnApply_Click(Show& show) {
  OptionsForm& form = show.frmOptions;
  for (std::size_t i = 0; i < form.cboRouting.Size(); ++i) show.state.Routing[i + 1] = form.cboRouting[i].ListIndex + 1;
  ApplyMusic(show);
  show.state.MODPictureTimer = form.cboMODPictureTmr.ListIndex + kPictureHolds.Low;
  show.state.FullScreenGameBoard = form.chkFullScreenGameBoard.Value == 1;
  form.btnApply.Enabled = false;
}

void AttachOptionsDialogHandlers(Show& show) {
  OptionsForm& form = show.frmOptions;
  show.frmMain.mnuFileOptions.OnClick = [&show] { mnuFileOptions_Click(show); };
  const auto change = [&show] { Change(show); };
  for (std::size_t i = 0; i < form.cboRouting.Size(); ++i) form.cboRouting[i].OnClick = change;
  for (std::size_t i = 0; i < 3; ++i) form.optBackgroundMusic[i].OnClick = change;
  form.cboMODPictureTmr.OnClick = change;
  form.chkFullScreenGameBoard.OnClick = change;
  form.chkTSSupport.OnClick = [&show] { show.state.TSSupport = show.frmOptions.chkTSSupport.Value == 1; };
  form.btnRoutingDefaults.OnClick = [&show] { btnRoutingDefaults_Click(show); };
  form.btnBGMusic.OnClick = [&show] { btnBGMusic_Click(show); };
  for (std::size_t i = 0; i < form.Sliders().size(); ++i) AttachSlider(show, i);
  form.btnApply.OnClick = [&show] { btnApply_Click(show); };
  form.btnOK.OnClick = [&show] {
    btnApply_Click(show);
    Close(show);
  };
  form.btnCancel.OnClick = [&show] { Close(show); };
  form.OnUnload = [&show] { show.frmMain.Visible = true; };
}

}  // namespace pawnfield
