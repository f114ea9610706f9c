#include "sets/table_text.h"

#include <gtest/gtest.h>

namespace pawnfield {
namespace {

using namespace std::string_literals;

std::string Utf16(const std::u16string& text, bool littleEndian, bool marked) {
  std::string bytes;
  for (const char16_t unit : (marked ? u"\xFEFF" : u"") + text) {
    const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
    bytes += {littleEndian ? low : high, littleEndian ? high : low};
  }
  return bytes;
}

TEST(TableText, ASheetIsReadAsItsProgramWroteIt) {
  const Table cafe{{"Caf\xC3\xA9?", "\xE2\x82\xAC 5"}, {"b", "c"}};
  const std::u16string wide = u"Caf\u00E9?\t\u20AC 5\r\nb\tc\r\n";
  const std::pair<std::string, Table> cases[] = {
      {"a,b\r\nc,d\r\n", {{"a", "b"}, {"c", "d"}}},
      {"a;b, and more\nc;d\n", {{"a", "b, and more"}, {"c", "d"}}},
      {"a\tb;c,d\re\tf", {{"a", "b;c,d"}, {"e", "f"}}},
      {"sep=;\r\na,b;c\r\n", {{"a,b", "c"}}},
      {"one column, it says\r\nand no other\r\nhere\r\n", {{"one column", " it says"}, {"and no other"}, {"here"}}},
      {"a\r\n\r\nb", {{"a"}, {""}, {"b"}}},
      {"a,,\r\n,b,\r\n", {{"a", "", ""}, {"", "b", ""}}},
      {"\"two\r\nlines, \"\"quoted\"\"\",b\r\n", {{"two\r\nlines, \"quoted\"", "b"}}},
      {"\"a\"b\"c,d\r\n", {{"ab\"c", "d"}}},
      {"say \"hi\",b\r\n", {{"say \"hi\"", "b"}}},
      {"a,\"never closed\r\nb,c", {{"a", "never closed\r\nb,c"}}},
      {"", {}},
      {"\xEF\xBB\xBF", {}},
      {"\xEF\xBB\xBF"
       "Caf\xC3\xA9?,\xE2\x82\xAC 5\nb,c",
       cafe},
      {"Caf\xC3\xA9?,\xE2\x82\xAC 5\nb,c", cafe},
      {"Caf\xE9?,\x80 5\nb,c", cafe},
      {Utf16(wide, true, true), cafe},
      {Utf16(wide, false, true), cafe},
      {Utf16(wide, true, false), cafe},
      {Utf16(wide, false, false), cafe},
      {Utf16(u"\U0001F600,\xD800,\xDC00x", true, true) + "y", {{"\xF0\x9F\x98\x80", "\xEF\xBF\xBD", "\xEF\xBF\xBDx"}}},
      {"\xEF\xBB\xBF"
       "a\xC0\x80,\xED\xA0\x80",
       {{"a\xEF\xBF\xBD\xEF\xBF\xBD", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"}}}};
  for (const auto& [bytes, table] : cases) EXPECT_EQ(ReadTable(bytes), table) << bytes;
}

TEST(TableText, WhatIsWrittenIsReadBackFieldByField) {
  const Table tables[] = {{},
                          {{"Question", "Answer"}, {"Who, \"me\"?", "a;b\tc"}},
                          {{"one; column"}, {"with, breaks\nand\rall\r\n"}, {""}},
                          {{"a", "x;y"}, {"b", "z;w", "q"}, {"\"c;", "d"}},
                          {{"sep=;"}, {"sep=,", ""}},
                          {{"\xCE\xB1\xCE\xB2", "\xD7\xA9"}, {" kept blanks ", "nul "s + '\0'}, {"", "", ""}}};
  for (const Table& table : tables) EXPECT_EQ(ReadTable(FormatTable(table)), table);
  EXPECT_EQ(FormatTable({{"a", "b c"}, {"\"", ""}}),
            "\xEF\xBB\xBF"
            "a,b c\r\n\"\"\"\",\"\"\r\n");
}

}  // namespace
}  // namespace pawnfield
