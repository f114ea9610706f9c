// What the console offers and locks in each game type and phase.
#include "support/game_player.h"

namespace pawnfield {
namespace {

const Story kStates[] = {
    {"AfterResetOfChallengeA", "1 3 3 full", "00 R picStandby=up offers=Start,PlayMode options=GameType(0)"},
    {"AfterResetOfChallengeB", "2 3 3 full", "00 R picStandby=up offers=Start,PlayMode options=GameType(0)"},
    {"AfterResetOfTriviaA", "3 3 3 full m",
     "+ 00 R picStandby=up offers=SelectGame,PlayMode "
     "options=Animation,IncorrectPenalty,TimedResponse,AutoContinue,List,SelectPlayer(0),SelectPlayer(2),GameType(0)"},
    {"AfterResetOfTriviaB", "4 3 3 full m",
     "+ 00 R picStandby=up offers=SelectGame,PlayMode "
     "options=Animation,IncorrectPenalty,TimedResponse,AutoContinue,List,SelectPlayer(0),SelectPlayer(2),GameType(0)"},
    {"AfterResetOfTriviaC", "5 2 3 full m",
     "r1 + 00 R picStandby=up offers=SelectGame,PlayMode "
     "options=Animation,HideQuestion,IncorrectPenalty,TimedResponse,AutoContinue,List,SelectPlayer(0),GameType(0)"},
    {"AChangeOfTypeWhileIdleOffersTheNewTypesOptions", "1 2 3 full i",
     "offers=Start,PlayMode optGameType(2) offers=SelectGame,PlayMode cboList:0 cboAutoContinue:0 "
     "optGameType(1) offers=Start,PlayMode"},
    {"PhasesOfAChallenge", "1 2 3 full",
     "offers=StandbyMode,NextPlayer 00 offers=StandbyMode,NextPlayer,Undo,Reset,EndGame "
     "H offers=PlayMode,NextPlayer,Undo,Reset,EndGame E picWinner=- V E picWinner=up offers=StandbyMode"},
    {"PhasesOfATriviaTurn", "3 2 3 full m",
     "offers=SelectGame,StandbyMode,NextPlayer,SkipQuestion,QuestionCorrect "
     "+ offers=SelectGame,StandbyMode,NextPlayer,SkipQuestion "
     "00 offers=SelectGame,StandbyMode,NextPlayer,Continue,SkipQuestion,Undo,Reset,EndGame "
     "C offers=SelectGame,StandbyMode,NextPlayer,SkipQuestion,Reset,EndGame,QuestionCorrect"},
    {"PhasesOfATriviaTurnThatGoesOnByItself", "3 2 3 full",
     "+ 00 offers=SelectGame,StandbyMode,NextPlayer,SkipQuestion,Undo,Reset,EndGame"},
    {"PhasesOfARingIn", "5 2 3 full m",
     "offers=SelectGame,StandbyMode,SkipQuestion options=List,SelectPlayer(0) "
     "r1 offers=SelectGame,StandbyMode,SkipQuestion,QuestionCorrect - offers=SelectGame,StandbyMode,SkipQuestion "
     "r1 + "
     "options=Animation,HideQuestion,IncorrectPenalty,TimedResponse,AutoContinue,List,SelectPlayer(0),GameType(0)"},
    {"AChangeOfGridOrPlayersActsAtOnce", "1 3 5 full",
     "00 44 H V turn=3 optPlayers(0) turn=1 picP3Score=- picPlayer(2)'=- fraGridControl=off "
     "R optGameType(0) >2000 optGridControl(0) board=000/000/000 img03=- imgD'=- img4=- turn=1"},
    {"AChangeOfTypeInARunningGameIsAsked", "2 2 3 full",
     "00 optGameType(1) optGameType(3)@frmGameInProgress { btnCancel } optGameType(1)=1 optGameType(3)=0 "
     "board=100/000/000 scores=50/0/0 optGameType(3)@frmGameInProgress { btnReset } optGameType(3)=1 "
     "board=000/000/000 picStandby=up btnStart=off"},
    {"TheGridStaysLockedInARunningGameWhateverWasClicked", "2 2 3 full",
     "fraGridControl=off 00 optGameType(1) >4000 fraGridControl=off optGameType(3)@frmGameInProgress { btnCancel } "
     ">4000 fraGridControl=off tmrArrowsTimer=off R >2000 fraGridControl=up"},
    {"AGameStartedWhileTheWinnerStandsIsKept", "2 2 3 full",
     "00 E picWinner'=up optGameType(1) picWinner'=- picStandby=up btnStart 11 >8000 scores=50/0/0 board=000/010/000 "
     "picStandby=-"},
    {"TheTurnHasItsColourAndTheStatusTextSkipsTheStepFromThreeToOne", "2 3 3 full",
     "N N lblStatusBar=Player_3_Selected! lblP3Score.BackColor=255 lblP1Score.BackColor=65535 "
     "txtDJCommand.BackColor=65280 N turn=1 lblStatusBar=Player_3_Selected!"},
    {"TheStatusTextTellsTheStepFromTwoToOne", "2 2 3 full", "N N turn=1 lblStatusBar=Player_1_Selected!"},
};

using ConsoleStates = StoryTest;
TEST_P(ConsoleStates, AreAsWritten) { Play(); }
INSTANTIATE_TEST_SUITE_P(Stories, ConsoleStates, testing::ValuesIn(kStates), StoryTest::Name);

TEST(Console, ALoadThatIsCancelledOrRefusedLeavesTheGameAndItsQuestionAsTheyWere) {
  GamePlayer player("3 2 3 full m");
  ScriptedDialogs& dialogs = player.fixture().sim.dialogs;
  const std::string before =
      " scores=50/0/0 board=100/000/000 question=1 picQuestion'=up lblQuestion(0)=Question_2? btnQuestionCorrect=on "
      "optGameType(0).Enabled=no picStandby'=-";
  dialogs.ExpectFile("");
  player.Play("+ 00 C btnSelectGame" + before);
  EXPECT_EQ(dialogs.FileRequests().back().Filter, "Game Sets(*.txt)|*.txt");
  EXPECT_EQ(dialogs.FileRequests().back().InitialFolder, "C:\\Pawnfield\\Trivia Sets");
  dialogs.ExpectFile("C:\\Pawnfield\\Trivia Sets\\Gone.txt");
  player.Play("?Procedure:_LoadGameSet btnSelectGame" + before);
  player.fixture().sim.files.Remove("C:\\Pawnfield\\Trivia Sets\\Long.txt");
  player.Play("?Procedure:_LoadGameSet cboList:1" + before + " + optGameType(0).Enabled=yes 11 scores=50/50/0");
  player.fixture().WriteNumberedSet("Long", 30);
  dialogs.ExpectFile("C:\\Pawnfield\\Trivia Sets\\Long.txt");
  player.Play("btnSelectGame btnStart=on picStandby'=-");
  EXPECT_EQ(player.show().NumGameQuestions, 30);
}

}  // namespace
}  // namespace pawnfield
