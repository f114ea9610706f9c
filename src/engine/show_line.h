// The line over the board: where the show is, what is expected of whom, and what comes next. It is worked out from the
// phase of the game at each event and kept nowhere, so that an operator who reads nothing else can play a whole game.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// A part that has nothing to say is empty.
struct ShowLine {
  // The set that is loaded, and "Question 3 of 30".
  std::string Set, Count;
  // Who is meant, 0 for nobody, and what is expected of them, or what the show itself does next.
  int Player = 0;
  std::string Expected;
  // The seconds that are left to answer, "0:03"; then "TIME IS UP".
  std::string Clock;
  // "Continue in 3 s", and the beginning of the next question: "Next: What is ...".
  std::string Continue, Next;
};

ShowLine LineOf(const Show& show);
// As the operator says and types it: the letter of the column and the digit of the row, both counted from 0.
std::string SquareText(int row, int column);

// Whether a text of the status line still holds; one of another kind than a game's does.
bool StatusHolds(const Show& show, const std::string& text);
// Brings the line on the console in step with the show; called after each event.
void WriteShowLine(Show& show);
void tmrShowLine_Timer(Show& show);

}  // namespace pawnfield
