// Keyboard control: digits ring in, control keys work the main buttons, letters judge, and a letter, a digit and Enter
// claim a square.
#pragma once

namespace pawnfield {

struct Show;

// One key of the console by its code. Each stage sees the key, whatever the stages before it did with it.
void ProcessKeyPress(Show& show, int keyAscii);

// True when presses are tried before the show and the key was one of a player's.
bool TriesKey(Show& show, int keyAscii);

// A keypad's number to a press of the player it is routed to; numbers that are routed to nobody do nothing.
void SelectControllerPlayer(Show& show, int group, int number);

}  // namespace pawnfield
