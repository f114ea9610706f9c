// Goes through the manual's "A newcomer's hour" on the real windows, step by step as it is written there.
#pragma once

#include <QString>

#include "show_driver.h"

namespace pawnfield {

// Takes a picture of each step, and prints for each what the program took, how often the mouse was pressed and how much
// was typed, and how long somebody who is new to it takes for that. False when a step did not work.
bool PlayNewcomersHour(ShowDriver& driver, const QString& folder);

}  // namespace pawnfield
