#include "platform/text.h"

#include <gtest/gtest.h>

#include "platform/escapes.h"
#include "platform/line_reader.h"

namespace pawnfield {
namespace {

TEST(Text, TrimRemovesBlanksAndNothingElse) {
  const std::pair<const char*, const char*> cases[] = {{"", ""},        {"   ", ""},      {"  a b  ", "a b"},
                                                       {"\ta ", "\ta"}, {"\r\n", "\r\n"}, {"\xA0x\xA0", "\xA0x\xA0"}};
  for (const auto& [text, trimmed] : cases) EXPECT_EQ(Trim(text), trimmed) << '[' << text << ']';
}

TEST(Text, CaseChangesLeaveTheUpperHalfOfTheCodePageAlone) {
  EXPECT_EQ(ToLower("AZ\xC9[@`{"), "az\xC9[@`{");
  EXPECT_EQ(ToUpper("az\xE9[@`{"), "AZ\xE9[@`{");
  EXPECT_EQ(ToCapitals("az\xE0\xFE\xF7\xDF\x9C\xFF\xA0["), "AZ\xC0\xDE\xF7\xDF\x8C\x9F\xA0[");
}

TEST(Text, ACutNeverFallsInsideAnEscapedLetter) {
  const std::string zolw = EscapeOf(0x17C) + "\xF3" + EscapeOf(0x142) + "w";
  EXPECT_EQ(CountLetters(zolw), 4U);
  const std::string cuts[] = {"", EscapeOf(0x17C), EscapeOf(0x17C) + "\xF3",
                              EscapeOf(0x17C) + "\xF3" + EscapeOf(0x142)};
  for (std::size_t count = 0; count < 4; ++count) EXPECT_EQ(FirstLetters(zolw, count), cuts[count]) << count;
  for (const std::size_t count : {4U, 5U, 100U}) EXPECT_EQ(FirstLetters(zolw, count), zolw) << count;
  EXPECT_EQ(PlainLetters(zolw), "z\xF3lw");
  // A device shows the nearest letter: of Greek, Hebrew, Vietnamese and Russian; a blank for a break, "?" for Chinese.
  const std::pair<char32_t, char> nearest[] = {{0x3A9, 'O'}, {0x3AC, 'a'}, {0x5E9, 's'},  {0x1EC7, 'e'},
                                               {0x416, 'J'}, {'\n', ' '},  {0x4E2D, '?'}, {0x2011, '-'}};
  for (const auto& [code, letter] : nearest) EXPECT_EQ(PlainLetters(EscapeOf(code)), std::string(1, letter));
  // A mark without its digits is a letter like others.
  for (const char* plain : {"\x7F",
                            "\x7F"
                            "00z",
                            "\x7F"
                            "0 zz",
                            "\x7Fzzzz"})
    EXPECT_EQ(PlainLetters(plain), plain);
  EXPECT_EQ(EscapeAt(EscapeOf(0x10FFFF), 0), char32_t{0x10FFFF});
}

TEST(Text, ATextFromRightToLeftKeepsToItselfAmongOthers) {
  const std::string alpha = EscapeOf(0x3B1);
  for (const std::string& text : {std::string("Ann"), alpha + "\xE9", std::string()}) EXPECT_EQ(Isolated(text), text);
  for (const char32_t letter : {U'\u05D0', U'\u0627', U'\uFE8D', U'\U0001E900'}) {
    const std::string name = alpha + EscapeOf(letter) + " 2";
    EXPECT_EQ(Isolated(name), EscapeOf(0x2068) + name + EscapeOf(0x2069)) << static_cast<unsigned>(letter);
    EXPECT_EQ(WithoutIsolation(Isolated(name) + " +30 ms"), name + " +30 ms");
  }
}

TEST(Text, LettersBeyondTheCodePageHaveCapitalsToo) {
  const std::pair<char32_t, char32_t> cases[] = {{0x142, 0x141}, {0x17C, 0x17B}, {0x11B, 0x11A}, {0x131, U'I'},
                                                 {0x3AC, 0x386}, {0x3C9, 0x3A9}, {0x3C2, 0x3A3}, {0x436, 0x416},
                                                 {0x451, 0x401}, {0x141, 0x141}, {0x416, 0x416}, {0x65E5, 0x65E5}};
  for (const auto& [small, capital] : cases) {
    EXPECT_EQ(ToCapitals("a" + EscapeOf(small)), "A" + EscapeOf(capital)) << std::hex << static_cast<unsigned>(small);
  }
}

TEST(Text, PathPartsSplitAtTheLastBackslashAndTheFirstDot) {
  struct Case {
    const char* path;
    const char* folder;
    const char* name;
    const char* stem;
  };
  const Case cases[] = {{"C:\\Shows\\a.b.txt", "C:\\Shows\\", "a.b.txt", "C:\\Shows\\a"},
                        {"C:\\Shows\\", "C:\\Shows\\", "", "C:\\Shows\\"},
                        {"a.txt", "", "", "a"},
                        {".txt", "", "", ""}};
  for (const Case& c : cases) {
    EXPECT_EQ(ExtractFolder(c.path) + "|" + ExtractFileName(c.path) + "|" + StripExtension(c.path),
              c.folder + std::string("|") + c.name + "|" + c.stem);
  }
}

TEST(Text, TheNumberTestTakesWholeNumbersTextsOnly) {
  const std::pair<const char*, double> numbers[] = {{"1942", 1942}, {" 12 ", 12},  {"+5", 5},     {"-.5", -0.5},
                                                    {"12.", 12},    {"1e3", 1000}, {"1E-2", 0.01}};
  for (const auto& [text, number] : numbers) EXPECT_EQ(ParseNumber(text), number) << '[' << text << ']';
  for (const char* text : {"", " ", ".", "-", "1 2", "1e", "e5", "0x10", "inf", "nan", "+-1", "1,5", "1e999"}) {
    EXPECT_EQ(ParseNumber(text), std::nullopt) << '[' << text << ']';
  }
}

TEST(Text, ALeadingNumberStopsWhereItEnds) {
  const std::pair<const char*, double> cases[] = {
      {"12pt", 12}, {" 10.5 pt", 10.5}, {"1e", 1}, {"2e3x", 2000}, {"pt12", 0}, {"", 0}, {"-3-3", -3}, {"+7", 7}};
  for (const auto& [text, number] : cases) EXPECT_EQ(LeadingNumber(text), number) << '[' << text << ']';
}

TEST(Text, HalvesRoundToTheEvenNeighbour) {
  const std::pair<double, long long> cases[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},   {-0.5, 0},  {-1.5, -2},
                                                {-2.5, -2}, {10.4, 10}, {10.6, 11}, {-3.2, -3}, {49.5, 50}};
  for (const auto& [value, rounded] : cases) EXPECT_EQ(RoundHalfEven(value), rounded) << value;
}

TEST(Text, BooleansAreWordsOrNumbers) {
  const std::pair<const char*, std::optional<bool>> cases[] = {
      {"True", true}, {"FALSE", false},      {"-1", true},      {"0", false},
      {"0.0", false}, {"yes", std::nullopt}, {"", std::nullopt}};
  for (const auto& [text, value] : cases) EXPECT_EQ(ParseBoolean(text), value) << '[' << text << ']';
}

TEST(Text, NumbersAreWrittenAsTheyAreRead) {
  const std::pair<double, const char*> cases[] = {{0, "0"},           {-0.0, "0"}, {16777215, "16777215"},
                                                  {100000, "100000"}, {-5, "-5"},  {0.25, "0.25"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(NumberText(value), text);
  EXPECT_EQ(ParseNumber(NumberText(1e20)), 1e20);
}

TEST(LineReader, EndsLinesAtCarriageReturnsOnly) {
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"", {}},
      {"a", {"a"}},
      {"a\r\nb\r\n", {"a", "b"}},
      {"a\rb", {"a", "b"}},
      {"a\nb\r\nc", {"a\nb", "c"}},
      {"\r\r\n\r", {"", "", ""}},
      {"a\r\n\nb", {"a", "\nb"}},
      {std::string("a\0b\r", 4), {std::string("a\0b", 3)}}};
  for (const auto& [bytes, lines] : cases) {
    LineReader reader(bytes);
    std::vector<std::string> read;
    while (const auto line = reader.Next()) read.emplace_back(*line);
    EXPECT_EQ(read, lines) << '[' << bytes << ']';
  }
}

}  // namespace
}  // namespace pawnfield
