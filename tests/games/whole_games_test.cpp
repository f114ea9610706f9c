// Whole games by clicks on the console, in virtual time. A square is worth 50 and a line 50 more unless a row says
// otherwise; an anti-diagonal pays 200 for three.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

#include "support/game_player.h"

namespace pawnfield {
namespace {

struct Game {
  const char* name;
  GameSetup setup;
  const char* script;
  const char* scores;
  const char* board;
  const char* winner;
};

void PrintTo(const Game& game, std::ostream* out) { *out << game.script; }

const Game kGames[] = {
    {"ChallengeA_RowEndsTheGame",
     {1, 2, 3, Ending::FinishRow, ""},
     "00 11 01 22 02",
     "200 100 0",
     "111/020/002",
     "Game Over!/PLAYER 1/Wins!"},
    {"ChallengeA_LineEndsTheGameButPointsWinIt",
     {1, 2, 3, Ending::FinishRow, ""},
     "00 11 01 u23 u23 22 02",
     "200 300 0",
     "111/020/002",
     "Game Over!/PLAYER 2/Wins!"},
    {"ChallengeA_TakenSquareCostsNoTurn",
     {1, 3, 3, Ending::FinishRow, ""},
     "00 00 01 N 11 E",
     "100 50 0",
     "120/010/000",
     "Game Over!/PLAYER 1/Wins!"},
    {"ChallengeA_ThreePlayersUndoAndTie",
     {1, 3, 5, Ending::FullBoard, ""},
     "22 33 U 44 00 E",
     "50 50 50",
     "30000/00000/00100/00000/00002",
     "Game Over!/PLAYER 1 and /PLAYER 2 and /PLAYER 3/Tie!"},
    {"ChallengeA_TwoPlayersAtZeroTieWithAnEmptyThird",
     {1, 2, 3, Ending::FinishRow, "0"},
     "11 E",
     "0 0 0",
     "000/010/000",
     "Game Over!/PLAYER 1 and /PLAYER 2 and //Tie!"},
    {"ChallengeB_FullBoardOf4x4",
     {2, 3, 4, Ending::FullBoard, ""},
     "00 01 02 03 N 10 11 12 13 N 20 21 22 23 N 30 31 32 33",
     "600 300 300",
     "1111/2222/3333/1111",
     "Game Over!/PLAYER 1/Wins!"},
    {"ChallengeB_StandbyKeepsTheGame",
     {2, 2, 3, Ending::FinishRow, ""},
     "00 H V 11 H V N 01 N 22",
     "200 50 0",
     "120/010/001",
     "Game Over!/PLAYER 1/Wins!"},
    {"TriviaA_WrongAnswersPassTheTurnAndCost100",
     {3, 2, 5, Ending::FinishRow, "p"},
     "+ 00 > - + 11 > + 04 > - + 13 > + 22",
     "100 0 0",
     "10002/01020/00100/00000/00000",
     "Game Over!/PLAYER 1/Wins!"},
    {"TriviaA_UndoGivesTheTurnBack",
     {3, 2, 4, Ending::FinishRow, ""},
     "+ 00 U 33 > + 32 E",
     "50 50 0",
     "0000/0000/0000/0021",
     "Game Over!/PLAYER 1 and /PLAYER 2/Tie!"},
    {"TriviaB_FullBoardWithASkip",
     {4, 3, 3, Ending::FullBoard, ""},
     "+ 11 > + 00 > - + 02 > S > N + 20 > - + 22 > + 10 > + 12 > - + 01 > + 21",
     "350 150 50",
     "122/111/321",
     "Game Over!/PLAYER 1/Wins!"},
    {"TriviaB_UserAdvances",
     {4, 2, 4, Ending::FinishRow, "m"},
     "+ 00 C + 01 > C - > + 12 C - + 02",
     "200 50 0",
     "1110/0020/0000/0000",
     "Game Over!/PLAYER 1/Wins!"},
    {"TriviaC_BonusOf300AndTheWrongRingInOpensAgain",
     {5, 3, 4, Ending::FinishRow, ""},
     "r3 + 03 > r1 - r3 + 21 > r2 + 00 > r3 + 10 > r3 + 11 > r3 + 12",
     "0 50 500",
     "2003/3330/0300/0000",
     "Game Over!/PLAYER 3/Wins!"},
    {"TriviaC_UndoFreesTheSquareForTheNext",
     {5, 2, 5, Ending::FullBoard, "p"},
     "r2 + 00 U > r2 - r1 + 00 E",
     "50 -100 0",
     "10000/00000/00000/00000/00000",
     "Game Over!/PLAYER 1/Wins!"},
    {"TriviaC_BonusPausesAndTheGameGoesOn",
     {5, 2, 3, Ending::FullBoard, "a"},
     "r1 + 02 > r1 + 20 > r1 + 00 > r1 + 22 > r1 + 11 > > r2 + 01 E",
     "500 50 0",
     "121/010/101",
     "Game Over!/PLAYER 1/Wins!"},
};

class WholeGame : public testing::TestWithParam<Game> {};

TEST_P(WholeGame, EndsAsWorkedOutByHand) {
  const Game& game = GetParam();
  GamePlayer player(game.setup);
  player.Play(game.script);
  EXPECT_EQ(player.fixture().Scores(), game.scores);
  EXPECT_EQ(player.Board(), game.board);
  EXPECT_EQ(player.Winner(), game.winner);
  EXPECT_TRUE(player.fixture().form().picWinner.Visible);

  // Five seconds after the end the show is back in standby, for a new set.
  player.Play("> >");
  MainForm& form = player.fixture().form();
  EXPECT_TRUE(form.picStandby.Visible);
  EXPECT_FALSE(form.picWinner.Visible);
  EXPECT_EQ(form.btnStart.Enabled, game.setup.GameType <= 2);
  EXPECT_EQ(player.fixture().Scores(), "0 0 0");
  EXPECT_EQ(player.Board().find_first_not_of("0/"), std::string::npos);
}

// Fails for each write to a control that it watches.
class NoWrites : public Mirror {
 public:
  explicit NoWrites(FSMainForm& form) {
    for (Control* control : form.Controls()) {
      if (control != &form.tmrRePaint) control->SetMirror(this);
    }
    form.SetMirror(this);
  }
  void Changed(Control& control, PropertyId) override { ADD_FAILURE() << control.Name() << " was written"; }
};

TEST_P(WholeGame, LeavesTheAudienceFormAloneWithOneMonitor) {
  GameSetup setup = GetParam().setup;
  setup.Monitors = Screens::One;
  GamePlayer player(setup);
  NoWrites watch(player.fixture().audience());
  player.Play(GetParam().script);
  EXPECT_EQ(player.fixture().Scores(), GetParam().scores);
  player.Play("> >");
  for (Control* control : player.fixture().audience().Controls()) control->SetMirror(nullptr);
}

TEST(OneMonitor, LoadAndExitLeaveTheAudienceFormAlone) {
  ShowFixture fixture(Screens::One);
  NoWrites watch(fixture.audience());
  fixture.Start();
  fixture.sim.dialogs.ExpectMessage("Are you sure you want to exit?", BoxAnswer::Yes);
  fixture.form().mnuFileExit.Click();
}

INSTANTIATE_TEST_SUITE_P(Games, WholeGame, testing::ValuesIn(kGames),
                         [](const auto& game) { return std::string(game.param.name); });

}  // namespace
}  // namespace pawnfield
