#include "media/question_pictures.h"

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
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

void FitPicture(Show& show, PixelSize size) {
  const PictureBox& frame = show.frmMain.picQuestionPicture;
  MoveTo(show.frmMain.picImageResize[0], FitPictureInFrame(size, frame.Width, frame.Height));
}

void ShowPicOnAudience(Show& show, const std::string& path, PixelSize size) {
  const PictureBox& frame = show.frmFSMain.picQuestionPicture;
  Image& image = show.frmFSMain.picImageResize[0];
  image.Picture = path;
  MoveTo(image, FitPictureOnAudience(size, frame.Width, frame.Height));
}

void RandomQuestionBackground(Show& show) {
  show.platform.random.Randomize();
  const long long number = RoundHalfEven(show.platform.random.Next() * kBackgroundCount);
  show.DrawnBackground = show.AppPath("\\Question Backgrounds\\" + std::to_string(number) + ".jpg");
  show.platform.pictures.Look(show.DrawnBackground, [&show, path = show.DrawnBackground](const PictureFacts& facts) {
    // The draw names a picture that isn't there or can't be read, or another has been drawn: the last one stays.
    if (facts.Error != 0 || path != show.DrawnBackground) return;
    show.frmMain.imgQuestionBackground.Picture = path;
  });
}

}  // namespace pawnfield
