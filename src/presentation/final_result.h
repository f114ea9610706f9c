// The game's result on both screens: the winner's panel, and the line that the console keeps until the next start.
#pragma once

namespace pawnfield {

struct Show;

// Writes names and scores as they stand now to the winner's panel: on the console, and on the audience's screen where
// there is one.
void ShowResult(Show& show);
// What the console says of the last game, from the scores as they stand now; then kept in view, or taken out of it.
void KeepLastResult(Show& show);
void DropLastResult(Show& show);

}  // namespace pawnfield
