// Plays a game of each type through all its phases, at each size that the console is made for.
#pragma once

#include "show_driver.h"

namespace pawnfield {

// Takes a pair of pictures of each phase. False when a step did not work, or a window did not take a size.
bool ShowPhases(ShowDriver& driver);

}  // namespace pawnfield
