// Cuts the bytes of the ZR-610's line into frames: the marker "MF", two bytes of length (high byte first), and as many
// bytes as that says.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace pawnfield {

class FrameSplitter {
 public:
  void Add(const std::string& bytes);
  // The next whole frame with its marker and length; none until more bytes come. What lies before a marker is lost.
  std::optional<std::string> Next();
  // Bytes that wait. Never more than the longest frame and what was added last.
  std::size_t Waiting() const { return RxBuffer_.size() - start_; }

 private:
  bool SkipToMarker();
  void Consume(std::size_t count);

  std::string RxBuffer_;
  // Where the bytes begin that are not consumed yet.
  std::size_t start_ = 0;
};

}  // namespace pawnfield
