// Verdicts, points, skip and undo, by presses on the console.
#include "forms/main_form.h"
#include "presentation/both_screens.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

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
  GamePlayer player("1 2 3 row");
  for (const Case& c : cases) {
    SetScore(player.show(), 2, c.start);
    player.Play(std::string(c.step) + " scores=0/" + c.after + "/0");
  }
}

const Story kJudging[] = {
    {"SkipKeepsTheTurnInTriviaA", "3 3 3 row", "+ 00 > - turn=3 S turn=3 question=1 > question=2 picQuestion=up"},
    {"SkipTakesTheTurnInTriviaB", "4 3 3 row", "+ 00 > - turn=2 S turn=0 question=1 > question=2 picQuestion=up"},
    {"SkipLiftsTheCoverInTriviaC", "5 3 3 row",
     "r2 turn=2 picHideQuestion'=up S turn=0 picHideQuestion'=- > question=1 picQuestion=up"},
    {"UndoTakesBackTheBonusOfALine", "1 2 3 full", "00 10 01 11 02 U scores=100/100/0 turn=1 btnUndo=off"},
    {"UndoGivesTheTurnBackToPlayer1", "1 3 3 full", "00 U scores=0/0/0 turn=1"},
    {"UndoGivesTheTurnBackToPlayer3", "1 3 3 full", "00 01 02 U scores=50/50/0 turn=3"},
    {"UndoLeavesTheTurnInChallengeB", "2 3 3 full", "00 N 01 U scores=50/0/0 turn=2"},
    {"UndoGivesTheTurnBackInTriviaA", "3 2 3 full", "+ 00 > + 01 U scores=50/0/0 turn=2"},
    {"UndoLeavesTheTurnInTriviaB", "4 2 3 full", "+ 00 U scores=0/0/0 turn=1"},
    {"UndoTakesTheScoreBackInTriviaC", "5 2 3 full", "r2 + 00 U scores=0/0/0 turn=2"},
    {"AClaimOfNoPointsCantBeUndone", "1 2 3 full 0", "11 U scores=0/0/0 turn=2 board=000/010/000"},
    {"AVerdictSounds", "3 2 3 full", "- event=Incorrect.mp3 picCorrect=-"},
    {"AnAnimatedVerdictStandsFourAndAHalfSeconds", "3 2 3 full a",
     "+ verdict=Correct4swf.mp3 picCorrect=up lblRightWrong'=Correct! >200 lblRightWrong'=- "
     ">4299 picCorrect=up lblRightWrong=Correct! >1 picCorrect'=-"},
    {"ASecondVerdictPictureStandsItsWholeTimeToo", "3 2 3 full a",
     "- >3000 - >4499 picCorrect=up picCorrect'=up >1 picCorrect=- picCorrect'=-"},
    {"UndoTakesTheScoreBackOnEveryDisplay", "1 2 3 full", "00 U lblP1Score=0 lblPlayer1Score=0 Label11(0)'=0"},
    {"APawnLetsTheVerdictSoundOn", "3 2 3 full", "+ event=Correct.mp3 >450 00! event=Correct.mp3 verdict=Pawn.Wav"},
    {"APawnLetsTheAnimatedVerdictSoundOn", "3 2 3 full a",
     "+ verdict=Correct4swf.mp3 >450 00! verdict=Correct4swf.mp3 event=Pawn.Wav"},
    {"TheValueOfASquareAndALineChangesAtOnce", "2 2 3 full", "00 cbxScore(0):10 cbxScore(1):2 01 02 scores=270/0/0"},
};

using JudgingStory = StoryTest;
TEST_P(JudgingStory, GoesAsWritten) { Play(); }
INSTANTIATE_TEST_SUITE_P(Judging, JudgingStory, testing::ValuesIn(kJudging), StoryTest::Name);

TEST(Judging, AnIncorrectVerdictCostsOnlyWhoHoldsTheQuestion) {
  GamePlayer player("5 3 3 full p");
  player.Play("r2 picHideQuestion'=up lblPlayerName'=PLAYER_2 btnBuzzer(0).Enabled=no");
  player.form().lblP2Score.Caption = "-999950";
  player.Play("- scores=0/-1000050/0 turn=0 picHideQuestion'=- btnQuestionCorrect=- picQuestion=up");
  player.Play("btnBuzzer(0).Enabled=yes btnBuzzer(1).Enabled=yes btnBuzzer(2).Enabled=yes");
}

}  // namespace
}  // namespace pawnfield
