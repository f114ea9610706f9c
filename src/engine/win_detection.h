// The end of a game: when it is over, how the result is worded and shown, and the way back to standby.
#pragma once

#include <cstddef>

namespace pawnfield {

struct Show;

enum class LineMade { No, Yes };

// "Finish Row": a line was made. "Full Board": the board is full.
bool IsGameOver(const Show& show, LineMade lineMade);
// Ends the game at once: music, question and the buttons of play. The winner is due, and waits for the last square.
void EndGame(Show& show);
// The winner on both screens, for 5000 ms.
void ShowWinner(Show& show);
// The last game's winner goes before its time, for the next game's sake: standby, as its timer would leave it.
void EndWinner(Show& show);
// Both EndGame and ShowWinner.
void GameOver(Show& show);
// Begins the blink of the verdict (0) or the winner (1) from its first tick.
void BlinkAnew(Show& show, std::size_t index);

void tmrWinner_Timer(Show& show);
// Blinks the verdict (0) or the winner (1) for seven ticks.
void tmrAnimate_Timer(Show& show, int index);

}  // namespace pawnfield
