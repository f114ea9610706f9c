// frmConfigKeys: which letters it takes, and what its buttons keep.
#include "../support/show_fixture.h"

namespace pawnfield {
namespace {

class ConfigKeys : public ShowFixture, public testing::Test {
 protected:
  void Open(const std::function<void(ConfigKeysForm&)>& act) {
    sim.dialogs.ExpectForm("frmConfigKeys", [&] { act(show().frmConfigKeys); });
    form().btnEditKeyboardCtrl.Click();
  }
  std::string Kept() { return show().state.KeyCorrect + show().state.KeyIncorrect; }
};

TEST_F(ConfigKeys, TakesTwoDifferentLetters) {
  // What is typed into the two boxes, in this order, and what they show then.
  const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
      {"as typed", "r", "W", "r|W"},
      {"the ends of the alphabet", "A", "z", "A|z"},
      {"no digit and no sign", "7", "[", "|"},
      {"no accents", "\xE9", "`", "|"},
      {"no brace", "{", "@", "|"},
      {"the other box holds it", "q", "Q", "q|"},
      {"it meets the letter kept there", "n", "w", "|w"},
      {"a blank is left alone", " ", "", " |"}};
  Start();
  for (const auto& [what, first, second, shown] : cases) {
    Open([&, typed = std::pair(first, second), wanted = shown](ConfigKeysForm& keys) {
      keys.txtKey[0].Type(typed.first);
      keys.txtKey[1].Type(typed.second);
      EXPECT_EQ(keys.txtKey[0].Text.Get() + "|" + keys.txtKey[1].Text.Get(), wanted);
      keys.btnCancel.Click();
    });
    EXPECT_EQ(Kept(), "YN") << what;
  }
}

TEST_F(ConfigKeys, FinishedKeepsTheLettersAndTheConsoleGoesOnWithYAndN) {
  WriteNumberedSet("Keys", 20);
  Start();
  Open([](ConfigKeysForm& keys) {
    keys.txtKey[0].Type("R");
    keys.btnFinished.Click();
  });
  Open([](ConfigKeysForm& keys) {
    EXPECT_EQ(keys.txtKey[0].Text, "R");
    keys.btnKeyDefaults.Click();
    EXPECT_EQ(keys.txtKey[0].Text, "Y");
    keys.btnCancel.Click();
  });
  EXPECT_EQ(Kept(), "RN") << "the defaults were not finished";
  form().optGameType[2].Click();
  ChooseSet("Keys");
  form().btnStart.Click();
  form().KeyPress('r');
  EXPECT_TRUE(form().btnQuestionCorrect.Visible);
  form().KeyPress('y');
  EXPECT_FALSE(form().btnQuestionCorrect.Visible);
}

}  // namespace
}  // namespace pawnfield
