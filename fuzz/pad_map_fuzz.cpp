// Any bytes are a table of pads, which survives being written and read again.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "devices/pad_map_table.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pawnfield;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const PadMap map = ParsePadMap(bytes);
  const std::string written = FormatPadMap(map);
  if (written.size() != 80 || ParsePadMap(written) != map) std::abort();
  const std::size_t whole = std::min<std::size_t>(size / 4 * 4, 80);
  if (written.compare(0, whole, bytes, 0, whole) != 0) std::abort();
  for (const std::int32_t id : map) {
    if (LookupPad(map, id) < 1) std::abort();
  }
  return 0;
}
