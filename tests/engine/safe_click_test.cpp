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
      {"btnReset", "Reset the game", "board 100/000/000", "board 000/000/000, standby is shown"},
      {"btnEndGame", "End the game", "room winner is hidden", "room winner is shown"},
      {"fileClearAllScores", "Clear all scores", "scores 50/0/0", "scores 0/0/0, board 000/000/000"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.control);
    GamePlayer player("Challenge A, 2 players");
    player.Do("claim A1");
    Control& control = *player.form().Find(c.control);
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Cancel}) {
      player.fixture().sim.dialogs.ExpectMessage(c.question, answer);
      EXPECT_FALSE(ClickSafely(player.show(), control));
      player.Do(c.kept);
    }
    player.fixture().sim.dialogs.ExpectMessage(c.question, BoxAnswer::Yes);
    EXPECT_TRUE(ClickSafely(player.show(), control));
    player.Do(c.done);
  }
}

TEST(SafeClick, AsksNothingWhereNothingIsLost) {
  GamePlayer player("Challenge A, 2 players");
  EXPECT_TRUE(ClickSafely(player.show(), player.form().fileClearAllScores));
  EXPECT_FALSE(ClickSafely(player.show(), player.form().btnReset)) << "the button is grey";
  EXPECT_TRUE(ClickSafely(player.show(), player.form().btnNextPlayer));
  player.Do("turn 2");
}

const WordStory kUndoTips[] = {
    {"Says the start before the first claim", "Challenge A, 2 players", "wait 3 s, Undo tip is Ctrl+U: Start"},
    {"Says who took what for how much", "Challenge A, 2 players",
     "claim A1, Undo tip is \"Ctrl+U: PLAYER 1 takes A1, +50\", claim C2, Undo tip is \"Ctrl+U: PLAYER 2 takes C2, "
     "+50\""},
    {"Says the claim before one that is taken back", "Challenge A, 2 players",
     "wait 3 s, claim A1, claim C2, undo, Undo tip is \"Ctrl+U: PLAYER 1 takes A1, +50\""},
    {"Counts the line that the square completed", "Challenge B, 2 players",
     "claim A1, claim B1, claim C1, Undo tip is \"Ctrl+U: PLAYER 1 takes C1, +100\""},
    {"Says what cleared the board", "Challenge A, 2 players",
     "claim A1, clear all scores, wait 3 s, Undo tip is Ctrl+U: Clear All Scores"},
};

using UndoTip = WordStoryTest;
TEST_P(UndoTip, SaysWhatItTakesBack) { Play(); }
INSTANTIATE_TEST_SUITE_P(Engine, UndoTip, testing::ValuesIn(kUndoTips), WordStoryTest::Name);

}  // namespace
}  // namespace pawnfield
