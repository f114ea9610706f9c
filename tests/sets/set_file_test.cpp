#include "sets/set_file.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "forms/main_form.h"
#include "platform/large_file.h"
#include "sets/set_parser.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;

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
  EXPECT_TRUE(bytes.ends_with(std::string("\r\n\r\n\r\n") + kDefaultFormat + "\r\n"));
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

TEST(SetParser, TheKindOfAQuestionIsReportedByItsEnding) {
  for (const auto& [text, kind] : {std::pair{"D:\\a.JPG ", 'P'},
                                   {"a.bmp", 'P'},
                                   {"a.wav", 'S'},
                                   {"a.Mp3", 'S'},
                                   {"a.wma", 'S'},
                                   {"a.jpeg", 'T'},
                                   {"What is a .jpg?", 'T'},
                                   {"jpg", 'T'},
                                   {"", 'T'}}) {
    const QuestionKind told = KindOfQuestion(text);
    EXPECT_EQ(told == QuestionKind::Picture ? 'P' : told == QuestionKind::Sound ? 'S' : 'T', kind) << text;
  }
}

const std::string kSets = "C:\\Pawnfield\\Trivia Sets\\";
const std::string kPath = kSets + "quiz.txt";

class SetFile : public ShowFixture, public testing::Test {
 protected:
  bool LoadBytes(const std::string& bytes) {
    sim.files.Put(kPath, bytes);
    return LoadGameSet(show(), kPath);
  }
  // The first question, the count, and whether the headers rotate.
  std::string Loaded() {
    EXPECT_EQ(show().GameSet[0].QuestionType.empty(), show().NumGameQuestions == 0);
    return show().GameSet[0].QuestionText + " " + std::to_string(show().NumGameQuestions) +
           (headerTimer ? " headers" : "");
  }

  Property<bool>& headerTimer = form().tmrOptionalHeaders.Enabled;
};

TEST_F(SetFile, LoadingFillsTheSetAndClearsTheBoard) {
  show().state.Board[5][5] = 3;
  EXPECT_TRUE(LoadBytes("Q\r\nA\r\nP\r\n"));
  EXPECT_EQ(Loaded(), "Q 1 headers");
  EXPECT_EQ(show().state.LoadedSetPath + show().state.SetFolder, kPath + kSets);
  EXPECT_EQ(show().state.Board[5][5], 0);
  LoadBytes("Q\r\nA\r\nP\r\n");
  headerTimer = false;
  EXPECT_FALSE(LoadGameSet(show(), "   ")) << "a blank path empties the set without a word";
  EXPECT_EQ(Loaded(), " 0 headers");

  sim.files.Put(kSets + "huge.txt", std::string(kLargestRead + 1, 'q'));
  for (const auto& [name, message] : {std::pair{"gone.txt", "Procedure: LoadGameSet"},
                                      {"huge.txt", "The file has 4.1 MB, and 4 MB are the limit."}}) {
    LoadBytes("Q\r\nA\r\nP\r\n");
    sim.dialogs.ExpectMessage(message);
    EXPECT_FALSE(LoadGameSet(show(), kSets + name));
    EXPECT_EQ(Loaded() + show().state.LoadedSetPath, "Q 1 headers" + kPath)
        << "a file that can't be read leaves the set as it was";
  }
  EXPECT_TRUE(LoadBytes(std::string(kLargestRead, 'q')));
  EXPECT_THAT(sim.dialogs.Boxes().at(0).Text,
              testing::AllOf(testing::HasSubstr("Error Number: 53\r\n"), testing::HasSubstr("gone.txt")));
}

TEST_F(SetFile, TheStatusBarTellsWhatIsWrongWithAFilesBytes) {
  const std::string lineEnds = "No carriage returns found in this set: save it with CR LF line ends.";
  const std::string encoding = "This set is saved as UTF-8: save it as Windows-1252 (ANSI) text.";
  const std::pair<std::string, std::string> cases[] = {{"Q\nA\nP\n", lineEnds},
                                                       {"\xEF\xBB\xBFQ\r\nA\r\nP\r\n", encoding},
                                                       {"Caf\xC3\xA9?\r\nA\r\nP\r\n", encoding},
                                                       {"Q\r\nA\xF0\x9F\x8E\xB2\r\nP\r\n", encoding},
                                                       {"Caf\xE9?\r\nA\r\nP\r\n", ""},
                                                       {"Caf\xE9 \xC3\xA9\r\nA\r\nP\r\n", ""},
                                                       {"Q\r\nA\r\nP\r\n\xC3", ""},
                                                       {"Q", ""}};
  for (const auto& [bytes, advice] : cases) {
    LoadBytes(bytes);
    EXPECT_EQ(form().lblStatusBar.Caption.Get(), advice) << bytes;
  }
  form().lblStatusBar.Caption = "System Initialized";
  LoadBytes("Q\r\nA\r\nP\r\n");
  EXPECT_EQ(form().lblStatusBar.Caption.Get(), "System Initialized");
}

TEST_F(SetFile, TheListOffersTheFolderByNameBehindItsFirstEntry) {
  for (const char* name : {"zoo.txt", "Animals.TXT", "Round 1.txt", "Round 1.5.txt", "notes.doc"}) {
    sim.files.Put(kSets + name, std::string(name) + "\r\nA\r\nT\r\n");
  }
  FillSetList(show());
  EXPECT_THAT(form().cboList.List.Get(), ElementsAre("Select Game Set", "Animals", "Round 1", "Round 1.5", "zoo"));
  EXPECT_EQ(form().cboList.ListIndex, 0);
  Start();
  for (const char* name : {"Animals", "Round 1", "Round 1.5", "zoo"}) {
    ChooseSet(name);
    EXPECT_EQ(SetName(show().GameSet[0].QuestionText), name);
  }
}

TEST_F(SetFile, SavingNormalisesThePathAndReadsBackOrLeavesTheOldFileWhole) {
  const std::pair<std::string, std::string> cases[] = {{"  " + kSets + "new  ", kSets + "new.txt"},
                                                       {kSets + "nul" + std::string(2, '\0'), kSets + "nul.txt"},
                                                       {kSets + "x.TXT", kSets + "x.TXT"},
                                                       {kSets + "x.text", kSets + "x.text.txt"}};
  for (const auto& [given, normal] : cases) {
    TriviaSet set;
    set[1].QuestionText = "Moved up";
    std::string path = given;
    EXPECT_TRUE(SaveSetFile(show(), set, path));
    EXPECT_EQ(path, normal);
    EXPECT_TRUE(LoadGameSet(show(), normal));
    EXPECT_EQ(show().NumGameQuestions, 1);
  }
  const std::pair<int, const char*> failures[] = {
      {kErrorPathAccess,
       "Unable to save to the specified directory.\r\nYou may not have permission to write to this file/directory.\r\n"
       "Contact your system administrator or save in \"My Documents\".\r\n"
       "Contact Pawnfield support at support@pawnfield.invalid"},
      {kErrorDiskFull, "Procedure: SaveFile"}};
  for (const auto& [number, message] : failures) {
    sim.files.Put(kPath, "Old\r\nA\r\nP\r\n");
    sim.files.FailNextWrite(number);
    sim.dialogs.ExpectMessage(message);
    TriviaSet set;
    std::string path = kPath;
    EXPECT_FALSE(SaveSetFile(show(), set, path));
    EXPECT_EQ(sim.files.Read(kPath), "Old\r\nA\r\nP\r\n");
    EXPECT_EQ(sim.dialogs.Boxes().back().Title, "Pawnfield");
  }
}

}  // namespace
}  // namespace pawnfield
