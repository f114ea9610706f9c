// A claim from the click to the resting piece, tick by tick, and the cycle that follows it.
#include "engine/board_play.h"

#include "platform/text.h"
#include "support/game_player.h"
#include "support/seen.h"

namespace pawnfield {
namespace {

TEST(BoardPlay, ThePieceTurnsOnItsMiddleAndComesBackToItsFullSize) {
  struct Case {
    const char* setup;
    const char* console;
    const char* audience;
  };
  const Case cases[] = {
      {"2 2 3 full", "1155 900 645 390 135 390 645 900 1155 ", "1609 1208 807 406 5 406 807 1208 "},
      {"2 2 4 full", "915 705 495 285 75 285 495 705 915 ", "1287 966 645 324 3 324 645 966 "},
      {"2 2 5 full", "750 585 420 255 90 255 420 585 750 ", "1072 804 536 268 0 268 536 804 "},
  };
  for (const Case& c : cases) {
    GamePlayer player(c.setup);
    Image& square = *player.form().img.At(1, 2);
    Image& twin = *player.fixture().audience().img.At(1, 2);
    const double middle = square.Top + square.Height / 2, twinMiddle = twin.Top + twin.Height / 2;
    std::string console = NumberText(square.Height) + " ", audience;
    player.Play("12!");
    for (int tick = 0; tick < 20; ++tick) {
      player.Play(">10");
      if (tick < 8) console += NumberText(square.Height) + " ";
      if (tick < 8) audience += NumberText(twin.Height) + " ";
      EXPECT_DOUBLE_EQ(square.Top + square.Height / 2, middle);
      EXPECT_DOUBLE_EQ(twin.Top + twin.Height / 2, twinMiddle);
    }
    EXPECT_EQ(console, c.console);
    EXPECT_EQ(audience, c.audience);
  }
}

TEST(BoardPlay, TheFlashShowsBothFacesSixTimesAndRestsOnTheFirst) {
  // Only the piece of player 2 has no second face while it turns.
  const std::pair<const char*, const char*> cases[] = {{"00!", "Xb Xa Xb Xa Xb Xa Xb Xa Xa "},
                                                       {"N 00!", "Oa Oa Ob Oa Ob Oa Ob Oa Oa "},
                                                       {"N N 00!", "Tb Ta Tb Ta Tb Ta Tb Ta Ta "}};
  for (const auto& [script, faces] : cases) {
    GamePlayer player("2 3 3 full");
    player.Play(script);
    std::string seen;
    for (const char* pause : {">50", ">50", ">50", ">150", ">150", ">150", ">150", ">150", ">150"}) {
      player.Play(pause);
      const std::string face = Seen(player.show(), "img00");
      seen += face.substr(0, 1) + face.substr(5, 1) + " ";
    }
    EXPECT_EQ(seen, faces);
  }
}

const Story kBoardPlay[] = {
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
    {"FiveQuestionsLeftIsToldOnce", "4 2 4 full m7",
     "+ 00 tmr5QuestionTimer=off C + 01 lblQuestion(0)=5_Questions_Left!/// btnContinue=off btnUndo=off "
     "> picQuestion=- btnContinue=on btnUndo=on C + 02 tmr5QuestionTimer=off picQuestion=-"},
};

using BoardPlayStory = StoryTest;
TEST_P(BoardPlayStory, GoesAsTold) { Play(); }
INSTANTIATE_TEST_SUITE_P(BoardPlay, BoardPlayStory, testing::ValuesIn(kBoardPlay), StoryTest::Name);

TEST(BoardPlay, TheRecordAfterTheLastIsAnEmptyQuestionAndTheLastIndexTheEnd) {
  GamePlayer player("4 2 5 full m");
  player.show().state.CurrentQuestion = 29;
  player.Play("+ 00 C picQuestion=up lblQuestion(0)=");
  player.show().state.CurrentQuestion = 100;
  player.Play("+ 01");
  player.fixture().sim.dialogs.ExpectMessage("Subscript out of range");
  player.Play("C");
  EXPECT_FALSE(TryClaimSquare(player.show(), 6, 0) || TryClaimSquare(player.show(), 0, -1));
}

}  // namespace
}  // namespace pawnfield
