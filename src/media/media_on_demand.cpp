#include "media/media_on_demand.h"

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/media_kinds.h"
#include "media/question_pictures.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kMsPerSecond = 1000;

// What was on demand before leaves the screens; a picture's time ends with it.
void PlayVideo(Show& show, const std::string& path) {
  MainForm& form = show.frmMain;
  MediaChannel& player = show.platform.media.MediaPlayer1;
  form.tmrMODPicture.Enabled = false;
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

void FitMODPicOnAudience(Show& show, PixelSize size) {
  const PictureBox& frame = show.frmFSMain.picMOD;
  MoveTo(show.frmFSMain.picImageResize[1], FitPictureOnAudience(size, frame.Width, frame.Height));
}

void PlaceMODPic(Show& show, const std::string& path, PixelSize size) {
  MainForm& form = show.frmMain;
  // A film that still runs would be heard on, and its end is not the picture's.
  form.picMODVideo.Visible = false;
  form.MediaPlayer1.URL = std::string();
  show.platform.media.MediaPlayer1.Stop();
  // A picture that is already up gets its whole time again.
  form.tmrMODPicture.Enabled = false;
  form.tmrMODPicture.Interval = show.state.MODPictureTimer * kMsPerSecond;
  form.tmrMODPicture.Enabled = true;
  MODImageResize(show, size);
  form.picImageResize[1].Picture = path;
  form.picMODPicture.Visible = true;
  if (show.state.DualScreen) FitMODPicOnAudience(show, size);
  form.picMOD.Visible = true;
}

void LookAndPlay(Show& show, const std::string& path, Medium kind) {
  const int asked = kind == Medium::Video ? ++show.MediaAsked : 0;
  show.platform.mediaFiles.Look(path, [&show, path, kind, asked](bool plays) {
    if (!plays) return;
    if (kind == Medium::Sound) PlayKeyPress(show, path);
    // The operator has called for another film or picture meanwhile.
    if (kind == Medium::Video && asked == show.MediaAsked) PlayVideo(show, Trim(path));
  });
}

}  // namespace

void PlayKeyMedia(Show& show, int row) {
  const std::string path = SoundEntry(show, row);
  if (Trim(path).empty()) return;
  const Medium kind = MediaKind(path);
  if (kind == Medium::Picture) {
    ShowMODPic(show, path);
    show.frmMain.tmrVideoDelay.Enabled = true;
  } else if (kind != Medium::None) {
    LookAndPlay(show, path, kind);
  }
}

void ShowMODPic(Show& show, const std::string& path) {
  show.platform.pictures.Look(path, [&show, path, asked = ++show.MediaAsked](const PictureFacts& facts) {
    if (asked != show.MediaAsked || facts.Error == kErrorFileNotFound) return;
    if (facts.Error == 0) {
      PlaceMODPic(show, path, facts.Size);
    } else {
      show.frmMain.lblStatusBar.Caption = ExtractFileName(path) + " can't be shown";
    }
  });
}

void MODImageResize(Show& show, PixelSize size) {
  const PictureBox& frame = show.frmMain.picMODPicture;
  MoveTo(show.frmMain.picImageResize[1], FitPictureInFrame(size, frame.Width, frame.Height));
}

void FitMedia(Show& show) {
  const MainForm& form = show.frmMain;
  if (!form.picMOD.Visible || !form.picMODPicture.Visible) return;
  const std::string path = form.picImageResize[1].Picture;
  show.platform.pictures.Look(path, [&show, path](const PictureFacts& facts) {
    if (show.frmMain.picImageResize[1].Picture != path) return;
    if (facts.Error == 0) {
      FitMODPicOnAudience(show, facts.Size);
    } else {
      // The file has gone since the console took it: the board beneath is better than an empty frame, on both screens.
      show.frmMain.tmrMODPicture.Enabled = false;
      show.frmMain.picMOD.Visible = show.frmFSMain.picMOD.Visible = false;
    }
  });
}

void tmrMODPicture_Timer(Show& show) {
  show.frmMain.tmrMODPicture.Enabled = false;
  show.frmMain.picMOD.Visible = false;
}

void tmrVideoDelay_Timer(Show& show) { show.frmMain.tmrVideoDelay.Enabled = false; }

void MediaPlayer1_PlayStateChange(Show& show, PlayState state) {
  MainForm& form = show.frmMain;
  form.MediaPlayer1.PlayState = static_cast<int>(state);
  form.btnPlayVideo.Caption = std::string(state == PlayState::Playing ? "II" : ">");
  // A film that a picture has followed takes nothing down.
  if (state == PlayState::Stopped && form.picMODVideo.Visible) form.picMOD.Visible = false;
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
