// What must hold after every action of a show, whatever was done.
#pragma once

#include <string>

#include "show/show.h"

namespace pawnfield {

// 1. Outside an animation each square shows the piece that Board holds, or the empty square.
// 2. All displays of a score agree, and all of a name.
// 3. The audience's panels, squares, texts and cursor are the console's.
// 4. At most one player has a lit score box.
// 5. The current player, the grid and the game type are within their ranges.
// 6. While no game is loaded and standby is up, no timer of a game runs.
// 7. Board holds owners on the grid and nothing beyond it.

// What is broken first, empty when all holds.
std::string BrokenInvariant(Show& show);

}  // namespace pawnfield
