#include "presentation/text_fitting.h"

#include <gtest/gtest.h>

#include <random>

#include "engine/show.h"
#include "platform/sim/sim_platform.h"

namespace pawnfield {
namespace {

// As LinearTextMeasurer, with pairs of letters drawn together and with a count of the measurements.
class KerningMeasurer : public TextMeasurer {
 public:
  TextSize Measure(const Font& font, const std::string& text, double wrapWidth) const override {
    ++count;
    const double unit = font.Size * 20 / 1000;
    double line = 0, widest = 0, word = 0;
    int lines = 1;
    char last = ' ';
    const auto endWord = [&] {
      if (word == 0) return;
      widest = std::max(widest, word);
      if (line > 0 && line + 300 + word > wrapWidth / unit) {
        ++lines;
        line = word;
      } else {
        line += (line > 0 ? 300 : 0) + word;
      }
      word = 0;
    };
    for (const char c : text) {
      if (c == ' ') {
        endWord();
      } else {
        word += 400 + 37 * (c % 13) - (last != ' ' ? (c * 7 + last * 3) % 90 : 0);
      }
      last = c;
    }
    endWord();
    return {std::max(wrapWidth, widest * unit), lines * 1.31 * font.Size * 20};
  }
  mutable int count = 0;
};

int PlainSearch(const TextMeasurer& measurer, Font font, const std::string& text, const FitLimits& limits) {
  int size = limits.FirstSize;
  for (; size >= 6; --size) {
    font.Size = size;
    const TextSize measured = measurer.Measure(font, text, limits.WrapWidth);
    if (measured.Height < limits.MaxHeight && measured.Width < limits.MaxWidth) break;
  }
  return size;
}

std::string RandomText(std::mt19937& random, std::size_t longest) {
  std::string text(random() % longest + 1, ' ');
  const auto wordLength = random() % 20 + 1;
  for (char& c : text) c = random() % (wordLength + 1) == 0 ? ' ' : static_cast<char>('A' + random() % 58);
  return text;
}

TEST(FittingSize, EqualsThePlainSearchForEveryText) {
  std::mt19937 random(20240229);
  const LinearTextMeasurer plain;
  const KerningMeasurer kerning;
  const FitLimits boxes[] = {{80, 6562, 6612, 4976},
                             {120, 14092, 14142, 10268},
                             {80, 3000, 3100, 900},
                             {80, 500, 550, 600},
                             {80, 900, 900, 80}};
  for (int i = 0; i < 400; ++i) {
    const FitLimits& box = boxes[random() % std::size(boxes)];
    const std::string text = RandomText(random, i % 2 == 0 ? 256 : 40);
    ASSERT_EQ(FittingSize(plain, {}, text, box), PlainSearch(plain, {}, text, box)) << text;
    ASSERT_EQ(FittingSize(kerning, {}, text, box), PlainSearch(kerning, {}, text, box)) << text;
  }
}

TEST(FittingSize, FindsALongTextsSizeWithAFifthOfTheMeasurements) {
  std::mt19937 random(7);
  for (const FitLimits& box : {FitLimits{80, 6562, 6612, 4976}, FitLimits{120, 14092, 14142, 10268}}) {
    std::string text;
    while (text.size() < 256) text += std::string(random() % 8 + 1, 'n') + ' ';
    text.resize(256);
    const KerningMeasurer quick, plain;
    FittingSize(quick, {}, text, box);
    PlainSearch(plain, {}, text, box);
    EXPECT_LE(quick.count * 5, plain.count);
  }
}

TEST(FittingSize, EndsBelowTheSmallestSizeWhenNothingFits) {
  const LinearTextMeasurer measurer;
  const FitLimits tiny{80, 500, 550, 100};
  EXPECT_EQ(FittingSize(measurer, {}, "A", tiny), 5);
  EXPECT_EQ(FittingSize(measurer, {}, "", tiny), 80);
  // A line is 24 twips a point high, and the height must be under the limit: 6 points make 144.
  EXPECT_EQ(FittingSize(measurer, {}, "A", {80, 500, 550, 144}), 5);
  EXPECT_EQ(FittingSize(measurer, {}, "A", {80, 500, 550, 145}), 6);
  // 30 points of "WWW" make 1530 twips of width.
  EXPECT_EQ(FittingSize(measurer, {}, "WWW", {80, 1000, 1530, 9000}), 29);
  EXPECT_EQ(FittingSize(measurer, {}, "WWW", {80, 1000, 1531, 9000}), 30);
}

class Fitting : public testing::Test {
 protected:
  Fitting() {
    show.frmMain.picQuestion.MoveTo(0, 0, 7210, 5640);
    show.frmFSMain.picQuestion.MoveTo(0, 0, 15360, 11520);
    show.frmFSMain.picWinner.MoveTo(0, 0, 15360, 11520);
  }
  SimPlatform machine;
  Show show{machine.platform};
};

TEST_F(Fitting, AShortQuestionTakesTheFirstSizeOfItsScreenAndIsCentred) {
  struct Case {
    ControlArray<Label, 5>& labels;
    double size, left, width, top, height;
  };
  // Heights are one line of 24 twips a point; margins are 3.8% and 5%, in whole twips.
  const Case cases[] = {{show.frmMain.lblQuestion, 80, 274, 6662, 1860, 1920},
                        {show.frmFSMain.lblQuestion, 120, 584, 14192, 4320, 2880}};
  for (const Case& c : cases) {
    const Label& label = c.labels[0];
    SetQuestion(show, "Who?", c.labels);
    EXPECT_EQ(label.Font->Size, c.size);
    EXPECT_EQ(label.Caption.Get(), "Who?");
    EXPECT_EQ(label.ForeColor, kWhite);
    EXPECT_DOUBLE_EQ(label.Left, c.left);
    EXPECT_DOUBLE_EQ(label.Width, c.width);
    EXPECT_DOUBLE_EQ(label.Top, c.top);
    EXPECT_DOUBLE_EQ(label.Height, c.height);
    EXPECT_EQ(c.labels[4].Caption.Get(), "Who?");
    EXPECT_TRUE(c.labels[4].Visible);
  }
  EXPECT_EQ(show.frmMain.lblQuestion[0].Font->Name, "Courier New") << "only the size of the font changes";
}

TEST_F(Fitting, ALongQuestionOnTheAudienceScreenIsFittedToItsOwnBox) {
  const std::string text(30, 'W');
  SetQuestion(show, text, show.frmMain.lblQuestion);
  SetQuestion(show, text, show.frmFSMain.lblQuestion);
  // 30 letters of 17 twips a point: 510 a point against 6612 and 14142.
  EXPECT_EQ(show.frmMain.lblQuestion[0].Font->Size, 12);
  EXPECT_EQ(show.frmFSMain.lblQuestion[0].Font->Size, 27);
}

TEST_F(Fitting, TheWinnerIsGreenWithTenPercentMarginsAndNoOutline) {
  SetWinner(show, "ANN WINS", show.frmFSMain.lblWinner);
  const Label& label = show.frmFSMain.lblWinner;
  EXPECT_EQ(label.ForeColor, kGreen);
  EXPECT_EQ(label.Font->Size, 120);
  EXPECT_DOUBLE_EQ(label.Left, 1536);
  EXPECT_DOUBLE_EQ(label.Width, 12288);
  EXPECT_DOUBLE_EQ(label.Top, 1152 + (9216 - label.Height) / 2);
  SetWinner(show, "ANN WINS", show.frmMain.lblWinner);
  EXPECT_LE(show.frmMain.lblWinner.Font->Size, 80);
}

TEST_F(Fitting, TheAnswersBoxStays) {
  Label& answer = show.frmMain.lblAnswer;
  answer.MoveTo(10, 20, 3000, 480);
  SetAnswer(show, "Paris");
  EXPECT_EQ(answer.Font->Size, 19) << "20 points make a line of 480, which is not under the height";
  EXPECT_EQ(answer.Caption.Get(), "Paris");
  EXPECT_EQ(answer.Left, 10);
  EXPECT_EQ(answer.Height, 480);
}

TEST_F(Fitting, TheOutlineGrowsWithTheLettersAndStepsDownAtFifty) {
  const std::pair<double, int> cases[] = {{6, -4},  {30, 20}, {39, 29}, {40, 40},
                                          {45, 46}, {49, 51}, {50, 15}, {80, 30}};
  ControlArray<Label, 5>& labels = show.frmMain.lblQuestion;
  for (const auto& [size, edge] : cases) {
    labels[0].Font = Font{"Arial", size, true, false};
    labels[0].MoveTo(1000, 500, 300, 200);
    OutlineLabel(labels, OutlineMode::Outline, -10, "", nullptr);
    const std::pair<int, int> signs[] = {{0, 0}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};
    for (std::size_t i = 1; i < 5; ++i) {
      EXPECT_EQ(labels[i].Left, 1000 + signs[i].first * edge) << size;
      EXPECT_EQ(labels[i].Top, 500 + signs[i].second * edge) << size;
      EXPECT_EQ(labels[i].Width, 300);
      EXPECT_EQ(labels[i].Font->Size, size);
      EXPECT_LT(labels[i].ZOrder, labels[0].ZOrder);
    }
  }
}

TEST_F(Fitting, OutlineModesShowWhatTheySay) {
  ControlArray<Label, 5>& labels = show.frmMain.lblQuestion;
  labels[0].Visible = false;
  OutlineLabel(labels, OutlineMode::Outline, 0, "first", nullptr);
  EXPECT_EQ(labels[3].ForeColor, kBlack);
  EXPECT_TRUE(labels[0].Visible);
  EXPECT_EQ(labels[3].Caption.Get(), "first");

  labels[0].ForeColor = kBlack;
  OutlineLabel(labels, OutlineMode::Outline, 0, "", nullptr);
  EXPECT_EQ(labels[3].ForeColor, kWhite);
  EXPECT_EQ(labels[0].Caption.Get(), "first");

  labels[0].Width = 1210;
  OutlineLabel(labels, OutlineMode::Plain, 0, "plain", &show.frmMain.picQuestion);
  EXPECT_EQ(labels[0].Left, 3000);
  EXPECT_EQ(labels[0].Caption.Get(), "plain");
  EXPECT_FALSE(labels[1].Visible || labels[4].Visible);

  OutlineLabel(labels, OutlineMode::Clear, 0, "gone", nullptr);
  EXPECT_EQ(labels[0].Caption.Get(), "");
}

}  // namespace
}  // namespace pawnfield
