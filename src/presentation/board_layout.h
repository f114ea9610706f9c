// The board: 36 squares and 12 labels on each form, of which a 3x3, 4x4 or 5x5 part is placed and shown; and what the
// routines that clear it reset.
#pragma once

namespace pawnfield {

struct Flip;
struct Show;
class Timer;

// Rebuilds the console's grid with squares of w by h twips, n by n; empties the board.
void MakeGameBoard(Show& show, int w, int h, int n);
void MakeFSGameBoard(Show& show, int w, int h, int n);
// Both, with the sizes that belong to a grid of 3, 4 or 5; the audience's only while DualScreen is True.
void BuildGrid(Show& show, int gridSize);
void BuildFSGrid(Show& show, int gridSize);

void ClearBoardArray(Show& show);
void ClearBoardPictures(Show& show);
void ClearFSBoardPictures(Show& show);
void HideBoardControls(Show& show);
void HideFSBoardControls(Show& show);

// Shows and enables the options, and the buttons before a start, that the game type has.
void ShowOptionsOfType(Show& show);
// The full reset: scores, names, pictures, buttons, phase flags, options shown by game type, standby.
void ResetGameBoard(Show& show);
// Puts the turning squares at rest and lets the flash draw no more, for a board that is cleared under them.
void ForgetClaimedSquare(Show& show);
// Puts the square that turns back to its full size, if one does.
void StopTurning(Flip& flip, Timer& timer);
// Makes one square look empty on both screens; nothing outside 0..5.
void RemovePiece(Show& show, int r, int c);

}  // namespace pawnfield
