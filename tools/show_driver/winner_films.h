// Films the audience's screen from the claim that ends a game until standby, for winners, ties, bonus and long names.
#pragma once

#include "show_driver.h"

namespace pawnfield {

// Saves winner-NAME.mp4 of each end in the folder, as the display showed it. False when a game did not end so.
bool FilmWinners(ShowDriver& driver, const QString& folder);

}  // namespace pawnfield
