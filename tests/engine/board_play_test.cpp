// A claim from the click to the resting piece, tick by tick, and the cycle that follows it.
#include "engine/board_play.h"

#include "forms/fs_main_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const Story kBoardPlay[] = {
    {"APieceTurnsOnItsMiddleOnA3x3Board", "2 2 3 full",
     "12! >10 img12.Height=900 img12.Top=3312.5 img12.Height'=1609 img12.Top'=5780.5 >30 img12.Height=135 "
     "img12.Height'=406 >40 img12.Height=1155 img12.Top=3185 tmrFlipPlayerPiece=off >20 img12.Height'=2010 "
     "img12.Top'=5580"},
    {"APieceTurnsOnItsMiddleOnA4x4Board", "2 2 4 full",
     "12! >10 img12.Height=705 img12.Top=2810 img12.Height'=1287 img12.Top'=4936.5 >30 img12.Height=75 "
     "img12.Height'=324 >40 img12.Height=915 img12.Top=2705 tmrFlipPlayerPiece=off >20 img12.Height'=1608 "
     "img12.Top'=4776"},
    {"APieceTurnsOnItsMiddleOnA5x5Board", "2 2 5 full",
     "12! >10 img12.Height=585 img12.Top=2457.5 img12.Height'=1072 img12.Top'=4374 >30 img12.Height=90 "
     "img12.Height'=268 >40 img12.Height=750 img12.Top=2375 tmrFlipPlayerPiece=off >20 img12.Height'=1340 "
     "img12.Top'=4240"},
    {"TheFlashShowsBothFacesSixTimesAndRestsOnTheFirst", "2 3 3 full",
     "00! >50 img00=X-100b.bmp >50 img00=X-100a.bmp >50 img00=X-100b.bmp >150 img00=X-100a.bmp >150 img00=X-100b.bmp "
     ">150 img00=X-100a.bmp >150 img00=X-100b.bmp >150 tmrAnswer=off img00=X-100a.bmp >150 img00=X-100a.bmp"},
    {"ThePieceOfPlayer2HasNoSecondFaceWhileItTurns", "2 3 3 full",
     "N 00! >50 img00=O-100a.bmp >50 img00=O-100a.bmp >50 img00=O-100b.bmp >150 img00=O-100a.bmp"},
    {"ThePieceOfPlayer3", "2 3 3 full",
     "N N 00! >50 img00=T-100b.bmp >50 img00=T-100a.bmp >50 img00=T-100b.bmp >150 img00=T-100a.bmp"},
    {"OnlyAnOpenBoardTakesAClaimFromEitherScreen", "2 2 3 full",
     "22' board=000/000/001 00! >899 00! board=000/000/001 >1 00! board=100/000/001 event=Pawn.Wav"},
    {"ABonusStandsThreeSecondsAndThenTheGameGoesOn", "2 2 3 full",
     "00 22 20 02 11! >899 picBonus=- >1 picBonus'=up event=DDouble.wav 01! board=101/010/101 >2999 picBonus'=up >1 "
     "picBonus'=- btnUndo=on scores=500/0/0 01 board=111/010/101"},
    {"ThePauseIsThreeSeconds", "4 2 3 full", "+ cboAutoContinue:0 00! >3899 question=0 >1 question=1 btnContinue=off"},
    {"ThePauseIsFiveSeconds", "4 2 3 full", "+ cboAutoContinue:2 00! >5899 question=0 >1 question=1 btnContinue=off"},
    {"TheUserAdvances", "4 2 3 full", "+ cboAutoContinue:3 00! >60000 question=0 btnContinue=on C question=1"},
    {"EachKindOfQuestionHasItsPanelUntilTheVerdict", "3 2 3 full mk",
     "picQuestion'=up picQuestionPicture'=- picSound'=- + picQuestion'=- 00 C "
     "picQuestion'=- picQuestionPicture'=up picSound'=- + picQuestionPicture'=- 10 C "
     "picQuestion'=- picQuestionPicture'=- picSound'=up clip=clip.WAV + picSound'=- lblAnswer=The_answer"},
    {"FiveQuestionsLeftIsReportedOnce", "4 2 4 full m7",
     "+ 00 tmr5QuestionTimer=off C + 01 lblQuestion(0)=5_Questions_Left! btnContinue=off btnUndo=off "
     "> picQuestion=- btnContinue=on btnUndo=on C + 02 tmr5QuestionTimer=off picQuestion=-"},
    {"TheLineAndThenTheWinnerAreSeen", "2 2 3 row",
     "00 01 02! scores=200/0/0 offers=StandbyMode picWinner=- >150 img00=X-100b.bmp img01'=X-100b.bmp img02=X-100b.bmp "
     ">150 img00'=X-100a.bmp img01=X-100a.bmp >599 img02=X-100b.bmp picWinner=- tmrWinner=off >1 img02=X-100a.bmp "
     "picWinner=up picWinner'=up >4999 picWinner=up >1 picWinner=- picStandby=up"},
    {"ABonusComesBetweenTheFlashAndTheWinner", "2 2 3 row",
     "cbxScore(0):10 02 11 20! >900 picBonus=up picBonus'=up picWinner=- >2999 picWinner=- >1 picBonus'=- "
     "picWinner'=up "
     "winner=Game_Over!/PLAYER_1/Wins! btnUndo=off"},
    {"TheWinnerWaitsAlsoOnAFullBoard", "2 2 3 full 0",
     "00 01 02 10 11 12 20 21 cbxScore(1):0 22! >899 picWinner=- > picBonus=- picWinner=up"},
    {"EndGameAmidAFlashLeavesNothingToCome", "4 2 3 full",
     "+ 00 > + 01! >100 E picWinner=up tmrAutoContinue=off > question=1 picQuestion=- btnUndo=off picWinner=up"},
    {"UndoWithinTheFlashLeavesTheSquareEmptyOnBothScreens", "2 2 3 full",
     "00 01! >160 U img01=Blank.bmp img01'=Blank.bmp btnReset=on >2000 img01=Blank.bmp img01'=Blank.bmp "
     "board=100/000/000 "
     "scores=50/0/0 lblPlayer1Score=50 Label11(0)'=50 02 board=101/000/000"},
    {"UndoWhileThePieceTurnsPutsTheSquareBackInItsPlace", "2 2 3 full",
     "00 12! >30 U img12.Height=1155 img12.Top=3185 img12.Height'=2010 >2000 img12=Blank.bmp img12'=Blank.bmp"},
    {"TheSetEndsWithTheBoardAndAWord", "4 2 3 full mk",
     "lblStatusBar=3_questions_for_9_squares:_this_set_ends_before_the_board_is_full. "
     "+ 00 C + 11 C + 01 C lblStatusBar=No_questions_left picQuestion=- picQuestion'=- picSound'=- picStandby=- "
     "btnQuestionCorrect=- btnContinue=off question=2 btnUndo=on"},
    {"TheSetEndsAlsoWhereTheGameGoesOnByItself", "4 2 3 full k",
     "+ 00 > + 11 > + 01 > lblStatusBar=No_questions_left picQuestion'=- btnQuestionCorrect=- question=2"},
};

using BoardPlayStory = StoryTest;
TEST_P(BoardPlayStory, GoesAsWritten) { Play(); }
INSTANTIATE_TEST_SUITE_P(BoardPlay, BoardPlayStory, testing::ValuesIn(kBoardPlay), StoryTest::Name);

// The room's label had neither place nor size before the first question in words.
TEST(BoardPlay, AMachineThatSleptWhileAPieceTurnedShowsTheFlashAlikeOnBothScreens) {
  for (const char* turned : {">20", ">60", ">80", ">90", ">99"}) {
    GamePlayer player("1 2 3 full");
    player.Play(std::string("10! ") + turned);
    player.fixture().sim.clock.Sleep(4 * 3600 * 1000);
    player.Play(">1 >40 >40 >40 >2000 img10=X-100a.bmp img10'=X-100a.bmp");
  }
}

TEST(BoardPlay, FiveQuestionsLeftIsFittedAndCentredAlsoWhereOnlyPicturesCameBefore) {
  GamePlayer player("4 2 3 full mi");
  player.fixture().WriteSet("Pictures", std::vector<std::string>(7, "C:\\Shows\\photo.jpg"));
  player.fixture().ChooseSet("Pictures");
  player.Play(
      "btnStart + 00 C + 01 tmr5QuestionTimer=on lblQuestion(0)'=5_Questions_Left! lblQuestion(1)'=5_Questions_Left!");
  const Label& notice = player.fixture().audience().lblQuestion[0];
  const PictureBox& panel = player.fixture().audience().picQuestion;
  EXPECT_GT(notice.Width, panel.Width * 0.9);
  EXPECT_NEAR(notice.Top + notice.Height / 2, panel.Height / 2, 1);
}

TEST(BoardPlay, ThereIsNoSquareBeyondTheTable) {
  GamePlayer player("4 2 5 full m");
  EXPECT_FALSE(TryClaimSquare(player.show(), 6, 0) || TryClaimSquare(player.show(), 0, -1));
}

}  // namespace
}  // namespace pawnfield
