// The record on the disk: one file for each show, to which each event adds a line beside the main thread.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "record/record_lines.h"

namespace pawnfield {

struct Show;

inline constexpr std::size_t kShowsKept = 20;

// Ties the record's failures to the console.
void AttachRecord(Show& show);
// Adds the event to the record, which begins with the first game that is started.
void AppendEvent(Show& show, const RecordedEvent& event);
// Adds the whole of the game that was taken up, as it stands.
void AppendGame(Show& show);
// The operator has ended the show: the next start doesn't offer it.
void EndShow(Show& show);

// Reads the newest record: the show, when a game of it was open at its end.
std::optional<InterruptedShow> FindInterruptedShow(Show& show);
}  // namespace pawnfield
