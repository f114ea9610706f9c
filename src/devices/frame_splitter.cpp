#include "devices/frame_splitter.h"

namespace pawnfield {

namespace {

constexpr const char* kMarker = "MF";
constexpr std::size_t kHeadLength = 4;
constexpr std::size_t kLongestFrame = kHeadLength + 0xFFFF;

}  // namespace

void FrameSplitter::Add(const std::string& bytes) {
  RxBuffer_.erase(0, start_);
  start_ = 0;
  RxBuffer_ += bytes;
}

std::optional<std::string> FrameSplitter::Next() {
  if (Waiting() < kHeadLength || !SkipToMarker() || Waiting() < kHeadLength) return std::nullopt;
  const auto byte = [this](std::size_t index) { return static_cast<unsigned char>(RxBuffer_[start_ + index]); };
  const std::size_t RxLength = static_cast<std::size_t>(byte(2)) << 8 | byte(3);
  if (Waiting() < RxLength + kHeadLength) return std::nullopt;
  std::string frame = RxBuffer_.substr(start_, RxLength + kHeadLength);
  Consume(frame.size());
  return frame;
}

// Noise without a marker is kept until there is more of it than a frame can be long; its last byte can be the first
// half of a marker.
bool FrameSplitter::SkipToMarker() {
  const std::size_t marker = RxBuffer_.find(kMarker, start_);
  if (marker != std::string::npos) {
    Consume(marker - start_);
    return true;
  }
  if (Waiting() > kLongestFrame) Consume(Waiting() - 1);
  return false;
}

void FrameSplitter::Consume(std::size_t count) { start_ += count; }

}  // namespace pawnfield
