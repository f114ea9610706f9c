#include "media/media_on_demand.h"

#include <algorithm>
#include <array>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/question_pictures.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kMsPerSecond = 1000;

template <std::size_t N>
bool IsOneOf(const std::string& extension, const std::array<const char*, N>& extensions) {
  return std::any_of(extensions.begin(), extensions.end(), [&](const char* one) { return extension == one; });
}

std::string Ending(const std::string& name, std::size_t length) {
  return name.size() < length ? name : name.substr(name.size() - length);
}

// The file is the console's, and so is the moment of it.
void ShowVideoOnAudience(Show& show) {
  const MediaPlayer& player = show.frmMain.MediaPlayer1;
  FSMainForm& audience = show.frmFSMain;
  audience.picMODVideo.Visible = true;
  audience.picImageResize[1].Visible = false;
  audience.picMOD.Visible = true;
  audience.MediaPlayer1.stretchToFit = true;
  audience.MediaPlayer1.URL = player.URL.Get();
  audience.MediaPlayer1.uiMode = std::string("none");
  // The sound comes once, from the console's player.
  audience.MediaPlayer1.Volume = 0;
  audience.MediaPlayer1.PlayState = player.PlayState;
}

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
  if (show.state.DualScreen) ShowVideoOnAudience(show);
}

void MoveTo(Image& image, const FittedPicture& place) {
  image.MoveTo(place.Left, place.Top, place.Width, place.Height);
}

void ShowMODPicOnAudience(Show& show, const std::string& path) {
  FSMainForm& audience = show.frmFSMain;
  Image& image = audience.picImageResize[1];
  image.Picture = path;
  MoveTo(image, FitPictureOnAudience(show.platform.pictures.Size(path), audience.picMOD.Width, audience.picMOD.Height));
  audience.picMOD.Visible = true;
  audience.picMODVideo.Visible = false;
  image.Visible = true;
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
  const std::string name = ExtractFileName(path);
  const std::string extension = ToLower(Ending(name, 4));
  if (IsOneOf(extension, std::array{".wav", ".wma", ".mp3"})) {
    PlayKeyPress(show, path);
  } else if (IsOneOf(extension, std::array{".avi", ".mpg", ".wmv", ".mov", ".mp4"}) || Ending(name, 5) == ".mpeg") {
    PlayVideo(show, Trim(path));
  } else if (IsOneOf(extension, std::array{".jpg", ".bmp"})) {
    show.frmMain.picMOD.Visible = true;
    ShowMODPic(show, path);
    show.frmMain.tmrVideoDelay.Enabled = true;
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
    if (show.state.DualScreen) ShowMODPicOnAudience(show, path);
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

void BringMediaInStep(Show& show) {
  const MainForm& form = show.frmMain;
  show.frmFSMain.picMOD.Visible = false;
  if (!form.picMOD.Visible) return;
  if (form.picMODVideo.Visible) {
    ShowVideoOnAudience(show);
    return;
  }
  if (!form.picMODPicture.Visible) return;
  try {
    ShowMODPicOnAudience(show, form.picImageResize[1].Picture);
  } catch (const RuntimeError&) {
    // The file has gone since the console took it, and the board beneath is better than an empty frame.
  }
}

void tmrMODPicture_Timer(Show& show) {
  show.frmMain.tmrMODPicture.Enabled = false;
  show.frmMain.picMOD.Visible = false;
  show.frmFSMain.picMOD.Visible = false;
  show.frmMain.SetFocus();
}

void tmrVideoDelay_Timer(Show& show) { show.frmMain.tmrVideoDelay.Enabled = false; }

void MediaPlayer1_PlayStateChange(Show& show, PlayState state) {
  MainForm& form = show.frmMain;
  form.MediaPlayer1.PlayState = static_cast<int>(state);
  form.btnPlayVideo.Caption = std::string(state == PlayState::Playing ? "II" : ">");
  if (state == PlayState::Stopped) form.picMOD.Visible = false;
  if (!show.state.DualScreen) return;
  show.frmFSMain.MediaPlayer1.PlayState = static_cast<int>(state);
  if (state == PlayState::Stopped) show.frmFSMain.picMOD.Visible = false;
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
