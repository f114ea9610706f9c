// Tables as text, as spreadsheets write and read them: fields behind commas, semicolons or tabs, in quotation marks
// where they hold one of these or a line break. Cells are UTF-8, whatever the file is.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pawnfield {

using TableRow = std::vector<std::string>;
using Table = std::vector<TableRow>;

enum class TableEncoding { Utf8, Utf16LittleEndian, Utf16BigEndian, Windows1252 };

// True when all of it is well-formed.
bool IsUtf8(std::string_view bytes);
// By the mark at its beginning; without one by the zeros of UTF-16, and then by whether the bytes are well-formed
// UTF-8.
TableEncoding EncodingOf(std::string_view bytes);
// The text without its mark. A broken character becomes U+FFFD.
std::string ToUtf8(std::string_view bytes);
// Comma, semicolon or tab: what cuts most of the first rows into as many fields as the very first; a comma where none
// does. A first line "sep=;" declares it.
char SeparatorOf(std::string_view text);
// Takes CR LF, LF and CR for the end of a line, and a quotation mark that is never closed to the end. An empty line is
// a row of one empty cell.
Table ParseTable(std::string_view text, char separator, std::size_t mostRows = static_cast<std::size_t>(-1));

// The core's text, which is Windows-1252 with escapes, as a cell.
std::string CellOf(std::string_view text);

// The table of a file's bytes, without a line "sep=".
Table ReadTable(std::string_view bytes);
// The file of a table, by RFC 4180, in UTF-8 with a mark. ReadTable gives back what was written, field by field; a row
// without cells comes back as one with an empty cell.
std::string FormatTable(const Table& table);

}  // namespace pawnfield
