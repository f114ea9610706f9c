// The shared per-user key, through which the program and the external keyboard program tell each other what they need:
// whether keystrokes are wanted now, and the players and their scores.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// Keypads that type for the players: SerialComm 8, and 9, which publishes players and scores as well.
bool IsKeypadMode(const Show& show);
bool PublishesPlayers(const Show& show);

// Writes a value of the shared key. A failure is told once and stops nothing; the next one is told after a success.
void WriteSharedKey(Show& show, const std::string& name, const std::string& text);
// Writes "sendkeypress", "1" while keystrokes are wanted.
void SendKeyPress(Show& show, bool on);
// The same in a ring-in game with keypads, and nothing in any other.
void SendKeyPressInRingIn(Show& show, bool on);
// The score of a player 1..3 as the value of that name, in the mode that publishes.
void PublishScore(Show& show, const std::string& name, int player);

}  // namespace pawnfield
