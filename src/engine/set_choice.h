// Choosing a set, by the file dialog or by the list of names, and what becomes of the game that was on the board.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

void cboList_DropDown(Show& show);
void cboList_Click(Show& show);
void btnSelectGame_Click(Show& show);
// Loads the set that the program was started with, as btnSelectGame's dialog would: consoleDialog names it already.
// Nothing without one.
void OpenSetAtStart(Show& show);

// A file that was dropped on the console or handed over by another start of the program: a set or a packed one is
// offered, a sheet goes to the editor.
void OpenHandedOver(Show& show, const std::string& path);

// Ends what a question or a claim has under way: its timers, panels and verdict buttons.
void StopShowing(Show& show);

}  // namespace pawnfield
