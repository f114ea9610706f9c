// Feeds Headers.txt to its readers: whatever it holds, what was read can be written and is read back the same.

#include <cstdint>
#include <cstdlib>

#include "media/header_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pawnfield;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  if (const auto stamp = HeaderFileStamp(bytes)) MinutesBetween(*stamp, LocalTime{});
  HeaderRecords records;
  ReadHeaderRecords(bytes, records);
  const auto writable = [](const OptionalHeader& header) {
    return (header.HeaderText + header.HeaderFont).find('"') == std::string::npos &&
           (header.HeaderForeColor + header.HeaderBackColor).find_first_of("\", ") == std::string::npos;
  };
  for (const OptionalHeader& record : records) {
    if (!writable(record)) return 0;
  }
  HeaderRecords again;
  ReadHeaderRecords(FormatHeaderFile(LocalTime{}, records), again);
  if (again != records) std::abort();
  return 0;
}
