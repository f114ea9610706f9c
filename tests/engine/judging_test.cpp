// Verdicts, points, skip and undo, by presses on the console.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "presentation/both_screens.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

using testing::Contains;

TEST(Judging, ScoreButtonsRefuseWhatLeavesTheLimitsAsAWhole) {
  struct Case {
    const char* start;
    const char* step;
    const char* after;
  };
  const Case cases[] = {
      {"0", "u20", "100000"},
      {"0", "d20", "-100000"},
      {"999999", "u25", "999999"},
      {"999998", "u25", "999999"},
      {"-999999", "d25", "-999999"},
      {"-999998", "d25", "-999999"},
      {"950000", "u20", "950000"},
      {"950000", "u21", "960000"},
      {"-950000", "d20", "-950000"},
      {"40", "d23", "-60"},
      {"7", "u24", "17"},
      {"no number", "u22", "1000"},
      {"1000001", "d25", "1000000"},
  };
  GamePlayer player({1, 2, 3, Ending::FinishRow, ""});
  for (const Case& c : cases) {
    MainForm& form = player.fixture().form();
    SetScore(player.fixture().show(), 2, c.start);
    const std::string step = c.step;
    const auto index = static_cast<std::size_t>(step[2] - '0');
    (step[0] == 'u' ? form.btnScore2Up[index] : form.btnScore2Dn[index]).Click();
    EXPECT_EQ(form.lblP2Score.Caption.Get(), c.after) << c.start << " " << c.step;
  }
  EXPECT_EQ(player.fixture().form().lblP1Score.Caption, "0");
}

TEST(Judging, SkipLeavesTheTurnOnlyInTriviaModeA) {
  for (const int gameType : {3, 4, 5}) {
    GamePlayer player({gameType, 3, 3, Ending::FinishRow, ""});
    player.Play(gameType == 5 ? "r2" : "+ 00 > -");
    const int before = player.fixture().show().state.CurrentPlayer;
    ASSERT_EQ(before, gameType == 3 ? 3 : 2);
    player.Play("S");
    EXPECT_EQ(player.fixture().show().state.CurrentPlayer, gameType == 3 ? 3 : 0) << gameType;
    EXPECT_FALSE(player.fixture().audience().picHideQuestion.Visible) << gameType;
    const int question = player.fixture().show().state.CurrentQuestion;
    player.Play(">");
    EXPECT_EQ(player.fixture().show().state.CurrentQuestion, question + 1) << gameType;
    EXPECT_TRUE(player.fixture().form().picQuestion.Visible) << gameType;
  }
}

TEST(Judging, UndoTakesBackTheBonusOfALineOnceAndGivesTheTurnBackInRoundRobin) {
  struct Case {
    GameSetup setup;
    const char* script;
    const char* scores;
    int turn;
  };
  const Case cases[] = {
      {{1, 2, 3, Ending::FullBoard, ""}, "00 10 01 11 02 U", "100 100 0", 1},
      {{1, 3, 3, Ending::FullBoard, ""}, "00 U", "0 0 0", 1},
      {{1, 3, 3, Ending::FullBoard, ""}, "00 01 02 U", "50 50 0", 3},
      {{2, 3, 3, Ending::FullBoard, ""}, "00 N 01 U", "50 0 0", 2},
      {{3, 2, 3, Ending::FullBoard, ""}, "+ 00 > + 01 U", "50 0 0", 2},
      {{4, 2, 3, Ending::FullBoard, ""}, "+ 00 U", "0 0 0", 1},
      {{5, 2, 3, Ending::FullBoard, ""}, "r2 + 00 U", "0 0 0", 0},
      {{1, 2, 3, Ending::FullBoard, "0"}, "00 U", "0 0 0", 2},
  };
  for (const Case& c : cases) {
    GamePlayer player(c.setup);
    player.Play(c.script);
    const std::string what = std::to_string(c.setup.GameType) + ": " + c.script;
    EXPECT_EQ(player.fixture().Scores(), c.scores) << what;
    EXPECT_EQ(player.fixture().show().state.CurrentPlayer, c.turn) << what;
    const std::string board = player.Board();
    player.fixture().form().btnUndo.Click();
    EXPECT_EQ(player.Board(), board) << what << " undone twice";
    EXPECT_EQ(player.fixture().Scores(), c.scores) << what << " undone twice";
  }
}

TEST(Judging, AClaimOfNoPointsCantBeUndone) {
  GamePlayer player({2, 2, 3, Ending::FullBoard, "0"});
  player.Play("11 U");
  EXPECT_EQ(player.Board(), "000/010/000");
}

TEST(Judging, AnIncorrectVerdictCostsOnlyWhoHoldsTheQuestion) {
  GamePlayer player({5, 3, 3, Ending::FullBoard, "p"});
  MainForm& form = player.fixture().form();
  player.Play("r2");
  EXPECT_TRUE(player.fixture().audience().picHideQuestion.Visible);
  EXPECT_EQ(player.fixture().audience().lblPlayerName.Caption, "PLAYER 2");
  EXPECT_FALSE(form.btnBuzzer[0].Enabled);
  form.lblP2Score.Caption = "-999950";
  player.Play("-");
  EXPECT_EQ(player.fixture().Scores(), "0 -1000050 0");
  EXPECT_EQ(player.fixture().show().state.CurrentPlayer, 0);
  EXPECT_FALSE(player.fixture().audience().picHideQuestion.Visible);
  EXPECT_FALSE(form.btnQuestionCorrect.Visible);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_TRUE(form.btnBuzzer[i].Enabled);
  EXPECT_TRUE(form.picQuestion.Visible);
}

TEST(Judging, VerdictsSoundOrShowAPictureThatGoesAfterFourAndAHalfSeconds) {
  GamePlayer plain({3, 2, 3, Ending::FullBoard, ""});
  plain.fixture().sim.media.Log.clear();
  plain.Play("-");
  EXPECT_THAT(plain.fixture().sim.media.Log, Contains("EventPlayer url C:\\Pawnfield\\Sound Effects\\Incorrect.mp3"));
  EXPECT_FALSE(plain.fixture().form().picCorrect.Visible);

  GamePlayer animated({3, 2, 3, Ending::FullBoard, "a"});
  MainForm& form = animated.fixture().form();
  animated.Play("+");
  EXPECT_EQ(animated.fixture().sim.media.CorrectIncorrectPlayer.Url, "C:\\Pawnfield\\Sound Effects\\Correct4swf.mp3");
  EXPECT_TRUE(form.picCorrect.Visible);
  EXPECT_EQ(animated.fixture().audience().lblRightWrong.Caption, "Correct!");
  animated.fixture().sim.clock.Advance(200);
  EXPECT_FALSE(animated.fixture().audience().lblRightWrong.Visible);
  animated.fixture().sim.clock.Advance(4299);
  EXPECT_TRUE(form.picCorrect.Visible);
  EXPECT_TRUE(form.lblRightWrong.Visible);
  animated.fixture().sim.clock.Advance(1);
  EXPECT_FALSE(form.picCorrect.Visible);
  EXPECT_FALSE(animated.fixture().audience().picCorrect.Visible);
}

TEST(Judging, TheValueOfASquareChangesAtOnceAndIsSaved) {
  GamePlayer player({2, 2, 3, Ending::FullBoard, ""});
  MainForm& form = player.fixture().form();
  player.Play("00");
  form.cbxScore[0].Select(10);
  form.cbxScore[1].Select(2);
  player.Play("01 02");
  EXPECT_EQ(player.fixture().Scores(), "270 0 0");
  EXPECT_EQ(player.fixture().sim.settings.GetSetting("Pawnfield", "Settings", "Scoring", ""), "10");
  EXPECT_EQ(player.fixture().sim.settings.GetSetting("Pawnfield", "Settings", "Bonus", ""), "2");
}

}  // namespace
}  // namespace pawnfield
