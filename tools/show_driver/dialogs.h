// Brings up a box of each kind and the dialogs for a file, a font and a colour, and saves them as the display shows
// them, with their frames.
#pragma once

#include "show_driver.h"

namespace pawnfield {

void ShowDialogs(ShowDriver& driver);

}  // namespace pawnfield
