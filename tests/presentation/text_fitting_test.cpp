#include "presentation/text_fitting.h"

#include <gtest/gtest.h>

#include <random>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "show/show.h"
#include "sim/sim_platform.h"

namespace pawnfield {
namespace {

class CountingMeasurer : public LinearTextMeasurer {
 public:
  TextSize Measure(const Font& font, const std::string& text, double wrapWidth) const override {
    ++count;
    return LinearTextMeasurer::Measure(font, text, wrapWidth);
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

TEST(FittingSize, EqualsThePlainSearchWithAFifthOfTheMeasurementsOfALongText) {
  std::mt19937 random(20240229);
  const FitLimits boxes[] = {{80, 6562, 6612, 4976},
                             {120, 14092, 14142, 10268},
                             {80, 3000, 3100, 900},
                             {80, 500, 550, 600},
                             {80, 900, 900, 80}};
  for (int i = 0; i < 800; ++i) {
    const FitLimits& box = boxes[random() % std::size(boxes)];
    std::string text(i % 4 == 0 ? 256 : random() % 40 + 1, ' ');
    const auto wordLength = random() % 20 + 1;
    for (char& c : text) c = random() % (wordLength + 1) == 0 ? ' ' : static_cast<char>('A' + random() % 58);
    const CountingMeasurer quick, plain;
    ASSERT_EQ(FittingSize(quick, {}, text, box), PlainSearch(plain, {}, text, box)) << text;
    ASSERT_LE(quick.count * 5, plain.count + (text.size() == 256 ? 0 : 40)) << text;
  }
}

TEST(FittingSize, IsUnderTheLimitsAndEndsBelowTheSmallestSizeWhenNothingFits) {
  struct Case {
    const char* text;
    FitLimits limits;
    int size;
  };
  // A line is 24 twips a point high, and "WWW" 51 wide: 6 points make 144 of height, 30 points 1530 of width.
  const Case cases[] = {
      {"A", {80, 500, 550, 100}, 5}, {"", {80, 500, 550, 100}, 80},       {"A", {80, 500, 550, 144}, 5},
      {"A", {80, 500, 550, 145}, 6}, {"WWW", {80, 1000, 1530, 9000}, 29}, {"WWW", {80, 1000, 1531, 9000}, 30},
  };
  for (const Case& c : cases) EXPECT_EQ(FittingSize(LinearTextMeasurer(), {}, c.text, c.limits), c.size) << c.text;
}

class Fitting : public testing::Test {
 protected:
  Fitting() {
    show.frmMain.picQuestion.MoveTo(0, 0, 7210, 5640);
    show.frmFSMain.picQuestion.MoveTo(0, 0, 15360, 11520);
    show.frmFSMain.picWinner.MoveTo(0, 0, 15360, 11520);
  }
  static std::string Place(const Label& label) {
    std::string place = label.Caption.Get() + " at " + std::to_string(static_cast<int>(label.Font->Size));
    for (const double twips : {label.Left.Get(), label.Top.Get(), label.Width.Get(), label.Height.Get()}) {
      place += " " + std::to_string(std::lround(twips));
    }
    return place;
  }
  SimPlatform machine;
  Show show{machine.platform};
  ControlArray<Label, 5>& labels = show.frmMain.lblQuestion;
};

TEST_F(Fitting, EachTextHasTheSizeAndPlaceOfItsScreen) {
  // A line is 24 twips a point high. The margins of a question are 3.8% and 5%, in whole twips, those of a winner 10%.
  // 30 letters of 17 twips a point are 510 a point against 6612 and 14142.
  const std::string wide(30, 'W');
  for (ControlArray<Label, 5>* screen : {&labels, &show.frmFSMain.lblQuestion}) SetQuestion(show, "Who?", *screen);
  EXPECT_EQ(Place(labels[0]), "Who? at 80 274 1860 6662 1920");
  EXPECT_EQ(Place(show.frmFSMain.lblQuestion[0]), "Who? at 120 584 4320 14192 2880");
  EXPECT_EQ(labels[0].ForeColor, kWhite);
  EXPECT_EQ(labels[0].Font->Name, "Courier New") << "only the size of the font changes";
  EXPECT_EQ(labels[4].Caption.Get(), "Who?");
  for (ControlArray<Label, 5>* screen : {&labels, &show.frmFSMain.lblQuestion}) SetQuestion(show, wide, *screen);
  EXPECT_EQ(labels[0].Font->Size, 12);
  EXPECT_EQ(show.frmFSMain.lblQuestion[0].Font->Size, 27);
  SetWinner(show, "ANN WINS", show.frmFSMain.lblWinner);
  EXPECT_EQ(Place(show.frmFSMain.lblWinner), "ANN WINS at 120 1536 4320 12288 2880");
  EXPECT_EQ(show.frmFSMain.lblWinner.ForeColor, kGreen);
  SetWinner(show, "ANN WINS", show.frmMain.lblWinner);
  EXPECT_LE(show.frmMain.lblWinner.Font->Size, 80);
  // 20 points make a line of 480, which is not under the height; the answer's box stays.
  show.frmMain.lblAnswer.MoveTo(10, 20, 3000, 480);
  SetAnswer(show, "Paris");
  EXPECT_EQ(Place(show.frmMain.lblAnswer), "Paris at 19 10 20 3000 480");
}

TEST_F(Fitting, TheOutlineGrowsWithTheLettersAndStepsDownAtFifty) {
  const std::pair<double, int> cases[] = {{6, -4},  {30, 20}, {39, 29}, {40, 40},
                                          {45, 46}, {49, 51}, {50, 15}, {80, 30}};
  for (const auto& [size, edge] : cases) {
    labels[0].Font = Font{"Arial", size, true, false};
    labels[0].MoveTo(1000, 500, 300, 200);
    OutlineLabel(labels, OutlineMode::Outline, -10, "", nullptr);
    const std::pair<int, int> signs[] = {{0, 0}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};
    for (std::size_t i = 1; i < 5; ++i) {
      EXPECT_EQ(labels[i].Left, 1000 + signs[i].first * edge) << size;
      EXPECT_EQ(labels[i].Top, 500 + signs[i].second * edge) << size;
      EXPECT_TRUE(labels[i].Width == 300 && labels[i].Font->Size == size && labels[i].ZOrder < labels[0].ZOrder);
    }
  }
}

TEST_F(Fitting, OutlineModesShowWhatTheySay) {
  // The text, which of its five labels can be seen, and whether its outline is black.
  const auto expectSeen = [&](const std::string& text, const std::string& visible, bool black) {
    std::string seen;
    for (std::size_t i = 0; i < 5; ++i) seen += labels[i].Visible ? '1' : '0';
    EXPECT_EQ(labels[0].Caption.Get() + " " + seen, text + " " + visible);
    EXPECT_EQ(labels[3].ForeColor == kBlack, black) << text;
  };
  labels[0].Visible = false;
  OutlineLabel(labels, OutlineMode::Outline, 0, "first", nullptr);
  expectSeen("first", "11111", true);
  labels[0].ForeColor = kBlack;
  OutlineLabel(labels, OutlineMode::Outline, 0, "", nullptr);
  expectSeen("first", "11111", false);
  labels[0].Width = 1210;
  OutlineLabel(labels, OutlineMode::Plain, 0, "plain", &show.frmMain.picQuestion);
  expectSeen("plain", "10000", false);
  EXPECT_EQ(labels[0].Left, 3000);
  OutlineLabel(labels, OutlineMode::Clear, 0, "gone", nullptr);
  EXPECT_EQ(labels[0].Caption.Get(), "");
}

}  // namespace
}  // namespace pawnfield
