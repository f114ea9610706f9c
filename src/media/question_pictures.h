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

// Places the question's picture, of that size, in the console's frame.
void FitPicture(Show& show, PixelSize size);
// Puts the question's picture on the audience's panel.
void ShowPicOnAudience(Show& show, const std::string& path, PixelSize size);
// Draws a background by chance; it stands behind the question as soon as it has been read.
void RandomQuestionBackground(Show& show);

}  // namespace pawnfield
