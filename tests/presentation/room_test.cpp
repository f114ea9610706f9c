// What the room sees beside the question: the band at its foot, the question's own colour, two players' cards, and how
// a game ended.

#include "data/house_colors.h"
#include "forms/fs_main_form.h"
#include "media/question_pictures.h"
#include "presentation/text_fitting.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

double Bottom(const Control& control) { return control.Top + control.Height; }

TEST(Band, IsUpWhileAQuestionHidesTheBoardAndGoesWithItAndWithStandby) {
  GamePlayer player("3 3 4 full m");
  player.Play("picQuestion'=up picBand'=up lblBandName(1)'=PLAYER_2 + picBand'=- 11 picBand'=- C picBand'=up");
  player.Play("H picBand'=- V picBand'=up txtPlayerName(0)=-");
}

TEST(Band, SaysScoresAndWhoseTurnItIs) {
  GamePlayer player("5 3 4 full m");
  const FSMainForm& audience = player.fixture().audience();
  player.Play("r2");
  EXPECT_TRUE(audience.picBandPlayer[1].Picture->ends_with("scoreboxred.bmp"));
  EXPECT_TRUE(audience.picBandPlayer[0].Picture->ends_with("scorebox.bmp"));
  player.Play("+ 11 C lblBandScore(1)'=50 lblBandScore(0)'=0");
}

TEST(Band, IsSlimAndWhatAQuestionShowsEndsAboveIt) {
  GamePlayer player("3 3 4 full m");
  const FSMainForm& audience = player.fixture().audience();
  EXPECT_LE(audience.picBand.Height, 0.09 * audience.Height);
  EXPECT_EQ(Bottom(audience.picBand), audience.Height);
  for (const PictureBox* panel : {&audience.picQuestion, &audience.picQuestionPicture, &audience.picSound,
                                  &audience.picHideQuestion, &audience.picCorrect, &audience.picMOD}) {
    EXPECT_EQ(Bottom(*panel), audience.picBand.Top) << panel->Name();
  }
  EXPECT_LE(Bottom(audience.lblQuestion[0]), audience.picQuestion.Height);
  player.Play("H");
  EXPECT_EQ(Bottom(audience.picMOD), audience.Height) << "a film between questions has the whole screen";
}

TEST(QuestionColor, IsTheQuestionsOwnOnBothScreensWithAnEdgeThatSetsItOff) {
  GamePlayer player("3 3 4 full m");
  const std::pair<Color, Color> cases[] = {
      {kWhite, kBlack}, {kYellow, kBlack}, {kBlack, kWhite}, {FromRgb(0x0000FF), kWhite}, {FromRgb(0x800000), kWhite}};
  for (const auto& [letters, edge] : cases) {
    SetQuestionColor(player.form().lblQuestion, letters);
    const auto& room = player.fixture().audience().lblQuestion;
    EXPECT_EQ(room[0].ForeColor, letters);
    EXPECT_EQ(room[1].ForeColor, edge) << letters;
  }
}

TEST(Cards, OfTwoPlayersStandInTheMiddle) {
  GamePlayer player("3 3 4 full mi");
  FSMainForm& audience = player.fixture().audience();
  for (const int players : {2, 3}) {
    player.form().optPlayers[static_cast<std::size_t>(players - 2)].Click();
    for (const auto* cards : {&audience.picPlayer, &audience.picBandPlayer}) {
      const Control& last = (*cards)[static_cast<std::size_t>(players - 1)];
      EXPECT_NEAR((*cards)[0].Left, audience.Width - last.Left - last.Width, 1) << players;
    }
  }
}

TEST(Result, NamesTheWinnerInTheOwnColourAndOrdersTheFinalScores) {
  GamePlayer player("3 3 4 full m");
  player.Play("u22 u31 u31 u11 d12 E");
  for (const WinnerPanel* result : {&player.form().Winner, &player.fixture().audience().Winner}) {
    EXPECT_EQ(result->lblWinnerWord.Caption.Get(), "Wins!");
    EXPECT_TRUE(result->lblWinnerName[2].Visible);
    EXPECT_FALSE(result->lblWinnerName[0].Visible || result->lblWinnerName[1].Visible);
    EXPECT_EQ(result->lblWinnerName[2].ForeColor, kPlayerColors[3]);
    EXPECT_LT(result->picFinal[2].Left, result->picFinal[0].Left) << "player 3 before player 1";
    EXPECT_LT(result->picFinal[0].Left, result->picFinal[1].Left) << "player 1 before player 2";
  }
}

TEST(Result, OfATieNamesAllWhoLead) {
  GamePlayer player("3 2 4 full m");
  player.Play("E winner=Game_Over!/PLAYER_1_and_/PLAYER_2/Tie!");
  const WinnerPanel& result = player.fixture().audience().Winner;
  EXPECT_EQ(result.lblWinnerWord.Caption.Get(), "Tie!");
  EXPECT_TRUE(result.lblWinnerName[0].Visible && result.lblWinnerName[1].Visible);
  EXPECT_GT(result.lblWinnerName[1].Top, result.lblWinnerName[0].Top);
  EXPECT_FALSE(result.picFinal[2].Visible) << "who doesn't play has no score";
}

TEST(Result, StaysInTheOperatorsViewUntilTheNextStart) {
  GamePlayer player("3 2 4 full m");
  player.Play("u21 E picLastResult=- >5000 picStandby=up picLastResult=up");
  player.Play("lblLastResult=Last_game:_PLAYER_2_Wins!/PLAYER_2_100000,_PLAYER_1_0 set picLastResult=up btnStart");
  player.Play("picLastResult=-");
}

}  // namespace
}  // namespace pawnfield
