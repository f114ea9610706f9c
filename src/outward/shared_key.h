// The shared per-user key, through which the program and the external keyboard program send each other what they need:
// whether keystrokes are wanted now, and the players and their scores.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// Keypads that type for the players: SerialComm 8, and 9, which publishes players and scores as well.
bool IsKeypadMode(const Show& show);
bool PublishesPlayers(const Show& show);

// Sets a value of the shared key. It is written when the present event is done, and only when it has changed since it
// was written last.
void WriteSharedKey(Show& show, const std::string& name, const std::string& text);
// Writes the values that wait, all at once. A failure is reported once and stops nothing: the values wait for the next
// write, and the next failure is reported after a success.
void FlushSharedKey(Show& show);
// Writes "sendkeypress", "1" while keystrokes are wanted.
void SendKeyPress(Show& show, bool on);
// The same in a ring-in game with keypads, and nothing in any other.
void SendKeyPressInRingIn(Show& show, bool on);
// The score of a player 1..3 as the value of that name, in the mode that publishes.
void PublishScore(Show& show, const std::string& name, int player);

}  // namespace pawnfield
