// Questions out of a sheet: which column is what, and what becomes of each row.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "data/trivia_set.h"
#include "platform/set_ports.h"

namespace pawnfield {

// Counted from 0. An answer's column that is none is -1.
struct ImportColumns {
  int Question = 0;
  int Answer = 1;
  bool HasHeading = false;
  bool operator==(const ImportColumns&) const = default;
};

// The columns that a heading names, or else those that were chosen the last time, as far as the sheet has them.
ImportColumns GuessColumns(const Sheet& sheet, const std::string& remembered);
std::string ColumnsText(const ImportColumns& columns);
// What a choice of columns offers: the letter that a spreadsheet shows, with the first row's word.
std::vector<std::string> ColumnNames(const Sheet& sheet);

// What becomes of a row of the sheet.
struct ImportRow {
  // As a spreadsheet counts.
  int Row = 0;
  TriviaQuestion Question;
  // Why it is left out, for the operator; empty for one that is taken.
  std::string Problem;
};

// A row for each of the sheet that isn't blank, and for no heading. `room` questions are taken. What a set can't hold
// as a file has it is left out, and said: nothing is cut. A name of a picture or sound becomes a path by `mediumPath`.
std::vector<ImportRow> ReadQuestions(const Sheet& sheet, const ImportColumns& columns, int room,
                                     const std::function<std::string(const std::string& name)>& mediumPath);
// The set as a sheet with a heading, such that ReadQuestions gives it back. `mediumName` says how a path is written.
Sheet WriteQuestions(const TriviaSet& set, const std::function<std::string(const std::string& path)>& mediumName);

}  // namespace pawnfield
