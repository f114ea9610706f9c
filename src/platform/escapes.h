// How a text holds a character that Windows-1252 has no letter for: as a mark and four digits of base 36, its code.
// What counts, cuts or sends letters asks here, so that none of these is ever taken apart.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace pawnfield {

// DEL, which no text of people holds; it means nothing to paths, to the fields of a file and to upper and lower case.
inline constexpr char kEscapeMark = '\x7F';
inline constexpr std::size_t kEscapeLength = 5;

// The code must be one of Unicode's, below 0x110000.
std::string EscapeOf(char32_t code);
// The code of the escape that begins there; nothing where none does. The digits may be of either case.
std::optional<char32_t> EscapeAt(std::string_view text, std::size_t at);

// With each escape as one letter.
std::size_t CountLetters(std::string_view text);
// The text's beginning, so many letters or all there are.
std::string FirstLetters(std::string_view text, std::size_t count);
// With the nearest letter for each escape, for a device whose letters are Windows-1252's.
std::string PlainLetters(std::string_view text);

// The text as it may stand among others: one that holds letters from right to left keeps to itself there, so that it
// doesn't take a number or a sign beside it along.
std::string Isolated(const std::string& text);
// Without what keeps texts to themselves.
std::string WithoutIsolation(std::string_view text);

}  // namespace pawnfield
