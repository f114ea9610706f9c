// What must hold after every action of a show, whatever was done.
#pragma once

#include <array>
#include <set>
#include <string>
#include <utility>

#include "show/show.h"

namespace pawnfield {

// 1. Outside an animation each square shows the piece that Board holds, or the empty square.
// 2. All displays of a score agree, and all of a name. An undo leaves the copies of a score to its next change.
// 3. The audience's panels, squares, texts and cursor are the console's.
// 4. At most one player has a lit score box.
// 5. The current player, the grid and the game type are within their ranges.
// 6. While no game is loaded and standby is up, no timer of a game runs.
// 7. Board holds owners on the grid and nothing beyond it.
class Invariants {
 public:
  // Before an action: remembers what the rules allow to lag behind afterwards.
  void Before(Show& show);
  // What is broken first, empty when all holds.
  std::string Check(Show& show);

 private:
  std::string Squares(Show& show);
  std::string Scores(Show& show);

  int lastPlayerBefore_ = 0;
  std::pair<int, int> lastSquareBefore_;
  bool flashRanBefore_ = false;
  // Squares taken back during their flash: the rest of the flash draws the piece once more.
  std::set<std::pair<int, int>> ghosts_;
  // By player: the score whose copies lag since an undo, empty when none does.
  std::array<std::string, 4> lagging_;
};

}  // namespace pawnfield
