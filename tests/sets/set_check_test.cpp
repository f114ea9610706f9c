// What the check of a set says before the show, on sets made for it.
#include "sets/set_check.h"

#include <algorithm>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "presentation/test_picture.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

struct Asked {
  std::string Question, Answer;
};

class SetCheckTest : public ShowFixture, public testing::Test {
 protected:
  SetCheckTest() { Start(); }

  // "2 No answer" for each finding.
  std::vector<std::string> Check(const std::vector<Asked>& asked) {
    TriviaSet set;
    for (std::size_t i = 0; i < asked.size(); ++i) {
      set[i].QuestionText = asked[i].Question;
      set[i].AnswerText = asked[i].Answer;
    }
    std::vector<std::string> said;
    for (const SetFinding& finding : CheckSet(sim.text, set, static_cast<int>(asked.size()), RoomForWordings(show())))
      said.push_back(std::to_string(finding.Question) + " " + finding.Sentence);
    return said;
  }
};

using Said = std::vector<std::string>;

TEST_F(SetCheckTest, FindsNothingInAGoodSet) {
  EXPECT_EQ(Check({{"Who was first?", "Ann"}, {"C:\\m\\dog.jpg", "A dog"}, {std::string(20, 'w') + " was?", "Ben"}}),
            Said{});
}

TEST_F(SetCheckTest, NamesEachKindOfFaultWithItsQuestion) {
  EXPECT_EQ(Check({{"Who?", "Ann"}, {"When?", "  "}}), Said{"2 No answer"});
  EXPECT_EQ(Check({{"Who was first?", "Ann"}, {"When?", "1066"}, {" WHO  was first. ", "Ben"}}),
            Said{"3 The same as question 1"});
  EXPECT_EQ(Check({{"C:\\m\\dog.jpg", "Dog"}, {"c:\\M\\DOG.jpg", "Hound"}}), Said{"2 The same file as question 1"});
  sim.text.NoFontHas = "\x80";
  sim.text.FontLacks["Courier New"] = "\xDF";
  EXPECT_EQ(Check({{"5 \x80?", "5 \x80"},
                   {"Stra\xDF"
                    "e?",
                    "Stra\xDF"
                    "e"}}),
            (Said{"1 No font here has \x80", "1 Its answer: no font here has \x80",
                  "2 Courier New lacks \xDF, shown in another font"}));
}

// A word that can't be broken is what makes letters small; the size told is the one that the show will take.
TEST_F(SetCheckTest, ALongWordNeedsLettersAsSmallAsTheTestPicturesOrSmaller) {
  const std::string word(120, 'w');
  const Said said = Check({{word, "Ann"}});
  ASSERT_EQ(said.size(), 1U);
  EXPECT_NE(said[0].find("letters are of size"), std::string::npos) << said[0];
  TriviaSet set;
  set[0].QuestionText = word;
  set[1].QuestionText = "Who?";
  const WordingRoom room = RoomForWordings(show());
  EXPECT_LT(SmallestSizeUsed(sim.text, set, 1, room), SmallestLineSize(show()));
  std::swap(set[0], set[1]);
  EXPECT_EQ(SmallestSizeUsed(sim.text, set, 1, room), SmallestLineSize(show()));
}

TEST_F(SetCheckTest, TheGamesSetShowsWhatItsLoadFoundAboutItsFiles) {
  form().optGameType[2].Click();
  sim.files.Put("C:\\m\\broken.jpg", "no picture");
  WriteSet("Bad", {"Who?", "C:\\m\\broken.jpg"});
  sim.dialogs.ExpectMessage(
      "These questions' files can't be shown:\r\n\r\nQuestion 2: broken.jpg: no picture, or too large a one\r\n");
  ChooseSet("Bad");
  const std::vector<SetFinding> findings = CheckGameSet(show());
  const SetFinding broken{2, FindingKind::File, "broken.jpg: no picture, or too large a one"};
  EXPECT_NE(std::find(findings.begin(), findings.end(), broken), findings.end());
}

// A line of sixty letters, and no more, has room at the size.
TEST_F(SetCheckTest, TheTestPicturesLineIsAsLargeAsTheScreenIsWide) {
  const int size = SmallestLineSize(show());
  ShowTestPicture(show(), size);
  const Label& line = audience().lblTestLine;
  EXPECT_EQ(line.Caption->size(), static_cast<std::size_t>(kTestLineLetters));
  const double width = LinearTextMeasurer::Units(line.Caption) * 20.0 / 1000;
  EXPECT_LE(width * size, line.Width);
  EXPECT_GT(width * (size + 1), line.Width);
}

}  // namespace
}  // namespace pawnfield
