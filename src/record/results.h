// What a show came to, worked out of its record, as a table for spreadsheets and as pages to print.
#pragma once

#include <string>

#include "data/show_results.h"
#include "platform/ports.h"
#include "sets/table_text.h"
#include "show/show_record.h"

namespace pawnfield {

// What was taken back counts as never done.
ShowResults ResultsOf(const ReadRecord& record);

// A row for each question under a heading, an empty row, and the players' totals; every row has as many cells.
Table TableOf(const ShowResults& results);
PrintDocument DocumentOf(const ShowResults& results);

// "0.84 s" and "+12 ms"; empty for nothing.
std::string SecondsText(const std::optional<std::int64_t>& ms);
std::string LeadText(const std::optional<std::int64_t>& ms);
// "ANNA 300, BEN 250".
std::string ScoresText(const ResultRow& row);

}  // namespace pawnfield
