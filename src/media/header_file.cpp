#include "media/header_file.h"

#include <chrono>
#include <cstdio>
#include <limits>
#include <string_view>
#include <vector>

#include "platform/line_reader.h"
#include "platform/text.h"

namespace pawnfield {

namespace {

constexpr std::size_t kFieldCount = 7;

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string Flag(bool value) { return value ? "#TRUE#" : "#FALSE#"; }

std::string FormatRecord(const OptionalHeader& header) {
  return Quoted(header.HeaderText) + ',' + Quoted(header.HeaderFont) + ',' + std::to_string(header.HeaderFontSize) +
         ',' + Flag(header.HeaderFontBold) + ',' + Flag(header.HeaderFontItalic) + ',' + header.HeaderForeColor + ',' +
         header.HeaderBackColor;
}

// A field in quotes ends at the closing quote, and what follows it up to the comma is passed over. More says whether a
// comma promises a further field.
std::string TakeField(std::string_view& rest, bool& more) {
  while (rest.starts_with(' ')) rest.remove_prefix(1);
  std::string_view field;
  if (rest.starts_with('"')) {
    rest.remove_prefix(1);
    const std::size_t quote = rest.find('"');
    field = rest.substr(0, quote);
    rest.remove_prefix(quote == std::string_view::npos ? rest.size() : quote + 1);
    rest.remove_prefix(std::min(rest.find(','), rest.size()));
  } else {
    field = rest.substr(0, rest.find(','));
    rest.remove_prefix(field.size());
    while (field.ends_with(' ')) field.remove_suffix(1);
  }
  more = rest.starts_with(',');
  if (more) rest.remove_prefix(1);
  return std::string(field);
}

std::optional<bool> ReadFlag(const std::string& field) {
  const std::string upper = ToUpper(field);
  if (upper == "#TRUE#") return true;
  if (upper == "#FALSE#") return false;
  return std::nullopt;
}

std::optional<int> ReadSize(const std::string& field) {
  using Limits = std::numeric_limits<std::int16_t>;
  const auto number = ParseNumber(field);
  if (!number || *number < Limits::min() || *number > Limits::max()) return std::nullopt;
  return static_cast<int>(RoundHalfEven(*number));
}

std::optional<OptionalHeader> ParseRecord(std::string_view line) {
  std::array<std::string, kFieldCount> fields;
  bool more = true;
  for (std::string& field : fields) {
    if (!more) return std::nullopt;
    field = TakeField(line, more);
  }
  const auto size = ReadSize(fields[2]);
  const auto bold = ReadFlag(fields[3]);
  const auto italic = ReadFlag(fields[4]);
  if (!size || !bold || !italic) return std::nullopt;
  return OptionalHeader{fields[0], fields[1], *size, *bold, *italic, fields[5], fields[6]};
}

}  // namespace

std::string FormatHeaderFile(const LocalTime& written, const HeaderRecords& records) {
  std::string bytes = '#' + std::to_string(written.Year) + '-' + TwoDigits(written.Month) + '-' +
                      TwoDigits(written.Day) + ' ' + TwoDigits(written.Hour) + ':' + TwoDigits(written.Minute) + ':' +
                      TwoDigits(written.Second) + "#\r\n";
  for (const OptionalHeader& record : records) bytes += FormatRecord(record) + "\r\n";
  return bytes;
}

std::optional<LocalTime> HeaderFileStamp(const std::string& bytes) {
  LineReader lines(bytes);
  const std::string line(lines.Next().value_or(""));
  LocalTime stamp;
  char end = '\0';
  // The widths keep a long run of digits from running over.
  const int read = std::sscanf(line.c_str(), " #%4d-%2d-%2d %2d:%2d:%2d%c", &stamp.Year, &stamp.Month, &stamp.Day,
                               &stamp.Hour, &stamp.Minute, &stamp.Second, &end);
  if (read != 7 || end != '#') return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(stamp.Year), std::chrono::month(unsigned(stamp.Month)),
                                         std::chrono::day(unsigned(stamp.Day))};
  const bool inDay = stamp.Hour >= 0 && stamp.Hour < 24 && stamp.Minute >= 0 && stamp.Minute < 60 &&
                     stamp.Second >= 0 && stamp.Second < 60;
  if (!date.ok() || !inDay) return std::nullopt;
  return stamp;
}

void ReadHeaderRecords(const std::string& bytes, HeaderRecords& records) {
  LineReader lines(bytes);
  lines.Next();
  for (OptionalHeader& record : records) {
    const auto line = lines.Next();
    if (!line) return;
    if (const auto read = ParseRecord(*line)) record = *read;
  }
}

long long MinutesBetween(const LocalTime& from, const LocalTime& to) {
  const auto seconds = [](const LocalTime& time) {
    const std::chrono::year_month_day date{std::chrono::year(time.Year), std::chrono::month(unsigned(time.Month)),
                                           std::chrono::day(unsigned(time.Day))};
    const long long days = std::chrono::sys_days(date).time_since_epoch().count();
    return ((days * 24 + time.Hour) * 60 + time.Minute) * 60 + time.Second;
  };
  return (seconds(to) - seconds(from)) / 60;
}

}  // namespace pawnfield
