// Any bytes are interface settings with every field in its range, which survive being written and read again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "program/interface_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pawnfield;
  const InterfaceSettings read = ParseInterface(std::string(reinterpret_cast<const char*>(data), size));
  for (const int field : read.Fields) {
    if (field < 0 || field > 15) std::abort();
  }
  const InterfaceSettings again = ParseInterface(FormatInterface(read));
  if (again.Fields != read.Fields || again.ZR650Present != read.ZR650Present) std::abort();
  return 0;
}
