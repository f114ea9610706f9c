#include "platform/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <utility>

#include "platform/escapes.h"

namespace pawnfield {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

std::size_t SkipSign(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

// How many characters at the start of the text make a number; 0 when it starts with none.
std::size_t NumberLength(std::string_view text) {
  const std::size_t start = SkipSign(text, 0);
  std::size_t end = SkipDigits(text, start);
  std::size_t digits = end - start;
  if (end < text.size() && text[end] == '.') {
    const std::size_t fraction = end + 1;
    end = SkipDigits(text, fraction);
    digits += end - fraction;
  }
  if (digits == 0) return 0;
  if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
    const std::size_t exponent = SkipSign(text, end + 1);
    const std::size_t exponentEnd = SkipDigits(text, exponent);
    if (exponentEnd > exponent) end = exponentEnd;
  }
  return end;
}

// The standard conversion knows no plus sign in front. Nothing when the number is beyond what a double can hold.
std::optional<double> Convert(std::string_view number) {
  if (number.starts_with('+')) number.remove_prefix(1);
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc{}) return std::nullopt;
  return value;
}

// Only the letters of ASCII have two cases that every reader of the files agrees on.
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

char Capital(char c) {
  const auto code = static_cast<unsigned char>(c);
  constexpr unsigned char kDivisionSign = 0xF7;
  if (code >= 0xE0 && code <= 0xFE && code != kDivisionSign) return static_cast<char>(code - 0x20);
  switch (code) {
    case 0x9A:
    case 0x9C:
    case 0x9E:
      return static_cast<char>(code - 0x10);
    case 0xFF:
      return static_cast<char>(0x9F);
    default:
      return Upper(c);
  }
}

// Of the letters beyond Windows-1252. Where a letter and its capital stand side by side, the capital is the even one up
// to U+0137 and from U+014A to U+0177, else the odd one.
char32_t CapitalCode(char32_t code) {
  const auto within = [code](char32_t first, char32_t last) { return code >= first && code <= last; };
  constexpr char32_t kDotlessI = 0x131;
  if (code == kDotlessI) return U'I';
  if (within(0x100, 0x137) || within(0x14A, 0x177)) return code & ~char32_t{1};
  if (within(0x139, 0x148) || within(0x179, 0x17E)) return code % 2 == 0 ? code - 1 : code;
  constexpr std::array<std::pair<char32_t, char32_t>, 7> kAccentedGreek{
      {{0x3AC, 0x386}, {0x3AD, 0x388}, {0x3AE, 0x389}, {0x3AF, 0x38A}, {0x3CC, 0x38C}, {0x3CD, 0x38E}, {0x3CE, 0x38F}}};
  for (const auto& [small, capital] : kAccentedGreek) {
    if (code == small) return capital;
  }
  constexpr char32_t kFinalSigma = 0x3C2;
  if (code == kFinalSigma) return 0x3A3;
  if (within(0x3B1, 0x3CB) || within(0x430, 0x44F)) return code - 0x20;
  return within(0x450, 0x45F) ? code - 0x50 : code;
}

}  // namespace

std::string Trim(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string ToLower(const std::string& text) {
  std::string result = text;
  std::transform(result.begin(), result.end(), result.begin(), Lower);
  return result;
}

std::string ToUpper(const std::string& text) {
  std::string result = text;
  std::transform(result.begin(), result.end(), result.begin(), Upper);
  return result;
}

std::string ToCapitals(const std::string& text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const auto code = EscapeAt(text, at);
    result += code ? EscapeOf(CapitalCode(*code)) : std::string(1, Capital(text[at]));
    at += code ? kEscapeLength : 1;
  }
  return result;
}

std::string ExtractFolder(const std::string& path) {
  const std::size_t slash = path.rfind('\\');
  return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

std::string ExtractFileName(const std::string& path) {
  const std::size_t slash = path.rfind('\\');
  return slash == std::string::npos ? "" : path.substr(slash + 1);
}

std::string StripExtension(const std::string& name) { return name.substr(0, name.find('.')); }

std::optional<double> ParseNumber(const std::string& text) {
  const std::string number = Trim(text);
  if (number.empty() || NumberLength(number) != number.size()) return std::nullopt;
  return Convert(number);
}

double LeadingNumber(const std::string& text) {
  const std::string number = Trim(text);
  return Convert(std::string_view(number).substr(0, NumberLength(number))).value_or(0);
}

long long RoundHalfEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2) != 0);
  return static_cast<long long>(up ? below + 1 : below);
}

std::optional<bool> ParseBoolean(const std::string& text) {
  const std::string word = ToLower(text);
  if (word == "true") return true;
  if (word == "false") return false;
  const std::optional<double> number = ParseNumber(text);
  if (!number) return std::nullopt;
  return *number != 0;
}

std::string NumberText(double value) {
  constexpr double kLongestWhole = 1e15;
  if (value == 0) return "0";
  std::array<char, 64> digits{};
  const bool plain = std::abs(value) < kLongestWhole && value == std::floor(value);
  const auto result = plain
                          ? std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed)
                          : std::to_chars(digits.data(), digits.data() + digits.size(), value);
  return {digits.data(), result.ptr};
}

std::string BooleanText(bool value) { return value ? "True" : "False"; }

std::string FirstLines(const std::vector<std::string>& lines, std::size_t most) {
  std::string text;
  for (std::size_t i = 0; i < lines.size() && i < most; ++i) text += "\r\n" + lines[i];
  if (lines.size() > most) text += "\r\nand " + std::to_string(lines.size() - most) + " more";
  return text;
}

}  // namespace pawnfield
