// Keeps the desktop's scaling from making the console larger than its monitor, and the program from a display server
// that can't tell monitors apart.
#pragma once

#include <QStringList>

namespace pawnfield {

// Lowers the toolkit's scale factor as far as the whole console needs, and never so that a pixel is less than one.
// Leaves a Wayland session whose monitors have no names for the X server beside it, unless the user has chosen. Called
// before the application object is made, because neither can be changed later.
void FitScaleToMonitor(int argc, char** argv);

// The share, at most 1, of the present scaling at which a monitor of that many device pixels holds the console.
double FittingShare(double pixelRatio, int width, int height);
// True when each of the monitors can be known again by its name.
bool NamesTell(QStringList names);

}  // namespace pawnfield
