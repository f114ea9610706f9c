#include "devices/pad_map_table.h"

#include <algorithm>

#include "devices/packing.h"

namespace pawnfield {

PadMap ParsePadMap(const std::string& bytes) {
  PadMap map{};
  std::size_t pos = 1;
  for (std::int32_t& id : map) id = GetLong(bytes, pos, ByteOrder::Machine);
  return map;
}

std::string FormatPadMap(const PadMap& map) {
  std::string bytes;
  for (const std::int32_t id : map) bytes += PackLong(id, ByteOrder::Machine);
  return bytes;
}

int LookupPad(const PadMap& map, std::int32_t id) {
  const auto found = std::find(map.begin(), map.end(), id);
  return found == map.end() ? 0 : static_cast<int>(found - map.begin()) + 1;
}

}  // namespace pawnfield
