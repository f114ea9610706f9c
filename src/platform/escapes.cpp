#include "platform/escapes.h"

#include <algorithm>
#include <iterator>

#include "platform/nearest_letters.h"

namespace pawnfield {

namespace {

constexpr char32_t kBase = 36;
constexpr char32_t kCodes = 0x110000;
// Between these a text has the direction of its own first letter, and is one neutral sign to what stands around it.
constexpr char32_t kBeginIsolate = 0x2068, kEndIsolate = 0x2069;

struct CodeRange {
  char32_t First, Last;
};
// Hebrew, Arabic and their kin, the forms that stand for them, and the scripts of old.
constexpr CodeRange kFromRightToLeft[] = {
    {0x0590, 0x08FF}, {0xFB1D, 0xFDFF}, {0xFE70, 0xFEFC}, {0x10800, 0x10FFF}, {0x1E800, 0x1EFFF}};

std::optional<char32_t> DigitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'z') return 10 + c - 'a';
  if (c >= 'A' && c <= 'Z') return 10 + c - 'A';
  return std::nullopt;
}

bool GoesFromRightToLeft(char32_t code) {
  return std::any_of(std::begin(kFromRightToLeft), std::end(kFromRightToLeft),
                     [code](const CodeRange& range) { return code >= range.First && code <= range.Last; });
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

std::string Isolated(const std::string& text) {
  for (std::size_t at = 0; at < text.size(); at += LetterLength(text, at)) {
    const auto code = EscapeAt(text, at);
    if (code && GoesFromRightToLeft(*code)) return EscapeOf(kBeginIsolate) + text + EscapeOf(kEndIsolate);
  }
  return text;
}

std::string WithoutIsolation(std::string_view text) {
  std::string plain;
  for (std::size_t at = 0, length = 0; at < text.size(); at += length) {
    const auto code = EscapeAt(text, at);
    length = LetterLength(text, at);
    if (code != kBeginIsolate && code != kEndIsolate) plain += text.substr(at, length);
  }
  return plain;
}

}  // namespace pawnfield
