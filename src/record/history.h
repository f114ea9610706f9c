// The events of the game with their snapshots: taken down when an event is done, taken back by Undo, brought back by
// Redo and after the end of a game.
#pragma once

#include <string>

#include "show/show_record.h"

namespace pawnfield {

struct Show;

// The console is up: what the first game begins with.
void BeginHistory(Show& show);

// Around every event that enters the program. What an event changes is taken down a moment after it, so that the
// screens and the sound come first, or before the next event where that comes earlier.
void BeforeEvent(Show& show);
void AfterEvent(Show& show);
void TakeSnapshot(Show& show);

// What Undo takes back next and what Redo brings again, as in "Incorrect for BEN, -100"; empty for nothing.
std::string UndoText(const Show& show);
std::string RedoText(const Show& show);
// One step back, to the game's beginning at most, and one step forward, until something new has happened.
void btnUndo_Click(Show& show);
void Redo(Show& show);

// The last game can be brought back: one has ended, was reset or has given way to another set.
bool HasLastGame(const Show& show);
// The game before this one as it stood before its end; this one becomes the last game.
void BringBackLastGame(Show& show);
// The show goes on with that game.
void TakeUpGame(Show& show, GameHistory game);

// Undo's button and its words, and the menu's lines, follow the history.
void ShowUndo(Show& show);

}  // namespace pawnfield
