// Small text and path rules shared by every room: blank trimming, file name parts, number text.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace pawnfield {

// Removes blanks (only U+0020) at both ends.
std::string Trim(const std::string& text);
std::string ToLower(const std::string& text);
std::string ToUpper(const std::string& text);
// For text that is shown: accented, Greek and Cyrillic letters become capitals too.
std::string ToCapitals(const std::string& text);
// Up to and including the last backslash; empty when there is none.
std::string ExtractFolder(const std::string& path);
// After the last backslash; empty when there is none.
std::string ExtractFileName(const std::string& path);
// Before the first "."; the whole name when it holds none.
std::string StripExtension(const std::string& name);

// The general number test: optional blanks and sign, digits, a decimal point, an exponent; nothing else.
std::optional<double> ParseNumber(const std::string& text);
// The number a text starts with, 0 when it starts with none.
double LeadingNumber(const std::string& text);
// To the nearest whole number, halves to even.
long long RoundHalfEven(double value);
// "True", "False" (any case) or a number, non-zero being true.
std::optional<bool> ParseBoolean(const std::string& text);
// Shortest decimal text: whole numbers without a point.
std::string NumberText(double value);
std::string BooleanText(bool value);

// For a box: at most so many of the lines, each behind a line's end, and "and 3 more" for what is left out.
std::string FirstLines(const std::vector<std::string>& lines, std::size_t most);

}  // namespace pawnfield
