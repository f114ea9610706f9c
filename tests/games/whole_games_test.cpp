// Whole games by clicks on the console and by recorded presses of the controllers, in virtual time. A square is worth
// 50 and a line 50 more unless a row says otherwise; an anti-diagonal pays 200 for three.
#include "forms/editor_form.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/small_forms.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const WordStory kGames[] = {
    {"Challenge A: row ends the game", "Challenge A, 2 players, Finish Row",
     "claim A1, claim B2, claim B1, claim C3, claim C1, scores 200/100/0, board 111/020/002, winner text is Game "
     "Over!/PLAYER 1/Wins!"},
    {"Challenge A: line ends the game but points win it", "Challenge A, 2 players, Finish Row",
     "claim A1, claim B2, claim B1, player 2 gains 100, player 2 gains 100, claim C3, claim C1, scores 200/300/0, "
     "board 111/020/002, winner text is Game Over!/PLAYER 2/Wins!"},
    {"Challenge A: taken square costs no turn", "Challenge A, Finish Row",
     "claim A1, claim A1, claim B1, next player, claim B2, end game, scores 100/50/0, board 120/010/000, winner text "
     "is Game Over!/PLAYER 1/Wins!"},
    {"Challenge A: three players undo and tie", "Challenge A, 5x5",
     "claim C3, claim D4, undo, claim E5, claim A1, end game, scores 50/50/50, board 30000/00000/00100/00000/00002, "
     "winner text is Game Over!/PLAYER 1 and /PLAYER 2 and /PLAYER 3/Tie!"},
    {"Challenge A: two players at zero tie", "Challenge A, 2 players, Finish Row, worthless squares",
     "claim B2, end game, scores 0/0/0, board 000/010/000, winner text is Game Over!/PLAYER 1 and /PLAYER 2/Tie!"},
    {"Challenge A: the lesser loss wins", "Challenge A, 2 players, Finish Row, worthless squares",
     "claim B2, player 1 loses 100, player 2 loses 10, player 2 loses 10, player 2 loses 10, player 2 loses 10, player "
     "2 loses 10, end game, scores -100/-50/0, board 000/010/000, winner text is Game Over!/PLAYER 2/Wins!"},
    {"Challenge B: full board of 4x4", "Challenge B, 4x4",
     "claim A1, claim B1, claim C1, claim D1, next player, claim A2, claim B2, claim C2, claim D2, next player, claim "
     "A3, claim B3, claim C3, claim D3, next player, claim A4, claim B4, claim C4, claim D4, scores 600/300/300, board "
     "1111/2222/3333/1111, winner text is Game Over!/PLAYER 1/Wins!"},
    {"Challenge B: standby keeps the game", "Challenge B, 2 players, Finish Row",
     "claim A1, hide, show, claim B2, hide, show, next player, claim B1, next player, claim C3, scores 200/50/0, board "
     "120/010/001, winner text is Game Over!/PLAYER 1/Wins!"},
    {"Trivia A: wrong answers pass the turn and cost 100", "Trivia A, 2 players, 5x5, Finish Row, penalty",
     "correct, claim A1, wait 3 s, incorrect, correct, claim B2, wait 3 s, correct, claim E1, wait 3 s, incorrect, "
     "correct, claim D2, wait 3 s, correct, claim C3, scores 100/0/0, board 10002/01020/00100/00000/00000, winner text "
     "is Game Over!/PLAYER 1/Wins!"},
    {"Trivia A: undo gives the turn back", "Trivia A, 2 players, 4x4, Finish Row",
     "correct, claim A1, undo, claim D4, wait 3 s, correct, claim C4, end game, scores 50/50/0, board "
     "0000/0000/0000/0021, winner text is Game Over!/PLAYER 1 and /PLAYER 2/Tie!"},
    {"Trivia B: full board with a skip", "Trivia B",
     "correct, claim B2, wait 3 s, correct, claim A1, wait 3 s, incorrect, correct, claim C1, wait 3 s, skip, wait 3 "
     "s, next player, correct, claim A3, wait 3 s, incorrect, correct, claim C3, wait 3 s, correct, claim A2, wait 3 "
     "s, correct, claim C2, wait 3 s, incorrect, correct, claim B1, wait 3 s, correct, claim B3, scores 350/150/50, "
     "board 122/111/321, winner text is Game Over!/PLAYER 1/Wins!"},
    {"Trivia B: user advances", "Trivia B, 2 players, 4x4, Finish Row, user advances",
     "correct, claim A1, continue, correct, claim B1, wait 3 s, continue, incorrect, wait 3 s, correct, claim C2, "
     "continue, incorrect, correct, claim C1, scores 200/50/0, board 1110/0020/0000/0000, winner text is Game "
     "Over!/PLAYER 1/Wins!"},
    {"Trivia C: bonus of 300 and the wrong ring in opens again", "Trivia C, 4x4, Finish Row",
     "player 3 rings in, correct, claim D1, wait 3 s, player 1 rings in, incorrect, player 3 rings in, correct, claim "
     "B3, wait 3 s, player 2 rings in, correct, claim A1, wait 3 s, player 3 rings in, correct, claim A2, wait 3 s, "
     "player 3 rings in, correct, claim B2, wait 3 s, player 3 rings in, correct, claim C2, scores 0/50/500, board "
     "2003/3330/0300/0000, bonus is shown, wait 3 s, winner text is Game Over!/PLAYER 3/Wins!"},
    {"Trivia C: undo frees the square for the next", "Trivia C, 2 players, 5x5, penalty",
     "player 2 rings in, correct, claim A1, undo, continue, player 2 rings in, incorrect, player 1 rings in, correct, "
     "claim A1, end game, scores 50/-100/0, board 10000/00000/00000/00000/00000, winner text is Game Over!/PLAYER "
     "1/Wins!"},
    {"Trivia C: bonus pauses and the game goes on", "Trivia C, 2 players, animated",
     "player 1 rings in, correct, claim C1, wait 3 s, player 1 rings in, correct, claim A3, wait 3 s, player 1 rings "
     "in, correct, claim A1, wait 3 s, player 1 rings in, correct, claim C3, wait 3 s, player 1 rings in, correct, "
     "claim B2, wait 3 s, wait 3 s, player 2 rings in, correct, claim B1, end game, scores 500/50/0, board "
     "121/010/101, winner text is Game Over!/PLAYER 1/Wins!"},
};

// Presses that are reports of the wireless remotes or bytes of the wired pads; turn=0 while nobody holds the question.
const WordStory kPresses[] = {
    {"The remote whose report comes first holds the question", "Trivia C, remotes",
     "queue remote 2, queue remote 1, remote 3, turn 2, wait 60 ms, turn 2"},
    {"Who presses a remote again keeps the question", "Trivia C, remotes",
     "queue remote 1, queue remote 1, queue remote 1, remote 2, turn 1, wait 150 ms, turn 1"},
    {"After a wrong answer another remote rings in", "Trivia C, remotes",
     "remote 1, incorrect, turn nobody, remote 3, turn 3"},
    {"Remotes held down together ring in once the question opens again", "Trivia C, remotes",
     "remote 3, incorrect, wait 270 ms, queue remote 2, queue remote 3, queue remote 1, wait 90 ms, turn 2"},
    {"A game goes by remotes to its winner", "Trivia C, Finish Row, remotes",
     "remote 2, correct, claim A1, wait 8 s, remote 3, correct, claim B2, wait 8 s, remote 2, correct, claim B1, wait "
     "8 s, remote 2, correct, claim C1, wait 8 s, winner text is Game Over!/PLAYER 2/Wins!"},
    {"The pad whose frame comes first holds the question", "Trivia C, pads", "pad 2, pad 1, pad 3, turn 2"},
    {"Who presses a pad again keeps the question", "Trivia C, pads", "pad 1, pad 1, pad 1, pad 2, turn 1"},
    {"After a wrong answer another pad rings in", "Trivia C, pads",
     "pad 1, incorrect, turn nobody, pad 3, turn 3, incorrect, pad 2, pad 3, pad 1, turn 2"},
    {"Pads pressed at a message box count behind it in their order", "Trivia C, pads",
     "at a message box: pad 2; pad 1; wait 30 ms, turn nobody, wait 30 ms, turn 2"},
    {"A game goes by pads to its winner", "Trivia C, Finish Row, pads",
     "pad 2, correct, claim A1, wait 8 s, pad 3, correct, claim B2, wait 8 s, pad 2, correct, claim B1, wait 8 s, pad "
     "2, correct, claim C1, wait 8 s, winner text is Game Over!/PLAYER 2/Wins!"},
    {"Nobody rings in while a square is chosen", "Trivia C, remotes",
     "remote 1, correct, queue remote 2, queue remote 3, wait 120 ms, turn 1, claim A1, wait 8 s, turn nobody"},
    {"Nobody rings in while standby covers the question", "Trivia C, remotes",
     "hide, queue remote 2, queue remote 3, wait 120 ms, turn nobody, show, wait 270 ms, remote 3, turn 3"},
    {"Remotes ring in again once standby is over", "Trivia C, remotes",
     "remote 1, incorrect, hide, remote 2, turn nobody, show, wait 240 ms, remote 2, turn 2"},
    {"A wrong answer leaves no verdict to give", "Trivia C, remotes",
     "remote 3, incorrect, turn nobody, Correct is hidden"},
};

using WholeGame = WordStoryTest;
using PressGame = WordStoryTest;

TEST_P(WholeGame, EndsAsWorkedOutByHand) {
  GamePlayer player(GetParam().setup);
  player.Do(GetParam().steps);
  // Five seconds after the end the show is back in standby, for a new set.
  player.Do("winner is shown, wait 3 s, wait 3 s, standby is shown, winner is hidden, scores 0/0/0");
  player.Do(std::string(GetParam().setup).starts_with("Challenge") ? "Start is on" : "Start is off");
  EXPECT_EQ(player.show().state.Board, GameState().Board);
}

// Fails for each write to a control that it watches.
class NoWrites : public Observer {
 public:
  explicit NoWrites(FSMainForm& form) {
    for (Control* control : form.Controls()) {
      if (control != &form.tmrRePaint) control->AddObserver(*this);
    }
    form.AddObserver(*this);
  }
  void Changed(Control& control, PropertyId) override { ADD_FAILURE() << control.Name() << " was written"; }
};

TEST_P(WholeGame, LeavesTheAudienceFormAloneWithOneMonitor) {
  GamePlayer player(GetParam().setup, Screens::One);
  NoWrites watch(player.fixture().audience());
  player.Do(GetParam().steps);
  player.Do("wait 3 s, wait 3 s");
}

TEST(OneMonitor, LoadAndExitLeaveTheAudienceFormAlone) {
  ShowFixture fixture(Screens::One);
  NoWrites watch(fixture.audience());
  fixture.Start();
  fixture.sim.dialogs.ExpectMessage("Are you sure you want to exit?", BoxAnswer::Yes);
  fixture.form().mnuFileExit.Click();
}

// The set has gone with its game; an editor that still held its name would save nothing over it.
TEST(AfterTheEnd, AnEditorOfTheCurrentSetAsksForANameAndLeavesTheFile) {
  GamePlayer player("Trivia A, 2 players, Finish Row");
  player.Do("correct, claim A1, end game, wait 3 s, wait 3 s");
  ScriptedDialogs& dialogs = player.fixture().sim.dialogs;
  SimFiles& files = player.fixture().sim.files;
  const std::string set = "C:\\Pawnfield\\Trivia Sets\\Long.txt", before = files.Read(set);
  player.form().cboList.List = {"Select Game Set"};
  player.form().cboList.ListIndex = 0;
  dialogs.ExpectForm("frmEditChoice", [&] { player.show().frmEditChoice.btnCurrent.Click(); });
  dialogs.ExpectForm("frmEditor", [&] {
    EXPECT_EQ(player.show().frmEditor.lblNumQuestions.Caption.Get(), "0") << "of the set that has gone";
    dialogs.ExpectFile("");
    player.show().frmEditor.mnuFileSave.Click();
    player.show().frmEditor.mnuFileExit.Click();
  });
  player.Do("press Edit");
  EXPECT_EQ(files.Read(set), before);
}

TEST_P(PressGame, GoesByTheFirstPress) { Play(); }

INSTANTIATE_TEST_SUITE_P(Games, WholeGame, testing::ValuesIn(kGames), WordStoryTest::Name);
INSTANTIATE_TEST_SUITE_P(Games, PressGame, testing::ValuesIn(kPresses), WordStoryTest::Name);

}  // namespace
}  // namespace pawnfield
