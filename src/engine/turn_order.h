// Turn order: how focus passes between the players and how the chosen one is shown.
#pragma once

namespace pawnfield {

struct Show;

// Passes focus on, from the lamps and not from CurrentPlayer; nothing when no lamp is on.
void AdvanceToNextPlayer(Show& show);
// Passes focus to that player, and reports him and who had it to the companion.
void PassTurnTo(Show& show, int player);
// Nobody has the turn. The lamps stay, since the turn goes on from them.
void TakeTurn(Show& show);
// The turn at a game's start: player 1's, or nobody's where players ring in.
void GiveFirstTurn(Show& show);
// Lights the player who rang in, and shows his piece in the corner, until the square is taken.
void ShowRingIn(Show& show, int player);
// Makes player n the one with the turn: lamps, score box, corner piece, colour of the typed command, CurrentPlayer.
void GiveTurnTo(Show& show, int player);
// Says in the status line how somebody gets the turn.
void SayNobodyHasTurn(Show& show);
// Who may ring in: all players of the game, or nobody.
void SetBuzzerStates(Show& show, bool enabled);
// The cursor of both screens follows CurrentPlayer.
void ChangeCursor(Show& show);

void btnNextPlayer_Click(Show& show);

}  // namespace pawnfield
