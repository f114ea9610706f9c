// What comes to the buttons that wipe a game by another way than a hand, and what Undo says it will take back.
#include "engine/safe_click.h"

#include "forms/main_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

TEST(SafeClick, AsksBeforeItWipesAGameAndKeepsTheGameForAnyOtherAnswer) {
  struct Case {
    const char* control;
    const char* question;
    const char* kept;
    const char* done;
  };
  const Case cases[] = {
      {"btnReset", "Reset the game", "board=100/000/000", "board=000/000/000 picStandby=up"},
      {"btnEndGame", "End the game", "picWinner'=-", "picWinner'=up"},
      {"fileClearAllScores", "Clear all scores", "scores=50/0/0", "scores=0/0/0 board=000/000/000"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.control);
    GamePlayer player("1 2 3 full");
    player.Play("00");
    Control& control = *player.form().Find(c.control);
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Cancel}) {
      player.fixture().sim.dialogs.ExpectMessage(c.question, answer);
      EXPECT_FALSE(ClickSafely(player.show(), control));
      player.Play(c.kept);
    }
    player.fixture().sim.dialogs.ExpectMessage(c.question, BoxAnswer::Yes);
    EXPECT_TRUE(ClickSafely(player.show(), control));
    player.Play(c.done);
  }
}

TEST(SafeClick, AsksNothingWhereNothingIsLost) {
  GamePlayer player("1 2 3 full");
  EXPECT_TRUE(ClickSafely(player.show(), player.form().fileClearAllScores));
  EXPECT_FALSE(ClickSafely(player.show(), player.form().btnReset)) << "the button is grey";
  EXPECT_TRUE(ClickSafely(player.show(), player.form().btnNextPlayer));
  player.Play("turn=2");
}

const Story kUndoTips[] = {
    {"SaysWhoTookWhatForHowMuch", "1 2 3 full",
     "> btnUndo.Tip=Ctrl+U:_Start 00 btnUndo.Tip=Ctrl+U:_PLAYER_1_takes_A1,_+50 12 "
     "btnUndo.Tip=Ctrl+U:_PLAYER_2_takes_C2,_+50 "
     "U btnUndo.Tip=Ctrl+U:_PLAYER_1_takes_A1,_+50"},
    {"CountsTheLineThatTheSquareCompleted", "2 2 3 full", "00 01 02 btnUndo.Tip=Ctrl+U:_PLAYER_1_takes_C1,_+100"},
    {"SaysWhatClearedTheBoard", "1 2 3 full", "00 fileClearAllScores > btnUndo.Tip=Ctrl+U:_Clear_All_Scores"},
};

using UndoTip = StoryTest;
TEST_P(UndoTip, SaysWhatItTakesBack) { Play(); }
INSTANTIATE_TEST_SUITE_P(Engine, UndoTip, testing::ValuesIn(kUndoTips), StoryTest::Name);

}  // namespace
}  // namespace pawnfield
