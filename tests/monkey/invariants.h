// What must hold after every action of a show, whatever was done.
#pragma once

#include <string>

#include "show/phase.h"
#include "show/show.h"
#include "show/show_record.h"

namespace pawnfield {

// 1. Outside an animation each square shows the piece that Board holds, or the empty square.
// 2. All displays of a score agree, and all of a name.
// 3. The audience's panels, squares, texts and cursor are the console's.
// 4. At most one player has a lit score box.
// 5. The current player is one of the game's, and the grid and the game type are within their ranges.
// 6. While no game is loaded and standby is up, no timer of a game runs.
// 7. Board holds owners on the grid and nothing beyond it.

// What is broken first, empty when all holds.
std::string BrokenInvariant(Show& show);

// 8. Nobody beyond the players gains a square or points. What a player had when he left stays.
// 9. After the winner nothing is judged, rung in or claimed.
// 10. The next question comes when the last one has had its skip, its verdict or its Continue, and one at a time.
// 11. A score changes by what was paid: a claimed square, the penalty or a button of the score. A step of Undo or Redo
//     changes it by what the event of that step did; second_show.h looks after these.
class LastAction {
 public:
  // Remembers the show as it is before the action.
  void Before(Show& show);
  // What the action broke, empty when all holds.
  std::string Broken(Show& show) const;

 private:
  std::string Owners(const Show& show) const;
  std::string AfterTheEnd(const Show& show) const;
  std::string Questions(const Show& show) const;
  std::string Payments(Show& show) const;

  bool Stepped(const Show& show) const;

  std::size_t historyBefore_ = 0;
  GameState before_;
  GamePhase phaseBefore_;
  PerPlayer<double> scoresBefore_;
};

}  // namespace pawnfield
