// The lines of a record: JSON, each with the sum of what stands before it, and the events and sets as such lines.
//
//   {"record":1,"at":"2026-03-01 20:00:00","sum":"1f2e3d4c"}          the record's first line: the version
//   {"set":{"path":...,"folder":...,"questions":[[...]]},"sum":...}    the set of the games that follow
//   {"ms":5120,"at":"20:00:05","kind":"RingIn","player":2,"what":"BEN rings in","presses":[...],"opened":...,
//    "now":{...},"sum":...}
//   {"check":[["Sound","Ready","Built-in Audio"],...],"sum":...}       what the check before the games that follow said
//   {"end":true,"sum":...}                                            the operator has ended the show
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "record/json.h"
#include "show/show_record.h"

namespace pawnfield {

inline constexpr int kRecordVersion = 1;

// The object with its sum behind its last member, and the line's end.
std::string FormatLine(const Json::Members& members);
// The object of a line without its end; nothing when the line is torn or its sum is another.
std::optional<Json> ParseLine(std::string_view line);

std::string FormatHead(const LocalTime& at);
std::string FormatSetLine(const RecordedSet& set);
std::string FormatEvent(const RecordedEvent& event);
std::string FormatCheck(const std::vector<CheckedRow>& rows);
std::string FormatEnd();

// False for a game that was made ready and never begun.
bool WasPlayed(const GameHistory& game);

// Nothing when the bytes don't begin as a record of this version does. A line whose sum is wrong is passed over.
std::optional<ReadRecord> ParseRecord(std::string_view bytes);

const char* NameOfKind(EventKind kind);

}  // namespace pawnfield
