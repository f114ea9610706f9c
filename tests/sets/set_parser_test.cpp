#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "sets/set_file.h"

namespace pawnfield {
namespace {

constexpr const char* kDefaultFormat = "T#Courier New#28#True#True#16777215#";

std::string Records(int count) {
  std::string bytes;
  for (int i = 0; i < count; ++i) bytes += "Question " + std::to_string(i) + "\r\nAnswer\r\n" + kDefaultFormat + "\r\n";
  return bytes;
}

TriviaQuestion FirstOf(const std::string& bytes) {
  auto set = std::make_unique<TriviaSet>();
  ParseSet(bytes, *set);
  return (*set)[0];
}

TriviaQuestion WithFormat(const std::string& line) { return FirstOf("Q\r\nA\r\n" + line + "\r\n"); }

// The record's format line as it is written.
std::string FormatOf(const TriviaQuestion& question) {
  auto set = std::make_unique<TriviaSet>();
  (*set)[0] = question;
  const std::string bytes = FormatSet(*set);
  const std::size_t start = bytes.find("\r\n", bytes.find("\r\n") + 2) + 2;
  return bytes.substr(start, bytes.find("\r\n", start) - start);
}

struct Fields {
  const char* line;
  std::string type, name, size;
  bool bold, italic;
  std::string color;
};

TEST(SetParser, ReadsFormatLinesWithAllTheirEdges) {
  const Fields cases[] = {
      {"T#Arial#36#False#True#255#", "T", "Arial", "36", false, true, "255"},
      {"T#Arial#8#True#True#5#", "T", "Arial", "28", true, true, "16777215"},
      {"T#A#36#False#False#255#", "T", "", "36", false, false, "16777215"},
      {"T#1942#36#False#False#255#", "T", "", "36", false, false, "1942"},
      {"T#255#", "T", "", "28", true, true, "255"},
      {"T#255", "T", "", "28", true, true, "16777215"},
      {"T", "T", "", "28", true, true, "16777215"},
      {"T#Arial#10.5#True#True#255#", "T", "Arial", "10", true, true, "255"},
      {"T#Arial#11.5#True#True#255#", "T", "Arial", "12", true, true, "255"},
      {"T#Arial#big#True#True#255#", "T", "Arial", "0", true, true, "255"},
      {"T#Arial#99999#True#True#255#", "T", "Arial", "28", true, true, "255"},
      {"T#Arial#36#no#00#255#", "T", "Arial", "36", true, false, "255"},
      {"T#Arial#36#0#-1#255#", "T", "Arial", "36", true, true, "255"},
      {"T#Arial#36#True#True#red#", "T", "Arial", "36", true, true, "red"},
      {"T#Arial#36#True#True#255", "T", "Arial", "36", true, true, "16777215"},
      {"Text#Arial#36#True#True#255#  ", "T", "Arial", "36", true, true, "255"},
      {"P", "P", "Courier New", "28", true, true, "16777215"},
      {"P#Arial#36#False#False#255#", "P#Arial#36#False#False#255#", "Courier New", "28", true, true, "16777215"},
      {" T#Arial#36#False#False#255#", " T#Arial#36#False#False#255#", "Courier New", "28", true, true, "16777215"},
      {"t#Arial#36#False#False#255#", "t#Arial#36#False#False#255#", "Courier New", "28", true, true, "16777215"},
  };
  for (const Fields& c : cases) {
    const TriviaQuestion read = WithFormat(c.line);
    const TriviaQuestion wanted{c.type, "Q", c.name, c.size, c.bold, c.italic, c.color, "A"};
    EXPECT_EQ(read, wanted) << c.line << " gave " << read.QuestionType << '|' << read.FontName << '|' << read.FontSize
                            << '|' << read.FontBold << read.FontItalic << '|' << read.FontColor;
  }
}

TEST(SetParser, CountsRecordsUpToTheFirstBlankQuestion) {
  const std::pair<std::string, int> cases[] = {
      {"", 0},
      {"\r\n", 0},
      {Records(3), 3},
      {Records(2) + "   \r\nlost\r\nT\r\n" + Records(2), 2},
      {Records(1) + "\t\r\nA\r\nT\r\n", 2},
      {Records(1) + "Unfinished", 2},
      {Records(1) + "Unfinished\r\nAnswer", 2},
      {Records(100), 100},
      {Records(101), 101},
      {Records(150), 101},
      {"Q\rA\rP\rQ\rA\rP\r", 2},
      {"Q\nA\nP\nQ\nA\nP\n", 1},
      {std::string(256, ' ') + "beyond the cut\r\nA\r\nT\r\n", 0},
  };
  for (const auto& [bytes, count] : cases) {
    auto set = std::make_unique<TriviaSet>();
    EXPECT_EQ(ParseSet(bytes, *set), count) << bytes.substr(0, 60);
  }
}

TEST(SetParser, CutsLongLinesAndKeepsResetValuesBehindTheEnd) {
  TriviaQuestion read = FirstOf(std::string(300, 'q') + "\r\n" + std::string(200, 'a') + "\r\nP\r\n");
  EXPECT_EQ(read.QuestionText, std::string(256, 'q'));
  EXPECT_EQ(read.AnswerText, std::string(174, 'a'));
  EXPECT_EQ(read.QuestionType, "P");

  read = FirstOf("Half a record");
  TriviaQuestion wanted;
  wanted.QuestionText = "Half a record";
  EXPECT_EQ(read, wanted);

  auto set = std::make_unique<TriviaSet>();
  ParseSet(Records(5), *set);
  EXPECT_EQ(ParseSet(Records(2), *set), 2);
  EXPECT_EQ((*set)[2], TriviaQuestion());
}

TEST(SetParser, WritesAllRecordsAsThreeLinesEach) {
  auto set = std::make_unique<TriviaSet>();
  const std::string three = Records(3);
  ParseSet(three, *set);
  const std::string bytes = FormatSet(*set);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 303);
  EXPECT_TRUE(bytes.starts_with(three + "\r\n\r\n" + kDefaultFormat + "\r\n"));
  auto again = std::make_unique<TriviaSet>();
  EXPECT_EQ(ParseSet(bytes, *again), 3);
  EXPECT_EQ(*again, *set);
}

TEST(SetParser, WritesTheFormatLineByTypeFontAndColour) {
  const std::pair<TriviaQuestion, const char*> cases[] = {
      {{"T", "Q", "Arial", "36", false, true, "255", ""}, "T#Arial#36#False#True#255#"},
      {{"", "Q", "Arial", "36", true, true, "255", ""}, "T#Arial#36#True#True#255#"},
      {{" Text ", "Q", "Arial", "36", true, true, "255", ""}, "T#Arial#36#True#True#255#"},
      {{"T", "Q", " ", "36", true, true, "255", ""}, "T#255#"},
      {{"", "Q", "", "36", true, true, "255", ""}, "255#"},
      {{"T", "Q", "Arial", "36", true, true, " ", ""}, "T#Arial#36#True#True#"},
      {{"T", "Q", "", "36", true, true, "", ""}, "T"},
      {{"", "Q", "", "36", true, true, "", ""}, ""},
      {{" P#Arial#", "Q", "Arial", "36", true, true, "255", ""}, "P"},
      {{"S", "Q", "Arial", "36", true, true, "255", ""}, "S"},
  };
  for (const auto& [question, line] : cases) EXPECT_EQ(FormatOf(question), line);
}

TEST(SetParser, CompactionMovesBlanksOneStepInOnePass) {
  // Letters are questions, "-" is a blank record, "a" has an answer only.
  const std::pair<std::string, std::string> cases[] = {{"X-Y", "XY-"},     {"X--Y", "X-Y-"},   {"-X-Y", "X-Y-"},
                                                       {"-XY-Z", "XY-Z-"}, {"X---Y", "X--Y-"}, {"XaY", "XaY"},
                                                       {"XYZ", "XYZ"}};
  for (const auto& [before, after] : cases) {
    auto set = std::make_unique<TriviaSet>();
    for (std::size_t i = 0; i < before.size(); ++i) {
      TriviaQuestion& question = (*set)[i];
      question.FontSize = std::string(2, before[i]);
      if (before[i] == 'a') question.AnswerText = "a";
      if (before[i] >= 'A' && before[i] <= 'Z') question.QuestionText = before[i];
    }
    CompactSet(*set);
    std::string result;
    for (std::size_t i = 0; i < before.size(); ++i) {
      const TriviaQuestion& question = (*set)[i];
      const std::string mark = question.QuestionText + question.AnswerText;
      result += mark.empty() ? "-" : mark;
      if (mark.empty()) continue;
      EXPECT_EQ(question.FontSize, mark + mark) << "the whole record moves";
    }
    EXPECT_EQ(result, after) << before;
  }
}

TEST(SetParser, CompactionNeverTouchesTheLastRecord) {
  auto set = std::make_unique<TriviaSet>();
  (*set)[100].QuestionText = "last";
  CompactSet(*set);
  EXPECT_EQ((*set)[100].QuestionText, "last");
}

TEST(SetParser, TheKindOfAQuestionIsToldByItsEnding) {
  const std::pair<const char*, QuestionKind> cases[] = {
      {"D:\\a.JPG ", QuestionKind::Picture}, {"a.bmp", QuestionKind::Picture},
      {"a.wav", QuestionKind::Sound},        {"a.Mp3", QuestionKind::Sound},
      {"a.wma", QuestionKind::Sound},        {".jpg", QuestionKind::Picture},
      {"a.jpeg", QuestionKind::Text},        {"What is a .jpg?", QuestionKind::Text},
      {"jpg", QuestionKind::Text},           {"", QuestionKind::Text}};
  for (const auto& [text, kind] : cases) EXPECT_EQ(KindOfQuestion(text), kind) << text;
}

}  // namespace
}  // namespace pawnfield
