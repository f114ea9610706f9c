// The file of the optional headers: a time stamp and four records of seven fields, separated by commas.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "data/game_state.h"
#include "platform/ports.h"

namespace pawnfield {

inline constexpr std::size_t kHeaderCount = 4;
using HeaderRecords = std::array<OptionalHeader, kHeaderCount>;

std::string FormatHeaderFile(const LocalTime& written, const HeaderRecords& records);

// The stamp of the file's first line; nothing when that line holds none.
std::optional<LocalTime> HeaderFileStamp(const std::string& bytes);
// Reads the records behind the stamp. One whose line is missing or can't be read stays as it is.
void ReadHeaderRecords(const std::string& bytes, HeaderRecords& records);

// Whole minutes from one moment to another, negative when it lies before.
long long MinutesBetween(const LocalTime& from, const LocalTime& to);

}  // namespace pawnfield
