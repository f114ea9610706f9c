// What a bundle may hold, and what it is refused for.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "desktop/files/zip_file.h"
#include "platform/set_ports.h"

namespace pawnfield {

inline constexpr std::size_t kMostBundled = 1000;
inline constexpr std::uint64_t kLargestBundle = 2ULL * 1024 * 1024 * 1024;

// A RuntimeError, with the reason, unless the bundle is one set and its media, each by a plain name. The set's bytes
// are read; the media are not.
BundleContents LookInto(const ZipReader& zip);

}  // namespace pawnfield
