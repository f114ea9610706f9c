// Turn order: how focus passes between the players and how the chosen one is shown.
#pragma once

namespace pawnfield {

struct Show;

// Passes focus on, from the lamps and not from CurrentPlayer; nothing when no lamp is on.
void AdvanceToNextPlayer(Show& show);
// Makes player n the one with the turn: lamps, score box, corner piece, colour of the typed command, CurrentPlayer.
void GiveTurnTo(Show& show, int player);
void SetBuzzerStates(Show& show, bool enabled);
// The cursor of both screens follows CurrentPlayer.
void ChangeCursor(Show& show);

void btnNextPlayer_Click(Show& show);

}  // namespace pawnfield
