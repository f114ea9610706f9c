// Board play: from the moment a square is named until its piece stands and the game moves on.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// Enters CurrentPlayer at a free square of 0..5; false for a taken square or one off the board.
bool TryClaimSquare(Show& show, int r, int c);
// Claims a square for CurrentPlayer while PlacementOpen; key is the two digits.
void ClaimSquare(Show& show, int r, int c, const std::string& key);
// The flash is over, or goes no further: its squares rest as the board has them.
void EndFlash(Show& show);

void tmrFlipPlayerPiece_Timer(Show& show);
void tmrFSFlipPlayerPiece_Timer(Show& show);
void tmrAnswer_Timer(Show& show);

}  // namespace pawnfield
