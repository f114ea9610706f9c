// Any bytes are a table, and a table that is written is read back field by field.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "sets/table_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pawnfield;
  const Table table = ReadTable({reinterpret_cast<const char*>(data), size});
  for (const TableRow& row : table) {
    if (row.empty()) std::abort();
  }
  if (ReadTable(FormatTable(table)) != table) std::abort();
  return 0;
}
