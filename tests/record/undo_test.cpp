#include <gtest/gtest.h>

#include <algorithm>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "platform/ports.h"
#include "record/capture.h"
#include "record/history.h"
#include "record/ring_in_order.h"
#include "show/phase.h"
#include "show/show_record.h"
#include "support/game_player.h"
#include "support/same_show.h"

namespace pawnfield {
namespace {

struct UndoneEvent {
  const char* name;
  const char* setup;
  // What is done before, the event, and what Undo says of it.
  const char* before;
  const char* event;
  const char* words;
  friend void PrintTo(const UndoneEvent& undone, std::ostream* out) { *out << undone.name; }
};

const UndoneEvent kEvents[] = {
    {"ARingIn", "Trivia C", "", "player 2 rings in", "PLAYER 2 rings in"},
    {"AWrongAnswerAndItsPenalty", "Trivia C, penalty", "player 2 rings in", "incorrect",
     "Incorrect for PLAYER 2, -100"},
    {"ARightAnswer", "Trivia A", "", "correct", "Correct for PLAYER 1"},
    {"AClaim", "Trivia C", "player 2 rings in, correct", "claim B2", "PLAYER 2 takes B2, +50"},
    {"AClaimAmidItsFlash", "Challenge B", "", "click B2, wait 200 ms", "PLAYER 1 takes B2, +50"},
    {"ALine", "Challenge B", "claim A1, claim B1", "claim C1", "PLAYER 1 takes C1, +100"},
    {"AQuestion", "Trivia A, user advances", "correct, claim A1", "continue", "Question 2"},
    {"ASkip", "Trivia B, user advances", "", "skip", "Skip of question 1"},
    {"ATurn", "Challenge A", "", "next player", "Turn to PLAYER 2"},
    {"AScoreKey", "Trivia C", "player 2 rings in", "player 2 gains 100", "PLAYER 2 +100"},
    {"AClearedBoard", "Challenge A", "claim A1, claim B2", "clear all scores", "Clear All Scores"},
    {"APlayerWhoLeft", "Challenge A", "claim A1, claim B2", "2 players", "2 players"},
    {"TheEndOfAGame", "Challenge A", "claim A1, claim B2", "end game", "End Game"},
    {"ALineThatEndedTheGame", "Challenge B, Finish Row", "claim A1, claim B1", "claim C1", "PLAYER 1 takes C1, +100"},
    {"APictureQuestion", "Trivia A, picture second, user advances", "correct, claim A1", "continue", "Question 2"},
};

class UndoOf : public testing::TestWithParam<UndoneEvent> {};

// What both screens show of the game, in words of the tests.
std::string Stand(Show& show) {
  std::string stand;
  for (const char* name : {"lblP1Score", "lblP2Score", "lblP3Score", "lblPlayer1(0)", "lblPlayer1(1)"})
    stand += static_cast<const Label*>(show.frmMain.Find(name))->Caption.Get() + " ";
  for (const auto& row : show.state.Board)
    for (const int owner : row) stand += std::to_string(owner);
  for (const Control* control : show.frmMain.Controls()) {
    if (control->Kind() == ControlKind::PictureBox && control->IsShown()) stand += " " + control->Name();
  }
  const GamePhase phase = Phase(show);
  return stand + " phase " + std::to_string(static_cast<int>(phase.Kind)) + " of " + std::to_string(phase.Player) +
         " question " + std::to_string(show.state.CurrentQuestion);
}

TEST_P(UndoOf, GoesBackAndForward) {
  const UndoneEvent& undone = GetParam();
  GamePlayer player(undone.setup);
  Show& show = player.show();
  if (*undone.before != 0) player.Do(undone.before);
  player.Do("wait 60 ms, wait 5 s");
  const std::string before = Stand(show);
  player.Do(undone.event);
  player.Do("wait 60 ms");
  EXPECT_EQ(UndoText(show), undone.words);
  const auto heard = [&player] {
    const auto& log = player.fixture().sim.media.Deck.Log;
    return std::count_if(log.begin(), log.end(), [](const std::string& line) {
      return line.ends_with(" play") || (line.find(" url ") != std::string::npos && !line.ends_with(" url "));
    });
  };
  const auto sounds = heard();
  player.Do("undo");
  EXPECT_EQ(Stand(show), before);
  EXPECT_EQ(show.frmMain.lblStatusBar.Caption.Get(), std::string("Undone: ") + undone.words);
  EXPECT_EQ(RedoText(show), undone.words);
  player.Do("key ctrl y");
  EXPECT_EQ(UndoText(show), undone.words);
  player.Do("undo");
  EXPECT_EQ(Stand(show), before) << "after it was done again";
  EXPECT_EQ(heard(), sounds) << "a step plays no sound";
}
INSTANTIATE_TEST_SUITE_P(Record, UndoOf, testing::ValuesIn(kEvents),
                         [](const auto& undone) { return std::string(undone.param.name); });

TEST(Undo, GoesToTheGamesBeginningAndWhatIsNewEndsTheWayForward) {
  GamePlayer player("Trivia C, user advances");
  player.Do(
      "player 1 rings in, correct, claim A1, continue, player 2 rings in, incorrect, player 3 rings in, "
      "correct, claim B2, wait 60 ms");
  while (player.form().btnUndo.Enabled) player.Do("undo");
  EXPECT_EQ(UndoText(player.show()), "") << "the set is ready and nothing was done";
  player.Do("scores 0/0/0, board 000/000/000, key ctrl y, key ctrl y, player 2 rings in, wait 60 ms, scores 0/0/0");
  EXPECT_EQ(RedoText(player.show()), "");
}

// Every step back over a whole game stands where the game stood, and so does every step forward.
TEST(Undo, GoesBackOverWholeGamesAndForwardAgainEqualAtEachStep) {
  const std::pair<const char*, const char*> games[] = {
      {"Challenge A",
       "claim A1, claim B2, player 2 gains 100, claim C3, claim B1, claim C1, claim A2, claim C2, claim A3, claim B3"},
      {"Challenge B, Finish Row", "claim A1, claim B2, claim B1, claim A3, claim C1"},
      {"Trivia A, user advances",
       "correct, claim A1, continue, correct, claim B2, continue, player 2 gains 100, correct, claim C1, continue, "
       "skip, "
       "end game"},
      {"Trivia B, Finish Row, user advances",
       "correct, claim A1, continue, correct, claim B1, continue, correct, claim C1"},
      {"Trivia C, penalty, user advances",
       "player 1 rings in, correct, claim A1, continue, player 2 rings in, incorrect, player 3 rings in, correct, "
       "claim B2, continue, skip, end game"},
  };
  for (const auto& [setup, script] : games) {
    GamePlayer player(setup);
    Show& show = player.show();
    player.Do(script);
    player.Do("wait 60 ms");
    const GameHistory& game = show.record->Game;
    const std::size_t last = game.Now;
    ASSERT_GT(last, 4U) << setup;
    std::vector<std::string> stood(last + 1);
    const auto expectSnapshot = [&](const char* way) {
      Snapshot wanted = game.Events[game.Now].After;
      Snapshot found = Capture(show);
      // The cover stays as it is, and hides or shows whose turn it is; a winner isn't begun again.
      wanted.Covered = found.Covered;
      wanted.Over = found.Over;
      wanted.Lit = found.Lit;
      wanted.Cursor = found.Cursor;
      EXPECT_EQ(UnlikeSnapshots(wanted, found), "") << setup << way << game.Events[game.Now].What;
    };
    while (game.Now > 0) {
      show.frmMain.btnUndo.Click();
      expectSnapshot(": back to ");
      stood[game.Now] = Stand(show);
    }
    while (game.Now < last) {
      Redo(show);
      expectSnapshot(": forward to ");
      if (game.Now < last) {
        EXPECT_EQ(Stand(show), stood[game.Now]) << setup << ": " << game.Events[game.Now].What;
      }
    }
  }
}

// Counts what is announced of the controls that it observes.
struct Changes : Observer {
  void Changed(Control&, PropertyId) override { ++Count; }
  int Count = 0;
};

TEST(Undo, LeavesTheQuestionUntouchedThatStays) {
  GamePlayer player("Trivia C");
  player.Do("player 2 rings in, wait 60 ms");
  Changes changes;
  for (Control* control :
       {static_cast<Control*>(&player.form().picQuestion), static_cast<Control*>(&player.form().lblQuestion[0]),
        static_cast<Control*>(&player.fixture().audience().picQuestion)}) {
    control->AddObserver(changes);
  }
  player.Do("undo, turn nobody");
  EXPECT_EQ(changes.Count, 0) << "both screens would be painted whole";
}

TEST(Undo, OfARingInBeginsTheOrderAnew) {
  GamePlayer player("Trivia C, remotes");
  player.Do("remote 2, turn 2, wait 60 ms, undo, turn nobody, wait 500 ms, remote 1, wait 200 ms, remote 2, turn 1");
  const auto rows = RingInRows(player.show());
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].Name + " " + rows[0].When, "PLAYER 1 first");
  EXPECT_EQ(rows[1].Name, "PLAYER 2");
}

struct EndOfAGame {
  const char* name;
  const char* setup;
  const char* end;
  friend void PrintTo(const EndOfAGame& end, std::ostream* out) { *out << end.name; }
};

const EndOfAGame kEnds[] = {
    {"AReset", "Trivia B, user advances", "reset"},
    {"TheEnd", "Trivia B, user advances", "end game, wait 5 s"},
    {"AWinner", "Trivia B, Finish Row, user advances", "claim C1, wait 12 s"},
    {"AnotherSet", "Trivia B, user advances", "choose the set"},
};

class LastGameAfter : public testing::TestWithParam<EndOfAGame> {};

TEST_P(LastGameAfter, ComesBackAndGoesOn) {
  GamePlayer player(GetParam().setup);
  player.Do("correct, claim A1, continue, correct, claim B1, continue, correct, wait 60 ms");
  const std::string stood = player.fixture().Scores();
  player.Do(GetParam().end);
  player.Do("wait 60 ms, press mnuFileBringBack, scores 100/0/0, board 110/000/000, question 3, phase player 1 claims");
  EXPECT_EQ(player.fixture().Scores(), stood);
  if (player.form().picStandby.Visible) player.Do("show");
  player.Do("click A2, wait 60 ms, board 110/100/000");
}
INSTANTIATE_TEST_SUITE_P(Record, LastGameAfter, testing::ValuesIn(kEnds),
                         [](const auto& end) { return std::string(end.param.name); });

TEST(RingInOrder, ListsWhoCameLaterAndWhoWasEarly) {
  GamePlayer player("Trivia C, remotes");
  Show& show = player.show();
  const auto texts = [&show] {
    std::string all;
    for (const RingInRow& row : RingInRows(show))
      all += row.Number + " " + row.Name + " " + row.When + (row.TooClose ? " !" : "") + "; ";
    return all;
  };
  const auto press = [&show](int who, std::int64_t us, std::int64_t error) {
    AddPress(show, {who, PressWay::Remote, us, error, PressPlace::First});
  };
  const std::int64_t now = show.platform.clock.NowUs();
  press(2, now, 500);
  player.Do("player 2 rings in");
  press(1, now + 900, 500);
  press(1, now + 40000, 500);
  press(3, now + 310000, 500);
  EXPECT_EQ(texts(),
            "1 PLAYER 2 first; 2 PLAYER 1 +1 ms (\xB1"
            "1), too close to call !; 3 PLAYER 3 +310 ms (\xB1"
            "1); ");
  player.Do("correct, click A1, wait 100 ms");
  press(1, show.platform.clock.NowUs() + 3000000, 500);
  player.Do("wait 5 s");
  EXPECT_EQ(texts(), " PLAYER 1 early; ");
}

}  // namespace
}  // namespace pawnfield
