#include <gtest/gtest.h>

#include <algorithm>

#include "forms/main_form.h"
#include "platform/ports.h"
#include "record/history.h"
#include "record/ring_in_order.h"
#include "show/phase.h"
#include "show/show_record.h"
#include "support/game_player.h"

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
    {"ARingIn", "5 3 3 full", "", "r2", "PLAYER 2 rings in"},
    {"AWrongAnswerAndItsPenalty", "5 3 3 full p", "r2", "-", "Incorrect for PLAYER 2, -100"},
    {"ARightAnswer", "3 3 3 full", "", "+", "Correct for PLAYER 1"},
    {"AClaim", "5 3 3 full", "r2 +", "11", "PLAYER 2 takes B2, +50"},
    {"AClaimAmidItsFlash", "2 3 3 full", "", "11! >200", "PLAYER 1 takes B2, +50"},
    {"ALine", "2 3 3 full", "00 01", "02", "PLAYER 1 takes C1, +100"},
    {"AQuestion", "3 3 3 full m", "+ 00", "C", "Question 2"},
    {"ASkip", "4 3 3 full m", "", "S", "Skip of question 1"},
    {"ATurn", "1 3 3 full", "", "N", "Turn to PLAYER 2"},
    {"AScoreKey", "5 3 3 full", "r2", "u23", "PLAYER 2 +100"},
    {"AClearedBoard", "1 3 3 full", "00 11", "fileClearAllScores", "Clear All Scores"},
    {"APlayerWhoLeft", "1 3 3 full", "00 11", "optPlayers(0)", "2 players"},
    {"TheEndOfAGame", "1 3 3 full", "00 11", "E", "End Game"},
    {"ALineThatEndedTheGame", "2 3 3 row", "00 01", "02", "PLAYER 1 takes C1, +100"},
    {"APictureQuestion", "3 3 3 full km", "+ 00", "C", "Question 2"},
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
  player.Play(undone.before);
  player.Play(">60 >5000");
  const std::string before = Stand(show);
  player.Play(undone.event);
  player.Play(">60");
  EXPECT_EQ(UndoText(show), undone.words);
  const auto heard = [&player] {
    const auto& log = player.fixture().sim.media.Deck.Log;
    return std::count_if(log.begin(), log.end(), [](const std::string& line) {
      return line.ends_with(" play") || (line.find(" url ") != std::string::npos && !line.ends_with(" url "));
    });
  };
  const auto sounds = heard();
  player.Play("U");
  EXPECT_EQ(Stand(show), before);
  EXPECT_EQ(show.frmMain.lblStatusBar.Caption.Get(), std::string("Undone: ") + undone.words);
  EXPECT_EQ(RedoText(show), undone.words);
  player.Play("keys:^Y");
  EXPECT_EQ(UndoText(show), undone.words);
  player.Play("U");
  EXPECT_EQ(Stand(show), before) << "after it was done again";
  EXPECT_EQ(heard(), sounds) << "a step plays no sound";
}
INSTANTIATE_TEST_SUITE_P(Record, UndoOf, testing::ValuesIn(kEvents),
                         [](const auto& undone) { return std::string(undone.param.name); });

TEST(Undo, GoesToTheGamesBeginningAndWhatIsNewEndsTheWayForward) {
  GamePlayer player("5 3 3 full m");
  player.Play("r1 + 00 C r2 - r3 + 11 >60 U U U U U U U U U U");
  EXPECT_EQ(UndoText(player.show()), "") << "the set is ready and nothing was done";
  player.Play("btnUndo=off scores=0/0/0 board=000/000/000 keys:^Y^Y r2 >60 scores=0/0/0");
  EXPECT_EQ(RedoText(player.show()), "");
}

TEST(LastGame, ComesBackAfterAResetTheEndAWinnerAndAnotherSet) {
  for (const char* end : {"R", "E >5000", "02 >12000", "set"}) {
    GamePlayer player(std::string(end) == "02 >12000" ? "4 3 3 row m" : "4 3 3 full m");
    Show& show = player.show();
    player.Play("+ 00 C + 01 C + >60");
    const std::string stood = player.fixture().Scores();
    player.Play(end);
    player.Play(">60 mnuFileBringBack scores=100/0/0 board=110/000/000 question=2 phase=player_1_claims");
    EXPECT_EQ(player.fixture().Scores(), stood) << end;
    if (show.frmMain.picStandby.Visible) player.Play("V");
    player.Play("10! >60 board=110/100/000");
  }
}

TEST(RingInOrder, ListsWhoCameLaterAndWhoWasEarly) {
  GamePlayer player("5 3 3 full w");
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
  player.Play("r2");
  press(1, now + 900, 500);
  press(1, now + 40000, 500);
  press(3, now + 310000, 500);
  EXPECT_EQ(texts(),
            "1 PLAYER 2 first; 2 PLAYER 1 +1 ms (\xB1"
            "1), too close to call !; 3 PLAYER 3 +310 ms (\xB1"
            "1); ");
  player.Play("+ 00! >100");
  press(1, show.platform.clock.NowUs() + 3000000, 500);
  player.Play(">5000");
  EXPECT_EQ(texts(), " PLAYER 1 early; ");
}

}  // namespace
}  // namespace pawnfield
