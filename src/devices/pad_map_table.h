// The table of wired pads: which slot each pad is, as it stands in MFMap.dat.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace pawnfield {

inline constexpr int kPadSlots = 20;
// Pad identities by slot, slot 1 first; 0 is an empty slot.
using PadMap = std::array<std::int32_t, kPadSlots>;

// The file's 80 bytes and back. Slots that the bytes don't reach are empty.
PadMap ParsePadMap(const std::string& bytes);
std::string FormatPadMap(const PadMap& map);
// The first slot 1..20 of the pad, 0 when it has none.
int LookupPad(const PadMap& map, std::int32_t id);

}  // namespace pawnfield
