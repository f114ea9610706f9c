#include "sets/table_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "platform/escapes.h"

namespace pawnfield {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";
constexpr char32_t kBroken = 0xFFFD;
constexpr std::string_view kSeparators = ",;\t";
constexpr std::string_view kSeparatorMark = "sep=";

// The characters of the bytes 80 to 9F; a byte without one stands for itself.
constexpr std::array<char16_t, 32> kWindows1252{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::uint8_t ByteAt(std::string_view bytes, std::size_t at) { return static_cast<std::uint8_t>(bytes[at]); }

void Append(std::string& text, char32_t code) {
  const auto add = [&](char32_t byte) { text += static_cast<char>(static_cast<std::uint8_t>(byte)); };
  if (code < 0x80) {
    add(code);
  } else if (code < 0x800) {
    add(0xC0 | code >> 6);
    add(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    add(0xE0 | code >> 12);
    add(0x80 | (code >> 6 & 0x3F));
    add(0x80 | (code & 0x3F));
  } else {
    add(0xF0 | code >> 18);
    add(0x80 | (code >> 12 & 0x3F));
    add(0x80 | (code >> 6 & 0x3F));
    add(0x80 | (code & 0x3F));
  }
}

std::size_t LengthByLead(std::uint8_t lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

// How long the well-formed character at the place is; 0 where none is.
std::size_t CharacterLength(std::string_view bytes, std::size_t at) {
  const std::uint8_t lead = ByteAt(bytes, at);
  const std::size_t length = LengthByLead(lead);
  if (length == 1) return 1;
  if (length == 0 || at + length > bytes.size()) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((ByteAt(bytes, at + i) & 0xC0) != 0x80) return 0;
  }
  // Longer than need be, half of a pair, or beyond the last character there is.
  const std::uint8_t second = ByteAt(bytes, at + 1);
  const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool none = (lead == 0xED && second > 0x9F) || (lead == 0xF4 && second > 0x8F);
  return overlong || none ? 0 : length;
}

std::string MendUtf8(std::string_view bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size();) {
    const std::size_t length = CharacterLength(bytes, i);
    if (length == 0) {
      Append(text, kBroken);
    } else {
      text += bytes.substr(i, length);
    }
    i += std::max<std::size_t>(length, 1);
  }
  return text;
}

std::string FromWindows1252(std::string_view bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const std::uint8_t byte = ByteAt(bytes, i);
    Append(text, byte >= 0x80 && byte <= 0x9F ? kWindows1252[byte - 0x80U] : byte);
  }
  return text;
}

// Half a unit at the end is left out.
std::string FromUtf16(std::string_view bytes, bool littleEndian) {
  const auto unit = [&](std::size_t i) -> char32_t {
    const char32_t first = ByteAt(bytes, 2 * i), second = ByteAt(bytes, 2 * i + 1);
    return littleEndian ? second << 8 | first : first << 8 | second;
  };
  const std::size_t units = bytes.size() / 2;
  std::string text;
  for (std::size_t i = 0; i < units; ++i) {
    const char32_t high = unit(i);
    if (high < 0xD800 || high > 0xDFFF) {
      Append(text, high);
      continue;
    }
    const char32_t low = i + 1 < units ? unit(i + 1) : 0;
    const bool pair = high < 0xDC00 && low >= 0xDC00 && low <= 0xDFFF;
    Append(text, pair ? 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00) : kBroken);
    if (pair) ++i;
  }
  return text;
}

std::string_view WithoutMark(std::string_view bytes, std::string_view mark) {
  return bytes.starts_with(mark) ? bytes.substr(mark.size()) : bytes;
}

// Takes one row after the other from a text.
class RowReader {
 public:
  RowReader(std::string_view text, char separator) : text_(text), separator_(separator) {}

  bool AtEnd() const { return at_ >= text_.size(); }

  TableRow Next() {
    TableRow row;
    do {
      row.push_back(NextCell());
    } while (Takes(separator_));
    // A line ends with either sign or with both.
    Takes('\r');
    Takes('\n');
    return row;
  }

 private:
  bool Takes(char c) {
    if (AtEnd() || text_[at_] != c) return false;
    ++at_;
    return true;
  }

  std::string NextCell() {
    std::string cell = Takes('"') ? Quoted() : std::string();
    // What follows a closing quotation mark belongs to the cell.
    const std::size_t end = std::min(text_.find_first_of(ends_, at_), text_.size());
    cell += text_.substr(at_, end - at_);
    at_ = end;
    return cell;
  }

  // Behind the opening mark, up to the closing one; two are one of the text.
  std::string Quoted() {
    std::string cell;
    while (!AtEnd()) {
      const std::size_t mark = std::min(text_.find('"', at_), text_.size());
      cell += text_.substr(at_, mark - at_);
      at_ = std::min(mark + 1, text_.size());
      if (!Takes('"')) break;
      cell += '"';
    }
    return cell;
  }

  std::string_view text_;
  char separator_;
  std::string ends_{separator_, '\r', '\n'};
  std::size_t at_ = 0;
};

// The separator that the first line declares; nothing otherwise.
std::optional<char> DeclaredSeparator(std::string_view text) {
  const std::size_t length = kSeparatorMark.size() + 1;
  if (!text.starts_with(kSeparatorMark) || text.size() < length) return std::nullopt;
  const char declared = text[kSeparatorMark.size()];
  const bool ends = text.size() == length || text[length] == '\r' || text[length] == '\n';
  return ends && kSeparators.find(declared) != std::string_view::npos ? std::optional(declared) : std::nullopt;
}

// The text without what stands in quotation marks, whichever separator it is for: none counts in there.
std::string WithoutQuoted(std::string_view text) {
  std::string bare;
  bool quoted = false, opens = true;
  for (const char c : text) {
    if (c == '"' && (quoted || opens)) {
      quoted = !quoted;
    } else if (!quoted) {
      bare += c;
    }
    // Behind a closing mark a second one is a mark of the text.
    opens = c == '"' || kSeparators.find(c) != std::string_view::npos || c == '\r' || c == '\n';
  }
  return bare;
}

std::string FormatCell(const std::string& cell) {
  // Each separator counts, so that no reader takes another one than was meant.
  if (cell.find_first_of(",;\t\"\r\n") == std::string::npos && !cell.empty()) return cell;
  std::string quoted = "\"";
  for (const char c : cell) quoted += c == '"' ? "\"\"" : std::string(1, c);
  return quoted + '"';
}

}  // namespace

std::string CellOf(std::string_view text) {
  std::string cell;
  for (std::size_t i = 0; i < text.size();) {
    if (const auto code = EscapeAt(text, i)) {
      Append(cell, *code);
      i += kEscapeLength;
    } else {
      cell += FromWindows1252(text.substr(i++, 1));
    }
  }
  return cell;
}

bool IsUtf8(std::string_view bytes) {
  for (std::size_t i = 0; i < bytes.size();) {
    const std::size_t length = CharacterLength(bytes, i);
    if (length == 0) return false;
    i += length;
  }
  return true;
}

TableEncoding EncodingOf(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) return TableEncoding::Utf8;
  if (bytes.starts_with(kLittleEndianMark)) return TableEncoding::Utf16LittleEndian;
  if (bytes.starts_with(kBigEndianMark)) return TableEncoding::Utf16BigEndian;
  if (bytes.size() >= 2 && (bytes[0] == '\0') != (bytes[1] == '\0')) {
    return bytes[0] == '\0' ? TableEncoding::Utf16BigEndian : TableEncoding::Utf16LittleEndian;
  }
  return IsUtf8(bytes) ? TableEncoding::Utf8 : TableEncoding::Windows1252;
}

std::string ToUtf8(std::string_view bytes) {
  switch (EncodingOf(bytes)) {
    case TableEncoding::Utf16LittleEndian:
      return FromUtf16(WithoutMark(bytes, kLittleEndianMark), true);
    case TableEncoding::Utf16BigEndian:
      return FromUtf16(WithoutMark(bytes, kBigEndianMark), false);
    case TableEncoding::Windows1252:
      return FromWindows1252(bytes);
    case TableEncoding::Utf8:
      break;
  }
  return MendUtf8(WithoutMark(bytes, kUtf8Mark));
}

char SeparatorOf(std::string_view text) {
  if (const auto declared = DeclaredSeparator(text)) return *declared;
  constexpr std::size_t kRows = 50;
  char best = kSeparators.front();
  std::size_t most = 0;
  const std::string bare = WithoutQuoted(text);
  for (const char separator : kSeparators) {
    const Table rows = ParseTable(bare, separator, kRows);
    if (rows.empty() || rows.front().size() < 2) continue;
    const auto even = static_cast<std::size_t>(std::count_if(
        rows.begin(), rows.end(), [&](const TableRow& row) { return row.size() == rows.front().size(); }));
    if (even > most) best = separator;
    most = std::max(most, even);
  }
  return best;
}

Table ParseTable(std::string_view text, char separator, std::size_t mostRows) {
  Table table;
  RowReader reader(text, separator);
  while (!reader.AtEnd() && table.size() < mostRows) table.push_back(reader.Next());
  return table;
}

Table ReadTable(std::string_view bytes) {
  const std::string text = ToUtf8(bytes);
  Table table = ParseTable(text, SeparatorOf(text));
  if (DeclaredSeparator(text)) table.erase(table.begin());
  return table;
}

std::string FormatTable(const Table& table) {
  std::string text(kUtf8Mark);
  for (const TableRow& row : table) {
    for (std::size_t i = 0; i < row.size(); ++i) text += (i > 0 ? "," : "") + FormatCell(row[i]);
    text += row.empty() ? "\"\"\r\n" : "\r\n";
  }
  return text;
}

}  // namespace pawnfield
