// Any bytes are a sheet or are refused, in a bounded time and room; what is read of one is given back by a CSV of it.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "desktop/files/sheet_reader.h"
#include "desktop/files/sheet_xml.h"
#include "platform/ports.h"

namespace {

using pawnfield::Sheet;

void Check(const Sheet& sheet) {
  if (sheet.size() > pawnfield::kMostRows) std::abort();
  for (const auto& row : sheet) {
    if (row.size() > pawnfield::kMostColumns) std::abort();
    for (const std::string& cell : row) {
      if (cell.find_first_of("\r\n") != std::string::npos) std::abort();
    }
  }
}

}  // namespace

// The first byte says which part of a spreadsheet's file the rest is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pawnfield;
  if (size == 0) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const QByteArray part(bytes.data(), static_cast<qsizetype>(bytes.size()));
  try {
    switch (data[0] % 4) {
      case 0: {
        const Sheet sheet = SheetOf(bytes);
        Check(sheet);
        break;
      }
      case 1:
        Check(ParseOpenDocument(part));
        break;
      case 2:
        Check(ParseWorksheet(part, {"shared", "strings"}));
        break;
      default:
        ParseSharedStrings(part);
        FirstSheetName(part, part);
    }
  } catch (const RuntimeError&) {
    return 0;
  }
  return 0;
}
