// One input report of the wireless transceiver, decoded: which remote, and which of its buttons.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace pawnfield {

// A report in the transceiver's read buffer, which is one byte longer than the report; the last byte is always 0.
using ReportBuffer = std::vector<std::uint8_t>;

class TransceiverData {
 public:
  // Decodes a buffer by its length: one of four bytes holds a report of the short form, any other one of the long.
  // A buffer that ends before the bytes which the report speaks of is error 9.
  void Parse(const ReportBuffer& data);

  static std::array<std::uint8_t, 4> BytesFromValues(int first, int second, int third, int fourth);
  // Compares the first four bytes of a buffer of four.
  static bool BytesEqual(const ReportBuffer& a, const std::array<std::uint8_t, 4>& b);

  // -1 while nothing has been decoded.
  std::int16_t Remote = -1;
  // "A".."D" and "BUZZ"; the long form also has "POWERED" and "ERROR". Empty while nothing has been decoded.
  std::string Button;

 private:
  void ParseShortReport(const ReportBuffer& data);
  void ParseLongReport(const ReportBuffer& data);
};

}  // namespace pawnfield
