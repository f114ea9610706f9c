// Any bytes are a bundle or are refused; what is let through has plain names only and no more than it may.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "desktop/files/bundle_rules.h"
#include "platform/ports.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pawnfield;
  constexpr std::uint64_t kLimit = 1024 * 1024;
  try {
    const ZipReader zip = ZipReader::OfBytes({reinterpret_cast<const char*>(data), size});
    const BundleContents contents = LookInto(zip);
    if (contents.Media.size() + 1 != zip.Entries().size() || zip.Entries().size() > kMostBundled) std::abort();
    for (const ZipEntry& entry : zip.Entries()) {
      if (entry.Name.find_first_of("/\\:") != std::string::npos || entry.Name[0] == '.' || entry.IsLink) std::abort();
    }
    for (std::size_t i = 0; i < zip.Entries().size(); ++i) {
      std::uint64_t read = 0;
      zip.Copy(i, kLimit, [&read](std::string_view piece) {
        read += piece.size();
        if (read > kLimit) std::abort();
        return true;
      });
    }
  } catch (const RuntimeError&) {
    return 0;
  }
  return 0;
}
