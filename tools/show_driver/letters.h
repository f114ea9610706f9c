// A set, names, prints and results in Hebrew and Greek, for looking at.
#pragma once

#include "show_driver.h"

namespace pawnfield {

// Takes pictures of the windows and prints the set and the results into the folder. False when a step did not work.
bool ShowLetters(ShowDriver& driver, const QString& folder);

}  // namespace pawnfield
