#include "media/media_on_demand.h"

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/media_kinds.h"
#include "media/question_pictures.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kMsPerSecond = 1000;

void PlayVideo(Show& show, const std::string& path) {
  MainForm& form = show.frmMain;
  MediaChannel& player = show.platform.media.MediaPlayer1;
  form.picMODVideo.Visible = true;
  form.picMODPicture.Visible = false;
  form.picMOD.Visible = true;
  form.MediaPlayer1.URL = path;
  form.MediaPlayer1.uiMode = std::string("full");
  player.SetUrl(path);
  player.SetPosition(0);
}

void MoveTo(Image& image, const FittedPicture& place) {
  image.MoveTo(place.Left, place.Top, place.Width, place.Height);
}

void FitMODPicOnAudience(Show& show, const std::string& path) {
  const PictureBox& frame = show.frmFSMain.picMOD;
  MoveTo(show.frmFSMain.picImageResize[1],
         FitPictureOnAudience(show.platform.pictures.Size(path), frame.Width, frame.Height));
}

void ReportPictureError(Show& show, const RuntimeError& error, const std::string& path) {
  if (error.Number() == kErrorFileNotFound) {
    show.platform.dialogs.MessageBox("File not found:" + path, kAppTitle, BoxKind::Critical);
    return;
  }
  std::string text = UntrappedErrorText(error.Number(), error.what(), show.frmMain.Name(), "ShowMODPic", path);
  const std::string shared = "note of the following information:";
  text.replace(text.find(shared), shared.size(), "note of the following information.");
  show.platform.dialogs.MessageBox(text, kAppTitle, BoxKind::Critical);
}

}  // namespace

void PlayKeyMedia(Show& show, int row) {
  const std::string path = SoundEntry(show, row);
  if (Trim(path).empty() || !show.platform.files.CanOpen(path)) return;
  switch (MediaKind(path)) {
    case Medium::Sound:
      PlayKeyPress(show, path);
      break;
    case Medium::Video:
      PlayVideo(show, Trim(path));
      break;
    case Medium::Picture:
      ShowMODPic(show, path);
      show.frmMain.tmrVideoDelay.Enabled = true;
      break;
    case Medium::None:
      break;
  }
}

bool ShowMODPic(Show& show, const std::string& path) {
  MainForm& form = show.frmMain;
  // A picture that is already up gets its whole time again.
  form.tmrMODPicture.Enabled = false;
  form.tmrMODPicture.Interval = show.state.MODPictureTimer * kMsPerSecond;
  form.tmrMODPicture.Enabled = true;
  try {
    MODImageResize(show, path);
    form.picImageResize[1].Picture = path;
    form.picMODVideo.Visible = false;
    form.picMODPicture.Visible = true;
    if (show.state.DualScreen) FitMODPicOnAudience(show, path);
    form.picMOD.Visible = true;
  } catch (const RuntimeError& error) {
    ReportPictureError(show, error, path);
  }
  return true;
}

void MODImageResize(Show& show, const std::string& path) {
  const PictureBox& frame = show.frmMain.picMODPicture;
  MoveTo(show.frmMain.picImageResize[1],
         FitPictureInFrame(show.platform.pictures.Size(path), frame.Width, frame.Height));
}

void FitMedia(Show& show) {
  const MainForm& form = show.frmMain;
  if (!form.picMOD.Visible || !form.picMODPicture.Visible) return;
  try {
    FitMODPicOnAudience(show, form.picImageResize[1].Picture);
  } catch (const RuntimeError&) {
    // The file has gone since the console took it, and the board beneath is better than an empty frame.
    show.frmFSMain.picMOD.Visible = false;
  }
}

void tmrMODPicture_Timer(Show& show) {
  show.frmMain.tmrMODPicture.Enabled = false;
  show.frmMain.picMOD.Visible = false;
  show.frmMain.SetFocus();
}

void tmrVideoDelay_Timer(Show& show) { show.frmMain.tmrVideoDelay.Enabled = false; }

void MediaPlayer1_PlayStateChange(Show& show, PlayState state) {
  MainForm& form = show.frmMain;
  form.MediaPlayer1.PlayState = static_cast<int>(state);
  form.btnPlayVideo.Caption = std::string(state == PlayState::Playing ? "II" : ">");
  if (state == PlayState::Stopped) form.picMOD.Visible = false;
}

void AttachMediaOnDemandHandlers(Show& show) {
  MainForm& form = show.frmMain;
  form.tmrMODPicture.OnTimer = [&show] { tmrMODPicture_Timer(show); };
  form.tmrVideoDelay.OnTimer = [&show] { tmrVideoDelay_Timer(show); };
  show.platform.media.MediaPlayer1.OnPlayStateChange = [&show](PlayState state) {
    show.frmMain.Dispatch([&] { MediaPlayer1_PlayStateChange(show, state); }, "MediaPlayer1_PlayStateChange");
  };
}

}  // namespace pawnfield
