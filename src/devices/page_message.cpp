#include "devices/page_message.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "platform/escapes.h"

namespace pawnfield {

namespace {

constexpr std::size_t kTokenDigits = 32;
constexpr std::size_t kMostWords = 4;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Empty where a blank stands too many or a letter isn't printed.
std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  if (!std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; })) return {};
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    if (end == at || words.size() == kMostWords) return {};
    words.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return words;
}

std::optional<std::int64_t> Whole(std::string_view text, std::size_t mostDigits) {
  if (text.empty() || text.size() > mostDigits || !std::all_of(text.begin(), text.end(), IsDigit)) return std::nullopt;
  std::int64_t value = 0;
  for (const char digit : text) value = value * 10 + (digit - '0');
  return value;
}

// Milliseconds with decimals as microseconds.
std::optional<std::int64_t> Time(std::string_view text) {
  constexpr std::size_t kMostDigits = 12;
  constexpr std::size_t kDecimals = 3;
  const std::size_t point = std::min(text.find('.'), text.size());
  const auto whole = Whole(text.substr(0, point), kMostDigits);
  if (!whole) return std::nullopt;
  if (point == text.size()) return *whole * 1000;
  std::string decimals(text.substr(point + 1));
  if (decimals.empty() || decimals.size() > kDecimals) return std::nullopt;
  decimals.append(kDecimals - decimals.size(), '0');
  const auto rest = Whole(decimals, kDecimals);
  if (!rest) return std::nullopt;
  return *whole * 1000 + *rest;
}

bool IsToken(std::string_view text) {
  const auto digit = [](char c) { return IsDigit(c) || (c >= 'a' && c <= 'f'); };
  return text.size() == kTokenDigits && std::all_of(text.begin(), text.end(), digit);
}

bool IsPin(std::string_view text, std::size_t digits) {
  return text.size() == digits && std::all_of(text.begin(), text.end(), IsDigit);
}

PageMessage Hello(const std::vector<std::string_view>& words) {
  constexpr std::size_t kPinDigits = 4, kHostPinDigits = 6;
  PageMessage message{.Word = PageWord::Hello};
  const std::string_view who = words[1];
  const std::string_view secret = words.size() > 2 ? words[2] : std::string_view();
  const std::string_view token = words.size() > 3 ? words[3] : std::string_view();
  if (who == "phone" && IsPin(secret, kPinDigits) && (token.empty() || IsToken(token))) {
    message.Kind = PageKind::Phone;
  } else if (who == "host" && IsPin(secret, kHostPinDigits) && token.empty()) {
    message.Kind = PageKind::Host;
  } else if (who == "scores" && words.size() == 2) {
    message.Kind = PageKind::Scores;
  } else if (who == "events" && IsToken(secret) && token.empty()) {
    message.Kind = PageKind::Events;
  } else {
    return {};
  }
  message.Secret = secret;
  message.SeatToken = token;
  return message;
}

PageMessage Pong(const std::vector<std::string_view>& words) {
  constexpr std::size_t kMostDigits = 9;
  const auto number = Whole(words[1], kMostDigits);
  const auto received = Time(words[2]), sent = Time(words[3]);
  if (!number || !received || !sent || *sent < *received) return {};
  return {.Word = PageWord::Pong, .Number = static_cast<int>(*number), .FirstUs = *received, .SecondUs = *sent};
}

PageMessage Press(std::string_view time) {
  const auto pressed = Time(time);
  if (!pressed) return {};
  return {.Word = PageWord::Press, .FirstUs = *pressed};
}

PageMessage TakeSeat(std::string_view number) {
  const auto seat = Whole(number, 1);
  if (!seat) return {};
  return {.Word = PageWord::Seat, .Number = static_cast<int>(*seat)};
}

// The code of a letter of Windows-1252; the bytes that the code page leaves open are control characters.
char32_t CodeOf(char letter) {
  constexpr std::array<char16_t, 32> kUpper{0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                            0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
  const auto byte = static_cast<unsigned char>(letter);
  return byte >= 0x80 && byte < 0xA0 ? kUpper[byte - 0x80U] : byte;
}

void AddUnit(std::string& json, char32_t unit) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  json += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) json += kDigits[(unit >> shift) & 0xFU];
}

void AddLetter(std::string& json, char32_t code) {
  constexpr char32_t kFirstOfPairs = 0x10000;
  if (code >= ' ' && code <= '~' && code != '"' && code != '\\') {
    json += static_cast<char>(code);
  } else if (code < kFirstOfPairs) {
    AddUnit(json, code);
  } else {
    AddUnit(json, 0xD800U + ((code - kFirstOfPairs) >> 10U));
    AddUnit(json, 0xDC00U + ((code - kFirstOfPairs) & 0x3FFU));
  }
}

}  // namespace

PageMessage DecodePageMessage(std::string_view text) {
  if (text.size() > kPageMessageBytes) return {};
  const std::vector<std::string_view> words = Words(text);
  if (words.empty()) return {};
  const std::string_view word = words.front();
  if (word == "hello" && words.size() >= 2) return Hello(words);
  if (word == "seat" && words.size() == 2) return TakeSeat(words[1]);
  if (word == "leave" && words.size() == 1) return {.Word = PageWord::Leave};
  if (word == "pong" && words.size() == 4) return Pong(words);
  if (word == "press" && words.size() == 2) return Press(words[1]);
  return {};
}

std::string JsonText(std::string_view text) {
  std::string json = "\"";
  for (std::size_t at = 0; at < text.size();) {
    const auto escape = EscapeAt(text, at);
    AddLetter(json, escape ? *escape : CodeOf(text[at]));
    at += escape ? kEscapeLength : 1;
  }
  return json + "\"";
}

void JsonObject::Name(std::string_view name) {
  if (!members_.empty()) members_ += ",";
  members_ += JsonText(name) + ":";
}

JsonObject& JsonObject::Text(std::string_view name, std::string_view value) { return Json(name, JsonText(value)); }

JsonObject& JsonObject::Number(std::string_view name, std::int64_t value) { return Json(name, std::to_string(value)); }

JsonObject& JsonObject::Truth(std::string_view name, bool value) { return Json(name, value ? "true" : "false"); }

JsonObject& JsonObject::Json(std::string_view name, std::string_view value) {
  Name(name);
  members_ += value;
  return *this;
}

}  // namespace pawnfield
