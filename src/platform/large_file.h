// The limit of what is read as a whole: sets, headers and tables are text of a few kilobytes, and reading a film that
// was chosen by mistake would hold the show for seconds.
#pragma once

#include <cstdint>
#include <string>

#include "platform/ports.h"

namespace pawnfield {

inline constexpr std::uint64_t kLargestRead = 4 * 1024 * 1024;

// What reading a larger file ends in; nothing of it has been read. Names its size and the limit.
class FileTooLarge : public RuntimeError {
 public:
  explicit FileTooLarge(std::uint64_t bytes);
};

// Throws FileTooLarge where the size is over the limit.
void CheckSize(std::uint64_t bytes);

}  // namespace pawnfield
