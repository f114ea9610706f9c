// The keys of the console: ring-in, buttons, verdicts and the typed square.
#include <gtest/gtest.h>

#include "../support/show_fixture.h"

namespace pawnfield {
namespace {

constexpr const char* kEnterKey = "\r";
constexpr const char* kBackKey = "\b";

class Keyboard : public ::testing::Test {
 protected:
  void StartGame(int gameType, int gridSize = 5) {
    fixture.WriteNumberedSet("Keys", 20);
    fixture.Start();
    fixture.form().optGameType[static_cast<std::size_t>(gameType - 1)].Click();
    fixture.form().optGridControl[static_cast<std::size_t>(gridSize - 3)].Click();
    if (IsQuestionType(gameType)) fixture.ChooseSet("Keys");
    fixture.form().btnStart.Click();
  }

  void Type(const std::string& keys) {
    for (const char key : keys) fixture.form().KeyPress(static_cast<unsigned char>(key));
  }

  ShowFixture fixture;
};

TEST_F(Keyboard, AWholeRoundOfTriviaModeC) {
  StartGame(kTriviaModeC);
  Type("2");
  EXPECT_EQ(fixture.show().state.CurrentPlayer, 2);
  EXPECT_EQ(fixture.audience().lblPlayerName.Caption, "PLAYER 2");
  Type("13");
  EXPECT_EQ(fixture.show().state.CurrentPlayer, 2) << "the first press wins";
  Type("n3y");
  Type(std::string("c2") + kEnterKey);
  EXPECT_EQ(fixture.show().state.Board[1][2], 3) << "the letter stands above a column, the digit beside a row";
  EXPECT_EQ(fixture.Scores(), "0 0 50");
  fixture.sim.clock.Advance(1000);
  Type("\x15");
  EXPECT_EQ(fixture.show().state.Board[1][2], 0);
  EXPECT_EQ(fixture.form().lblP3Score.Caption, "0");
}

struct EntryCase {
  const char* What;
  int GridSize;
  const char* Keys;
  const char* Shown;
};

class TypedSquare : public Keyboard, public ::testing::WithParamInterface<EntryCase> {};

TEST_P(TypedSquare, ShowsWhatIsTypedSoFar) {
  const EntryCase& row = GetParam();
  StartGame(kChallengeModeA, row.GridSize);
  Type(row.Keys);
  EXPECT_EQ(fixture.form().txtDJCommand.Text, row.Shown) << row.What;
}

INSTANTIATE_TEST_SUITE_P(
    Keys, TypedSquare,
    ::testing::Values(EntryCase{"a letter of the board", 3, "c", "C"}, EntryCase{"no column D on 3x3", 3, "d", ""},
                      EntryCase{"column D on 4x4", 4, "D", "D"}, EntryCase{"never a column G", 5, "g", ""},
                      EntryCase{"a digit needs its letter", 5, "2", ""},
                      EntryCase{"a row past the board", 3, "b4", "B"}, EntryCase{"row 5 on 5x5", 5, "b5", "B5"},
                      EntryCase{"back from the digit", 5, "b5\b", "B"}, EntryCase{"back to nothing", 5, "b5\b\b", ""},
                      EntryCase{"a third key changes nothing", 5, "b5a", "B5"}));

TEST_F(Keyboard, StepsBackAndClaims) {
  StartGame(kChallengeModeA);
  Type(std::string("B") + kBackKey + "C2" + kEnterKey);
  EXPECT_EQ(fixture.show().state.Board[1][2], 1);
  EXPECT_EQ(fixture.show().state.LastSquareKey, "12");
  EXPECT_EQ(fixture.form().txtDJCommand.Text, "");
}

TEST_F(Keyboard, EnterAndCtrlNPassTheTurnOn) {
  StartGame(kChallengeModeB);
  Type(kEnterKey);
  EXPECT_EQ(fixture.show().state.CurrentPlayer, 2);
  Type("\x0E");
  EXPECT_EQ(fixture.show().state.CurrentPlayer, 3);
  fixture.form().chkExtKeyboardCtrl.Click();
  Type("\x0E");
  EXPECT_EQ(fixture.show().state.CurrentPlayer, 3) << "control keys are off";
}

TEST_F(Keyboard, VerdictKeysNeedKeyboardControlAndStandbyHoldsTheSquare) {
  StartGame(kTriviaModeA);
  fixture.show().state.KeyControl = false;
  Type("y");
  EXPECT_TRUE(fixture.form().btnQuestionCorrect.Visible);
  fixture.show().state.KeyControl = true;
  Type("Y");
  EXPECT_FALSE(fixture.form().btnQuestionCorrect.Visible);
  fixture.form().btnStandbyMode.Click();
  Type("a");
  EXPECT_EQ(fixture.form().txtDJCommand.Text, "");
}

TEST_F(Keyboard, DigitsBeyondThePlayersLockTheBuzzersWithoutAPlayer) {
  StartGame(kTriviaModeC);
  Type("7");
  EXPECT_EQ(fixture.show().state.CurrentPlayer, 7);
  EXPECT_FALSE(fixture.form().btnBuzzer[0].Enabled);
  EXPECT_TRUE(fixture.form().btnQuestionCorrect.Visible);
  Type("1");
  EXPECT_EQ(fixture.show().state.CurrentPlayer, 1) << "7 is no player, so the question is still free";
}

}  // namespace
}  // namespace pawnfield
