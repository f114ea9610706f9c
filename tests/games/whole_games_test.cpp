// Whole games by clicks on the console and by recorded presses of the controllers, in virtual time. A square is worth
// 50 and a line 50 more unless a row says otherwise; an anti-diagonal pays 200 for three.
#include "forms/editor_form.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/small_forms.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const Story kGames[] = {
    {"ChallengeA_RowEndsTheGame", "1 2 3 row",
     "00 11 01 22 02 scores=200/100/0 board=111/020/002 winner=Game_Over!/PLAYER_1/Wins!"},
    {"ChallengeA_LineEndsTheGameButPointsWinIt", "1 2 3 row",
     "00 11 01 u23 u23 22 02 scores=200/300/0 board=111/020/002 winner=Game_Over!/PLAYER_2/Wins!"},
    {"ChallengeA_TakenSquareCostsNoTurn", "1 3 3 row",
     "00 00 01 N 11 E scores=100/50/0 board=120/010/000 winner=Game_Over!/PLAYER_1/Wins!"},
    {"ChallengeA_ThreePlayersUndoAndTie", "1 3 5 full",
     "22 33 U 44 00 E scores=50/50/50 board=30000/00000/00100/00000/00002 "
     "winner=Game_Over!/PLAYER_1_and_/PLAYER_2_and_/PLAYER_3/Tie!"},
    {"ChallengeA_TwoPlayersAtZeroTie", "1 2 3 row 0",
     "11 E scores=0/0/0 board=000/010/000 winner=Game_Over!/PLAYER_1_and_/PLAYER_2/Tie!"},
    {"ChallengeA_TheLesserLossWins", "1 2 3 row 0",
     "11 d13 d24 d24 d24 d24 d24 E scores=-100/-50/0 board=000/010/000 winner=Game_Over!/PLAYER_2/Wins!"},
    {"ChallengeB_FullBoardOf4x4", "2 3 4 full",
     "00 01 02 03 N 10 11 12 13 N 20 21 22 23 N 30 31 32 33 scores=600/300/300 board=1111/2222/3333/1111 "
     "winner=Game_Over!/PLAYER_1/Wins!"},
    {"ChallengeB_StandbyKeepsTheGame", "2 2 3 row",
     "00 H V 11 H V N 01 N 22 scores=200/50/0 board=120/010/001 winner=Game_Over!/PLAYER_1/Wins!"},
    {"TriviaA_WrongAnswersPassTheTurnAndCost100", "3 2 5 row p",
     "+ 00 > - + 11 > + 04 > - + 13 > + 22 scores=100/0/0 board=10002/01020/00100/00000/00000 "
     "winner=Game_Over!/PLAYER_1/Wins!"},
    {"TriviaA_UndoGivesTheTurnBack", "3 2 4 row",
     "+ 00 U 33 > + 32 E scores=50/50/0 board=0000/0000/0000/0021 winner=Game_Over!/PLAYER_1_and_/PLAYER_2/Tie!"},
    {"TriviaB_FullBoardWithASkip", "4 3 3 full",
     "+ 11 > + 00 > - + 02 > S > N + 20 > - + 22 > + 10 > + 12 > - + 01 > + 21 scores=350/150/50 board=122/111/321 "
     "winner=Game_Over!/PLAYER_1/Wins!"},
    {"TriviaB_UserAdvances", "4 2 4 row m",
     "+ 00 C + 01 > C - > + 12 C - + 02 scores=200/50/0 board=1110/0020/0000/0000 winner=Game_Over!/PLAYER_1/Wins!"},
    {"TriviaC_BonusOf300AndTheWrongRingInOpensAgain", "5 3 4 row",
     "r3 + 03 > r1 - r3 + 21 > r2 + 00 > r3 + 10 > r3 + 11 > r3 + 12 scores=0/50/500 board=2003/3330/0300/0000 "
     "picBonus=up > "
     "winner=Game_Over!/PLAYER_3/Wins!"},
    {"TriviaC_UndoFreesTheSquareForTheNext", "5 2 5 full p",
     "r2 + 00 U C r2 - r1 + 00 E scores=50/-100/0 board=10000/00000/00000/00000/00000 "
     "winner=Game_Over!/PLAYER_1/Wins!"},
    {"TriviaC_BonusPausesAndTheGameGoesOn", "5 2 3 full a",
     "r1 + 02 > r1 + 20 > r1 + 00 > r1 + 22 > r1 + 11 > > r2 + 01 E scores=500/50/0 board=121/010/101 "
     "winner=Game_Over!/PLAYER_1/Wins!"},
};

// Presses that are reports of the wireless remotes or bytes of the wired pads; turn=0 while nobody holds the question.
const Story kPresses[] = {
    {"RemotesWinByTheirFirstReport", "5 3 3 row w",
     "2 1 3 >30 turn=2 >60 turn=2 + 00 >8000 1 1 1 2 >30 turn=1 >150 turn=1 - turn=0 1 >30 turn=0 3 >30 "
     "turn=3 + 11 >8000 [ 1 >60 ] turn=0 1 >30 turn=0 >240 1 >30 turn=1 - H 2 >30 turn=0 V >240 2 >30 turn=2 "
     "+ 01 >8000 3 >60 turn=3 - >270 2 3 1 >90 turn=2 + 02 >8000 winner=Game_Over!/PLAYER_2/Wins!"},
    {"PadsWinByTheirFirstFrame", "5 3 3 row l",
     "2 1 3 turn=2 + 00 >8000 1 1 1 2 turn=1 - turn=0 3 turn=3 + 11 >8000 [ 2 1 >30 ] turn=0 >30 turn=2 + 01 "
     ">8000 3 turn=3 - 2 3 1 turn=2 + 02 >8000 winner=Game_Over!/PLAYER_2/Wins!"},
    {"BetweenQuestionsAndInStandbyNobodyRingsIn", "5 3 3 row w",
     "1 >30 turn=1 + 2 3 >120 turn=1 00 >8000 >270 H 2 3 >120 turn=0 V >270 3 >30 turn=3 - turn=0 "
     "btnQuestionCorrect=-"},
};

using WholeGame = StoryTest;
using PressGame = StoryTest;

TEST_P(WholeGame, EndsAsWorkedOutByHand) {
  GamePlayer player(GetParam().setup);
  player.Play(GetParam().script);
  // Five seconds after the end the show is back in standby, for a new set.
  player.Play("picWinner=up > > picStandby=up picWinner=- scores=0/0/0");
  player.Play(GetParam().setup[0] <= '2' ? "btnStart=on" : "btnStart=off");
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
  player.Play(GetParam().script);
  player.Play("> >");
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
  GamePlayer player("3 2 3 row");
  player.Play("+ 00 E > >");
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
  player.Play("btnStartGame");
  EXPECT_EQ(files.Read(set), before);
}

TEST_P(PressGame, GoesByTheFirstPress) { Play(); }

INSTANTIATE_TEST_SUITE_P(Games, WholeGame, testing::ValuesIn(kGames), StoryTest::Name);
INSTANTIATE_TEST_SUITE_P(Games, PressGame, testing::ValuesIn(kPresses), StoryTest::Name);

}  // namespace
}  // namespace pawnfield
