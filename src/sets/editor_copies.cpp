// The copies between the game's set and the editor's.
#include <algorithm>

#include "forms/main_form.h"
#include "platform/text.h"
#include "sets/editor.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/show.h"

namespace pawnfield::editor {

namespace {

bool IsSameQuestion(const TriviaQuestion& a, const TriviaQuestion& b) {
  return Trim(a.QuestionText) == Trim(b.QuestionText) && Trim(a.AnswerText) == Trim(b.AnswerText);
}

// The game goes on behind the question that it stands at, wherever that stands now. One that is gone leaves the number.
void KeepPlace(Show& show) {
  int& place = show.state.CurrentQuestion;
  const int count = CountQuestions(show.EditSet);
  const bool started = show.state.GameLoaded && !show.frmMain.btnStart.Enabled;
  if (!started || place < 0 || place >= kSetCapacity) return;
  const TriviaQuestion& present = RecordAt(show.GameSet, place + 1);
  for (int step = 0; step < kSetCapacity; ++step) {
    for (const int moved : {place - step, place + step}) {
      if (moved < 0 || moved >= count || !IsSameQuestion(RecordAt(show.EditSet, moved + 1), present)) continue;
      // The questions that are left stay as many as they were.
      show.NumGameQuestions += moved - place;
      place = moved;
      return;
    }
  }
}

}  // namespace

void CopyGameSetToEdit(Show& show) {
  // A game that is over, or was reset, has left none of them.
  show.NumEditQuestions = CountQuestions(show.GameSet);
  const auto last = std::min(static_cast<std::size_t>(show.NumEditQuestions), show.EditSet.size() - 1);
  for (std::size_t i = 0; i <= last; ++i) show.EditSet[i] = show.GameSet[i];
}

void CopyEditSetToGame(Show& show) {
  KeepPlace(show);
  for (std::size_t i = 0; i + 1 < show.GameSet.size(); ++i) {
    const std::string size = show.GameSet[i].FontSize;
    show.GameSet[i] = show.EditSet[i];
    show.GameSet[i].FontSize = size;
  }
}

}  // namespace pawnfield::editor
