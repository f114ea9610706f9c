// Choosing a set, by the file dialog or by the list of names, and what becomes of the game that was on the board.
#pragma once

namespace pawnfield {

struct Show;

void cboList_DropDown(Show& show);
void cboList_Click(Show& show);
void btnSelectGame_Click(Show& show);
// Loads the set that the program was started with, as btnSelectGame's dialog would: consoleDialog names it already.
// Nothing without one.
void OpenSetAtStart(Show& show);

// Ends what a question or a claim has under way: its timers, panels and verdict buttons.
void StopShowing(Show& show);

}  // namespace pawnfield
