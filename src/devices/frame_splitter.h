// Cuts the bytes of the ZR-610's line into frames: the marker "MF", two bytes of length (high byte first), and as many
// bytes as that says. A frame that isn't complete in time was none: what came behind its head counts by itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace pawnfield {

class FrameSplitter {
 public:
  void Add(const std::string& bytes);
  // The next whole frame with its marker and length; none until more bytes come or the head that waits is dropped.
  // What lies before a marker is lost. The time is in milliseconds, of a clock that never goes back.
  std::optional<std::string> Next(std::int64_t nowMs);
  // When the unfinished frame is dropped; none when no head waits.
  std::optional<std::int64_t> GivenUpAtMs() const;
  // Forgets all that waits.
  void Clear();
  // Bytes that wait. Never more than the longest frame and what was added last.
  std::size_t Waiting() const { return RxBuffer_.size() - start_; }

 private:
  bool SkipToMarker();
  // The length of the frame at start_; none while its length isn't there.
  std::optional<std::size_t> FrameLength() const;
  void Consume(std::size_t count);

  std::string RxBuffer_;
  // Where the bytes begin that are not consumed yet.
  std::size_t start_ = 0;
  // When the head at start_ was seen first.
  std::optional<std::int64_t> headSince_;
};

}  // namespace pawnfield
