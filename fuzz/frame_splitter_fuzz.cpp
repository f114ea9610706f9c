// A line's bytes give the same frames however they are cut into reads, every frame is whole, and what waits stays
// bounded.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "devices/frame_splitter.h"

namespace {

using namespace pawnfield;

void Require(bool holds) {
  if (!holds) std::abort();
}

constexpr std::size_t kMostWaiting = 4 + 0xFFFF + 4096;

std::vector<std::string> Split(const std::string& bytes, std::size_t step) {
  FrameSplitter splitter;
  std::vector<std::string> frames;
  for (std::size_t i = 0; i < bytes.size(); i += step) {
    splitter.Add(bytes.substr(i, step));
    while (auto frame = splitter.Next(0)) frames.push_back(std::move(*frame));
    Require(splitter.Waiting() <= kMostWaiting);
  }
  return frames;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const auto whole = Split(bytes, size);
  for (const std::string& frame : whole) {
    Require(frame.size() >= 4 && frame.starts_with("MF"));
    const auto length =
        static_cast<std::size_t>(static_cast<unsigned char>(frame[2])) << 8 | static_cast<unsigned char>(frame[3]);
    Require(frame.size() == length + 4);
  }
  Require(Split(bytes, 1) == whole);
  Require(Split(bytes, 1 + data[0] % 13) == whole);
  return 0;
}
