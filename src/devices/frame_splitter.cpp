#include "devices/frame_splitter.h"

namespace pawnfield {

namespace {

constexpr const char* kMarker = "MF";
constexpr std::size_t kMarkerLength = 2;
constexpr std::size_t kHeadLength = 4;
// A frame of the line's speed takes some ten milliseconds.
constexpr std::int64_t kPatienceMs = 1000;
constexpr std::size_t kLongestFrame = kHeadLength + 0xFFFF;

}  // namespace

void FrameSplitter::Add(const std::string& bytes) {
  RxBuffer_.erase(0, start_);
  start_ = 0;
  RxBuffer_ += bytes;
}

// A late frame that has become complete meanwhile is one: the program may have been held for longer than the line.
std::optional<std::string> FrameSplitter::Next(std::int64_t nowMs) {
  while (SkipToMarker()) {
    const auto length = FrameLength();
    if (length && Waiting() >= *length) {
      std::string frame = RxBuffer_.substr(start_, *length);
      Consume(frame.size());
      return frame;
    }
    if (!headSince_) headSince_ = nowMs;
    if (nowMs < *headSince_ + kPatienceMs) return std::nullopt;
    Consume(kMarkerLength);
  }
  return std::nullopt;
}

std::optional<std::int64_t> FrameSplitter::GivenUpAtMs() const {
  return headSince_ ? std::optional(*headSince_ + kPatienceMs) : std::nullopt;
}

void FrameSplitter::Clear() {
  RxBuffer_.clear();
  start_ = 0;
  headSince_.reset();
}

std::optional<std::size_t> FrameSplitter::FrameLength() const {
  if (Waiting() < kHeadLength) return std::nullopt;
  const auto byte = [this](std::size_t index) { return static_cast<unsigned char>(RxBuffer_[start_ + index]); };
  return kHeadLength + (static_cast<std::size_t>(byte(2)) << 8 | byte(3));
}

// Noise without a marker is kept until there is more of it than a frame can be long; its last byte can be the first
// half of a marker.
bool FrameSplitter::SkipToMarker() {
  const std::size_t marker = RxBuffer_.find(kMarker, start_);
  if (marker != std::string::npos) {
    if (marker > start_) Consume(marker - start_);
    return true;
  }
  if (Waiting() > kLongestFrame) Consume(Waiting() - 1);
  return false;
}

void FrameSplitter::Consume(std::size_t count) {
  start_ += count;
  headSince_.reset();
}

}  // namespace pawnfield
