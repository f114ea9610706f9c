#include "media/question_pictures.h"

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr double kBackgroundCount = 50;

// The whole twips that centre a length in a frame; a longer one starts at the frame's edge.
double CentreOffset(double frame, double length) {
  return frame > length ? static_cast<double>(RoundHalfEven((frame - length) / 2)) : 0;
}

// Squares fill the frame; otherwise the longer side takes the frame's and the other one follows.
FittedPicture ScaleByLongerSide(PixelSize picture, double frameWidth, double frameHeight) {
  FittedPicture fitted{0, 0, frameWidth, frameHeight};
  if (picture.Width > picture.Height) fitted.Height = picture.Height * frameWidth / picture.Width;
  if (picture.Height > picture.Width) fitted.Width = picture.Width * frameHeight / picture.Height;
  return fitted;
}

void Centre(FittedPicture& fitted, double frameWidth, double frameHeight) {
  fitted.Left = CentreOffset(frameWidth, fitted.Width);
  fitted.Top = CentreOffset(frameHeight, fitted.Height);
}

void MoveTo(Image& image, const FittedPicture& place) {
  image.MoveTo(place.Left, place.Top, place.Width, place.Height);
}

void ReportPictureError(Show& show, const RuntimeError& error, const std::string& path) {
  std::string text = "File not found: " + path;
  if (error.Number() != kErrorFileNotFound) {
    text = UntrappedErrorText(error.Number(), error.what(), show.frmMain.Name(), "ShowPic", path);
    text.replace(0, text.find("\r\n"),
                 "An untrapped error has occurred.  Please make a note of the following information.");
  }
  show.platform.dialogs.MessageBox(text, kAppTitle, BoxKind::Critical);
}

}  // namespace

FittedPicture FitPictureInFrame(PixelSize picture, double frameWidth, double frameHeight) {
  FittedPicture fitted = ScaleByLongerSide(picture, frameWidth, frameHeight);
  if (fitted.Height > frameHeight) fitted.Height = frameHeight;
  Centre(fitted, frameWidth, frameHeight);
  return fitted;
}

FittedPicture FitPictureOnAudience(PixelSize picture, double frameWidth, double frameHeight) {
  FittedPicture fitted = ScaleByLongerSide(picture, frameWidth, frameHeight);
  Centre(fitted, frameWidth, frameHeight);
  return fitted;
}

bool ShowPic(Show& show) {
  MainForm& form = show.frmMain;
  const std::string path = form.lblQuestion[0].Caption;
  try {
    FitPicture(show, path);
    form.picImageResize[0].Picture = path;
    form.picQuestionPicture.Visible = true;
    if (show.state.DualScreen) FSImageResize(show, path);
    return true;
  } catch (const RuntimeError& error) {
    ReportPictureError(show, error, path);
    return false;
  }
}

void FitPicture(Show& show, const std::string& path) {
  const PictureBox& frame = show.frmMain.picQuestionPicture;
  MoveTo(show.frmMain.picImageResize[0],
         FitPictureInFrame(show.platform.pictures.Size(path), frame.Width, frame.Height));
}

void FSImageResize(Show& show, const std::string& path) {
  const PictureBox& frame = show.frmFSMain.picQuestionPicture;
  MoveTo(show.frmFSMain.picImageResize[0],
         FitPictureOnAudience(show.platform.pictures.Size(path), frame.Width, frame.Height));
}

void RandomQuestionBackground(Show& show) {
  show.platform.random.Randomize();
  const long long number = RoundHalfEven(show.platform.random.Next() * kBackgroundCount);
  const std::string path = show.AppPath("\\Question Backgrounds\\" + std::to_string(number) + ".jpg");
  Image& background = show.frmMain.imgQuestionBackground;
  try {
    show.platform.pictures.Size(path);
    background.Picture = path;
  } catch (const RuntimeError&) {
    // The draw names a picture that isn't there or can't be read: the last background stays.
  }
}

}  // namespace pawnfield
