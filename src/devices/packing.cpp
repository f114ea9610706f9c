#include "devices/packing.h"

#include <algorithm>

namespace pawnfield {

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t kLineLength = 72;

std::uint32_t Byte(const std::string& text, std::size_t index) { return static_cast<unsigned char>(text[index]); }

// The number of the count bytes at pos; pos stays when they lie past the end.
std::uint32_t Take(const std::string& text, std::size_t& pos, std::size_t count, ByteOrder order) {
  const std::size_t first = std::max<std::size_t>(pos, 1) - 1;
  if (first > text.size() || text.size() - first < count) return 0;
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t place = order == ByteOrder::Network ? i : count - 1 - i;
    value = value << 8 | Byte(text, first + place);
  }
  pos = first + 1 + count;
  return value;
}

// Four characters for the three bytes at index.
void AppendGroup(std::string& encoded, const std::string& bytes, std::size_t index) {
  const std::uint32_t group = Byte(bytes, index) << 16 | Byte(bytes, index + 1) << 8 | Byte(bytes, index + 2);
  for (int shift = 18; shift >= 0; shift -= 6) encoded += kAlphabet[group >> shift & 63];
}

}  // namespace

std::string PackLong(std::int32_t value, ByteOrder order) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) {
    bytes += static_cast<char>(static_cast<std::uint32_t>(value) >> shift & 255);
  }
  if (order == ByteOrder::Network) std::reverse(bytes.begin(), bytes.end());
  return bytes;
}

std::string PackLongPadded(std::int32_t value, ByteOrder order) {
  return PackLong(value, order) + std::string(4, '\0');
}

std::int32_t GetLong(const std::string& text, std::size_t& pos, ByteOrder order) {
  return static_cast<std::int32_t>(Take(text, pos, 4, order));
}

std::int16_t GetShort(const std::string& text, std::size_t& pos, ByteOrder order) {
  return static_cast<std::int16_t>(Take(text, pos, 2, order));
}

std::string MyEncode(const std::string& text) {
  const std::size_t missing = (3 - text.size() % 3) % 3;
  const std::string bytes = text + std::string(missing, '\0');
  std::string encoded;
  for (std::size_t i = 0; i < bytes.size(); i += 3) AppendGroup(encoded, bytes, i);
  std::fill(encoded.end() - static_cast<std::ptrdiff_t>(missing), encoded.end(), '=');
  std::string lines;
  for (std::size_t i = 0; i < encoded.size(); i += kLineLength) {
    if (i > 0) lines += "\r\n";
    lines += encoded.substr(i, kLineLength);
  }
  return lines;
}

}  // namespace pawnfield
