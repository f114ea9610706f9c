#include <gtest/gtest.h>

#include <algorithm>

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
  TriviaSet set;
  ParseSet(bytes, set);
  return set[0];
}

std::string Text(const TriviaQuestion& question) {
  return question.QuestionType + "|" + question.QuestionText + "|" + question.FontName + "|" + question.FontSize +
         (question.FontBold ? " bold" : "") + (question.FontItalic ? " italic" : "") + "|" + question.FontColor + "|" +
         question.AnswerText;
}

TEST(SetParser, ReadsFormatLinesWithAllTheirEdges) {
  const std::string rest = "|Q|Courier New|28 bold italic|16777215|A";
  const std::pair<std::string, std::string> cases[] = {
      {"T#Arial#36#False#True#255#", "T|Q|Arial|36 italic|255|A"},
      {"T#Arial#8#True#True#5#", "T|Q|Arial|28 bold italic|16777215|A"},
      {"T#A#36#False#False#255#", "T|Q||36|16777215|A"},
      {"T#1942#36#False#False#255#", "T|Q||36|1942|A"},
      {"T#255#", "T|Q||28 bold italic|255|A"},
      {"T#255", "T|Q||28 bold italic|16777215|A"},
      {"T", "T|Q||28 bold italic|16777215|A"},
      {"T#Arial#10.5#True#True#255#", "T|Q|Arial|10 bold italic|255|A"},
      {"T#Arial#11.5#True#True#255#", "T|Q|Arial|12 bold italic|255|A"},
      {"T#Arial#big#True#True#255#", "T|Q|Arial|0 bold italic|255|A"},
      {"T#Arial#99999#True#True#255#", "T|Q|Arial|28 bold italic|255|A"},
      {"T#Arial#36#no#00#255#", "T|Q|Arial|36 bold|255|A"},
      {"T#Arial#36#0#-1#255#", "T|Q|Arial|36 bold italic|255|A"},
      {"T#Arial#36#True#True#red#", "T|Q|Arial|36 bold italic|red|A"},
      {"T#Arial#36#True#True#255", "T|Q|Arial|36 bold italic|16777215|A"},
      {"Text#Arial#36#True#True#255#  ", "T|Q|Arial|36 bold italic|255|A"},
      {"P", "P" + rest},
      {"P#Arial#36#False#False#255#", "P#Arial#36#False#False#255#" + rest},
      {" T#Arial#36#False#False#255#", " T#Arial#36#False#False#255#" + rest},
      {"t#Arial#36#False#False#255#", "t#Arial#36#False#False#255#" + rest}};
  for (const auto& [line, read] : cases) EXPECT_EQ(Text(FirstOf("Q\r\nA\r\n" + line + "\r\n")), read) << line;
  EXPECT_EQ(Text(FirstOf(std::string(300, 'q') + "\r\n" + std::string(200, 'a') + "\r\nP\r\n")),
            "P|" + std::string(256, 'q') + "|Courier New|28 bold italic|16777215|" + std::string(174, 'a'));
  EXPECT_EQ(Text(FirstOf("Half a record")), "|Half a record|Courier New|28 bold italic|16777215|");
}

TEST(SetParser, CountsRecordsUpToTheFirstBlankQuestion) {
  const std::pair<std::string, int> cases[] = {{"", 0},
                                               {"\r\n", 0},
                                               {Records(2) + "   \r\nlost\r\nT\r\n" + Records(2), 2},
                                               {Records(1) + "\t\r\nA\r\nT\r\n", 2},
                                               {Records(1) + "Unfinished", 2},
                                               {Records(1) + "Unfinished\r\nAnswer", 2},
                                               {Records(100), 100},
                                               {Records(101), 101},
                                               {Records(150), 101},
                                               {"Q\rA\rP\rQ\rA\rP\r", 2},
                                               {"Q\nA\nP\nQ\nA\nP\n", 1},
                                               {std::string(256, ' ') + "beyond the cut\r\nA\r\nT\r\n", 0}};
  TriviaSet set;
  for (const auto& [bytes, count] : cases) {
    EXPECT_EQ(ParseSet(bytes, set), count) << bytes.substr(0, 60);
    EXPECT_EQ(set[100] == TriviaQuestion(), count < 101);
  }
}

TEST(SetParser, WritesAllRecordsAsThreeLinesEachByTypeFontAndColour) {
  TriviaSet set, again;
  const std::string three = Records(3);
  ParseSet(three, set);
  set[3] = {"T", "Q \xE9\x80\t## a.jpg 1", "\xC9t\xE9", "36", true, false, "255", "T#Arial#36#"};
  set[4].QuestionType = "S";
  set[4].QuestionText = "C:\\a.wav";
  const std::string bytes = FormatSet(set);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 303);
  EXPECT_TRUE(bytes.starts_with(three));
  EXPECT_TRUE(bytes.ends_with(std::string("\r\n\r\n\r\n") + kDefaultFormat + "\r\n"))
      << bytes.substr(bytes.size() - 80);
  EXPECT_EQ(ParseSet(bytes, again), 5);
  EXPECT_EQ(again, set);
  const std::tuple<const char*, const char*, const char*, const char*> lines[] = {
      {"T", "Arial", "255", "T#Arial#36#False#True#255#"},
      {"", "Arial", "255", "T#Arial#36#False#True#255#"},
      {" Text ", "Arial", "255", "T#Arial#36#False#True#255#"},
      {"T", " ", "255", "T#255#"},
      {"", "", "255", "255#"},
      {"T", "Arial", " ", "T#Arial#36#False#True#"},
      {"T", "", "", "T"},
      {"", "", "", ""},
      {" P#Arial#", "Arial", "255", "P"},
      {"S", "Arial", "255", "S"}};
  for (const auto& [type, font, color, line] : lines) {
    set[0] = {type, "Q", font, "36", false, true, color, "A"};
    EXPECT_TRUE(FormatSet(set).starts_with(std::string("Q\r\nA\r\n") + line + "\r\n")) << type << font << color;
  }
}

TEST(SetParser, CompactionMovesBlanksOneStepInOnePass) {
  // Letters are questions, "-" is a blank record, "a" has an answer only.
  for (const auto& [before, after] : {std::pair<std::string, std::string>{"X-Y", "XY-"},
                                      {"X--Y", "X-Y-"},
                                      {"-X-Y", "X-Y-"},
                                      {"-XY-Z", "XY-Z-"},
                                      {"X---Y", "X--Y-"},
                                      {"XaY", "XaY"},
                                      {"XYZ", "XYZ"}}) {
    TriviaSet set;
    set[100].QuestionText = "last";
    for (std::size_t i = 0; i < before.size(); ++i) {
      set[i].FontSize = before[i];
      if (before[i] != '-') (before[i] == 'a' ? set[i].AnswerText : set[i].QuestionText) = before[i];
    }
    CompactSet(set);
    std::string result;
    for (std::size_t i = 0; i < before.size(); ++i) {
      result += set[i].QuestionText + set[i].AnswerText == "" ? "-" : set[i].FontSize;
    }
    EXPECT_EQ(result, after) << before;
    EXPECT_EQ(set[100].QuestionText, "last");
  }
}

TEST(SetParser, TheKindOfAQuestionIsToldByItsEnding) {
  for (const char* text : {"D:\\a.JPG ", "a.bmp", ".jpg"})
    EXPECT_EQ(KindOfQuestion(text), QuestionKind::Picture) << text;
  for (const char* text : {"a.wav", "a.Mp3", "a.wma"}) EXPECT_EQ(KindOfQuestion(text), QuestionKind::Sound) << text;
  for (const char* text : {"a.jpeg", "What is a .jpg?", "jpg", ""}) {
    EXPECT_EQ(KindOfQuestion(text), QuestionKind::Text) << text;
  }
}

}  // namespace
}  // namespace pawnfield
