// What the check of a trivia set has found about one question, or about the set.
#pragma once

#include <string>

namespace pawnfield {

enum class FindingKind {
  File,            // Its picture or sound can't be shown.
  MissingLetters,  // No font of the machine has some of its letters.
  NoAnswer,
  Twice,            // An earlier question asks the same.
  SmallLetters,     // The room sees it in the smallest letters of the show, or smaller.
  BorrowedLetters,  // Its font lacks some letters, which come from another one.
};

struct SetFinding {
  // Counted from 1; 0 for the set as a whole.
  int Question = 0;
  FindingKind Kind = FindingKind::File;
  // As in "No answer".
  std::string Sentence;
  bool operator==(const SetFinding&) const = default;
};

// What the room or the host would miss in the show, as against what is only to be looked at.
constexpr bool IsGrave(FindingKind kind) { return kind == FindingKind::File || kind == FindingKind::MissingLetters; }

}  // namespace pawnfield
