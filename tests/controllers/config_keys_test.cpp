// frmConfigKeys: which letters it takes, and what its buttons keep.
#include <gtest/gtest.h>

#include "../support/show_fixture.h"

namespace pawnfield {
namespace {

struct LettersCase {
  const char* What;
  // What is typed into the two boxes, in this order, and what they show then.
  const char *First, *Second, *Shown;
};

class ConfigKeys : public ::testing::TestWithParam<LettersCase> {
 protected:
  void Open(const std::function<void(ConfigKeysForm&)>& act) {
    fixture.sim.dialogs.ExpectForm("frmConfigKeys", [&] { act(fixture.show().frmConfigKeys); });
    fixture.form().btnEditKeyboardCtrl.Click();
  }
  std::string Kept() { return fixture.show().state.KeyCorrect + fixture.show().state.KeyIncorrect; }
  ShowFixture fixture;
};

TEST_P(ConfigKeys, TakesTwoDifferentLetters) {
  const LettersCase& row = GetParam();
  fixture.Start();
  Open([&](ConfigKeysForm& form) {
    form.txtKey[0].Type(row.First);
    form.txtKey[1].Type(row.Second);
    EXPECT_EQ(form.txtKey[0].Text.Get() + "|" + form.txtKey[1].Text.Get(), row.Shown) << row.What;
    form.btnCancel.Click();
  });
  EXPECT_EQ(Kept(), "YN");
}

INSTANTIATE_TEST_SUITE_P(Letters, ConfigKeys,
                         ::testing::Values(LettersCase{"as typed", "r", "W", "r|W"},
                                           LettersCase{"the ends of the alphabet", "A", "z", "A|z"},
                                           LettersCase{"no digit and no sign", "7", "[", "|"},
                                           LettersCase{"no accents", "\xE9", "`", "|"},
                                           LettersCase{"the other box holds it", "q", "Q", "q|"},
                                           LettersCase{"it meets the letter kept there", "n", "w", "|w"},
                                           LettersCase{"a blank is left alone", " ", "", " |"}));

TEST_F(ConfigKeys, FinishedKeepsTheLettersAndTheConsoleGoesOnWithYAndN) {
  fixture.WriteNumberedSet("Keys", 20);
  fixture.Start();
  Open([](ConfigKeysForm& form) {
    form.txtKey[0].Type("R");
    form.btnFinished.Click();
  });
  EXPECT_EQ(Kept(), "RN");
  Open([](ConfigKeysForm& form) {
    EXPECT_EQ(form.txtKey[0].Text, "R");
    form.btnKeyDefaults.Click();
    form.btnCancel.Click();
  });
  EXPECT_EQ(Kept(), "RN") << "the defaults were not finished";
  fixture.form().optGameType[2].Click();
  fixture.ChooseSet("Keys");
  fixture.form().btnStart.Click();
  fixture.form().KeyPress('r');
  EXPECT_TRUE(fixture.form().btnQuestionCorrect.Visible);
  fixture.form().KeyPress('y');
  EXPECT_FALSE(fixture.form().btnQuestionCorrect.Visible);
}

}  // namespace
}  // namespace pawnfield
