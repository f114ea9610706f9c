// Keeps the desktop's scaling from making the console larger than its monitor.
#pragma once

namespace pawnfield {

// Lowers the toolkit's scale factor as far as the whole console needs, and never so that a pixel is less than one.
// Called before the application object is made, because the factor can't be changed later.
void FitScaleToMonitor(int argc, char** argv);

// The share, at most 1, of the present scaling at which a monitor of that many device pixels holds the console.
double FittingShare(double pixelRatio, int width, int height);

}  // namespace pawnfield
