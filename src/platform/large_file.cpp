#include "platform/large_file.h"

#include <cmath>

#include "platform/text.h"

namespace pawnfield {

namespace {

// Rounded up, so that what is over a limit never reads like it.
std::string Megabytes(std::uint64_t bytes) {
  return NumberText(std::ceil(static_cast<double>(bytes) / (1024 * 1024) * 10) / 10) + " MB";
}

}  // namespace

FileTooLarge::FileTooLarge(std::uint64_t bytes)
    : RuntimeError(kErrorInvalidArgument,
                   "The file has " + Megabytes(bytes) + ", and " + Megabytes(kLargestRead) + " are the limit") {}

void CheckSize(std::uint64_t bytes) {
  if (bytes > kLargestRead) throw FileTooLarge(bytes);
}

}  // namespace pawnfield
