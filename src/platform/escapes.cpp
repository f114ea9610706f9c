#include "platform/escapes.h"

#include "platform/nearest_letters.h"

namespace pawnfield {

namespace {

constexpr char32_t kBase = 36;
constexpr char32_t kCodes = 0x110000;

std::optional<char32_t> DigitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'z') return 10 + c - 'a';
  if (c >= 'A' && c <= 'Z') return 10 + c - 'A';
  return std::nullopt;
}

std::size_t LetterLength(std::string_view text, std::size_t at) { return EscapeAt(text, at) ? kEscapeLength : 1; }

}  // namespace

std::string EscapeOf(char32_t code) {
  constexpr std::string_view kDigits = "0123456789abcdefghijklmnopqrstuvwxyz";
  std::string escape(kEscapeLength, kEscapeMark);
  for (std::size_t i = kEscapeLength - 1; i > 0; --i, code /= kBase) escape[i] = kDigits[code % kBase];
  return escape;
}

std::optional<char32_t> EscapeAt(std::string_view text, std::size_t at) {
  if (at + kEscapeLength > text.size() || text[at] != kEscapeMark) return std::nullopt;
  char32_t code = 0;
  for (std::size_t i = at + 1; i < at + kEscapeLength; ++i) {
    const auto digit = DigitOf(text[i]);
    if (!digit) return std::nullopt;
    code = code * kBase + *digit;
  }
  if (code >= kCodes) return std::nullopt;
  return code;
}

std::size_t CountLetters(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += LetterLength(text, at)) ++count;
  return count;
}

std::string FirstLetters(std::string_view text, std::size_t count) {
  if (text.size() <= count) return std::string(text);
  std::size_t end = 0;
  for (; count > 0 && end < text.size(); --count) end += LetterLength(text, end);
  return std::string(text.substr(0, end));
}

std::string PlainLetters(std::string_view text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); at += LetterLength(text, at)) {
    const auto code = EscapeAt(text, at);
    plain += code ? NearestLetter(*code) : text[at];
  }
  return plain;
}

}  // namespace pawnfield
