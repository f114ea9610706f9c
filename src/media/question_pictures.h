// Question pictures fitted to their frames, and the random backgrounds behind text questions.
#pragma once

#include <string>

#include "platform/ports.h"

namespace pawnfield {

struct Show;

struct FittedPicture {
  double Left = 0, Top = 0, Width = 0, Height = 0;
};

// The console's fit: by the longer side; a result too high is squeezed.
FittedPicture FitPictureInFrame(PixelSize picture, double frameWidth, double frameHeight);
// The audience's fit: by the longer side; may overrun the frame's height.
FittedPicture FitPictureOnAudience(PixelSize picture, double frameWidth, double frameHeight);

// Shows the picture whose path stands in lblQuestion(0), on both screens. False, after a message, when it can't.
bool ShowPic(Show& show);
void FitPicture(Show& show, const std::string& path);
void FSImageResize(Show& show, const std::string& path);
void RandomQuestionBackground(Show& show);

}  // namespace pawnfield
