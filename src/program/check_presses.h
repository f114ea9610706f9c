// "Press each once": the players press their buttons in turn, before the show. Each press is told with its way and its
// wait, and one that comes twice or for the wrong player is said; nobody rings in.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// Asks player 1 first; what came before is forgotten.
void BeginPressTrial(Show& show);
// Presses ring in again. The boxes keep what came.
void EndPressTrial(Show& show);
// What is asked of whom, and what was wrong; empty before the first trial.
std::string PressTrialText(const Show& show);
// "1 ANNA" and what has come of it, for the player's box.
std::string PressBoxText(const Show& show, int player);

}  // namespace pawnfield
