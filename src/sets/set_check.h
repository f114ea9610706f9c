// The check of a trivia set before the show: what of it the room would miss or read badly. Works on any set, the
// game's or the editor's.
#pragma once

#include <vector>

#include "data/set_finding.h"
#include "data/trivia_set.h"
#include "presentation/text_fitting.h"

namespace pawnfield {

class TextMeasurer;
struct Show;

// Where a wording stands on the audience's screen, and the smallest size in points at which it should.
struct WordingRoom {
  FitLimits Limits;
  int SmallestSize = 0;
  // The font of the answers.
  Font AnswerFont;
};

WordingRoom RoomForWordings(const Show& show);

// What it finds in the first `count` questions, in their order; files are not looked at. Takes no disk, and some tenths
// of a millisecond for each question.
std::vector<SetFinding> CheckSet(const TextMeasurer& measurer, const TriviaSet& set, int count,
                                 const WordingRoom& room);

// The same of the game's set, with what its load has found about its files.
std::vector<SetFinding> CheckGameSet(const Show& show);

// The size of the smallest wording of the set, where that is smaller than the room's, or else the room's.
int SmallestSizeUsed(const TextMeasurer& measurer, const TriviaSet& set, int count, const WordingRoom& room);

}  // namespace pawnfield
