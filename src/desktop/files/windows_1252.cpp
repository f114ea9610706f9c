#include "desktop/files/windows_1252.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace pawnfield {

namespace {

// 0x80 to 0x9F; all other bytes are the character of the same number.
constexpr std::array<char16_t, 32> kMiddle{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> ByteOf(char16_t character) {
  const auto* const found = std::find(kMiddle.begin(), kMiddle.end(), character);
  if (found != kMiddle.end()) return static_cast<char>(0x80 + (found - kMiddle.begin()));
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  return std::nullopt;
}

}  // namespace

QString FromWindows1252(const std::string& bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    const bool middle = value >= 0x80 && value < 0xA0;
    text.append(QChar(middle ? kMiddle[value - std::size_t{0x80}] : char16_t{value}));
  }
  return text;
}

std::optional<std::string> ToWindows1252(const QString& text) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar character : text.normalized(QString::NormalizationForm_C)) {
    const auto byte = ByteOf(character.unicode());
    if (!byte) return std::nullopt;
    bytes.push_back(*byte);
  }
  return bytes;
}

}  // namespace pawnfield
