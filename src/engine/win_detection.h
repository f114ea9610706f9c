// The end of a game: when it is over, how the result is worded and shown, and the way back to standby.
#pragma once

namespace pawnfield {

struct Show;

enum class LineMade { No, Yes };

// "Finish Row": a line was made. "Full Board": the board is full.
bool IsGameOver(const Show& show, LineMade lineMade);
// Ends the game and shows the winner on both screens. A repeated call works through all of it again.
void GameOver(Show& show);

void tmrWinner_Timer(Show& show);
// Blinks the verdict (0) or the winner (1) for seven ticks.
void tmrAnimate_Timer(Show& show, int index);

}  // namespace pawnfield
