// What the room sees beside the question: the band at its foot, the question's own colour, two players' cards, and how
// a game ended.

#include "data/house_colors.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "presentation/text_fitting.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

double Bottom(const Control& control) { return control.Top + control.Height; }

class Room : public testing::Test {
 protected:
  static FSMainForm& ScreenOf(GamePlayer& player) { return player.fixture().audience(); }
  static bool IsLit(const PictureBox& card) { return card.Picture->ends_with("scoreboxred.bmp"); }
};

TEST_F(Room, HasABandWhileAQuestionHidesTheBoardAndStandbyDoesNot) {
  GamePlayer player("Trivia A, 4x4, user advances");
  const PictureBox& band = ScreenOf(player).picBand;
  const std::pair<const char*, bool> steps[] = {{"correct, wait 3 s", false},
                                                {"claim A1", false},
                                                {"continue", true},
                                                {"hide", false},
                                                {"show", true},
                                                {"skip", false},
                                                {"end game", false}};
  EXPECT_TRUE(band.Visible);
  for (const auto& [step, up] : steps) {
    player.Do(step);
    EXPECT_EQ(band.Visible, up) << step;
  }
}

TEST_F(Room, SaysNamesScoresAndTheTurnInTheBand) {
  GamePlayer player("Trivia C, 4x4, user advances");
  const FSMainForm& room = ScreenOf(player);
  player.Do("player 2 rings in");
  EXPECT_TRUE(IsLit(room.picBandPlayer[1]));
  EXPECT_FALSE(IsLit(room.picBandPlayer[0]));
  player.Do("correct, claim A1, continue");
  EXPECT_EQ(room.lblBandScore[1].Caption.Get(), "50");
  EXPECT_EQ(room.lblBandName[1].Caption.Get(), "PLAYER 2");
  EXPECT_FALSE(IsLit(room.picBandPlayer[1])) << "the next question is everybody's";
}

TEST_F(Room, KeepsTheBandSlimAndEndsTheQuestionAboveIt) {
  GamePlayer player("Trivia A, 4x4, user advances");
  const FSMainForm& room = ScreenOf(player);
  EXPECT_LE(room.picBand.Height, 0.09 * room.Height);
  EXPECT_EQ(Bottom(room.picBand), room.Height);
  for (const PictureBox* panel :
       {&room.picQuestion, &room.picQuestionPicture, &room.picSound, &room.picHideQuestion, &room.picMOD}) {
    EXPECT_EQ(Bottom(*panel), room.picBand.Top) << panel->Name();
  }
  EXPECT_LE(Bottom(room.lblQuestion[0]), room.picQuestion.Height);
  player.Do("hide");
  EXPECT_EQ(Bottom(room.picMOD), room.Height) << "a film between questions has the whole screen";
}

TEST_F(Room, ShowsAQuestionInItsOwnColourWithAnEdgeThatSetsItOff) {
  GamePlayer player("Trivia A, 4x4, user advances");
  const std::pair<Color, Color> cases[] = {
      {kWhite, kBlack}, {kYellow, kBlack}, {kBlack, kWhite}, {FromRgb(0x0000FF), kWhite}, {FromRgb(0x800000), kWhite}};
  for (const auto& [letters, edge] : cases) {
    SetQuestionColor(player.form().lblQuestion, letters);
    EXPECT_EQ(ScreenOf(player).lblQuestion[0].ForeColor, letters);
    EXPECT_EQ(ScreenOf(player).lblQuestion[1].ForeColor, edge) << letters;
  }
}

TEST_F(Room, HasTheCardsInTheMiddleForTwoPlayersAndForThree) {
  GamePlayer player("Trivia A, 4x4, not started");
  FSMainForm& room = ScreenOf(player);
  for (const int players : {2, 3}) {
    player.form().optPlayers[static_cast<std::size_t>(players - 2)].Click();
    for (auto* cards : {&room.picPlayer, &room.picBandPlayer}) {
      const Control& last = (*cards)[static_cast<std::size_t>(players - 1)];
      EXPECT_NEAR((*cards)[0].Left, room.Width - last.Left - last.Width, 1) << players;
    }
  }
}

TEST_F(Room, SeesTheWinnerInTheOwnColourAndTheFinalScoresInOrder) {
  GamePlayer player("Trivia A, 4x4, user advances");
  player.Do("correct, claim A1, player 3 gains 1000, player 3 gains 100, player 1 gains 100, end game");
  for (const WinnerPanel* result : {&player.form().Winner, &ScreenOf(player).Winner}) {
    EXPECT_EQ(result->lblWinnerWord.Caption.Get(), "Wins!");
    EXPECT_TRUE(result->lblWinnerName[2].Visible);
    EXPECT_FALSE(result->lblWinnerName[0].Visible || result->lblWinnerName[1].Visible);
    EXPECT_EQ(result->lblWinnerName[2].ForeColor, kPlayerColors[3]);
    EXPECT_LT(result->picFinal[2].Left, result->picFinal[0].Left) << "player 3 before player 1";
    EXPECT_LT(result->picFinal[0].Left, result->picFinal[1].Left) << "player 1 before player 2";
    EXPECT_EQ(result->lblFinalScore[2].Caption.Get(), "1100");
  }
}

TEST_F(Room, SeesAllWhoLeadInATie) {
  GamePlayer player("Trivia A, 2 players, 4x4, user advances");
  player.Do("correct, claim A1");
  for (int i = 0; i < 5; ++i) player.Do("player 2 gains 10");
  player.Do("end game");
  const WinnerPanel& result = ScreenOf(player).Winner;
  EXPECT_EQ(result.lblWinnerWord.Caption.Get(), "Tie!");
  EXPECT_TRUE(result.lblWinnerName[0].Visible && result.lblWinnerName[1].Visible);
  EXPECT_GT(result.lblWinnerName[1].Top, result.lblWinnerName[0].Top);
  EXPECT_FALSE(result.picFinal[2].Visible) << "who doesn't play has no score";
}

TEST_F(Room, LeavesTheLastResultInTheOperatorsViewUntilTheNextStart) {
  GamePlayer player("Trivia A, 2 players, 4x4, user advances");
  const MainForm& console = player.form();
  player.Do("correct, claim A1, player 2 gains 100, end game");
  EXPECT_FALSE(console.picLastResult.IsShown());
  player.Do("wait 6 s");
  EXPECT_TRUE(console.picLastResult.IsShown());
  EXPECT_EQ(console.lblLastResult.Caption.Get(), "Last game: PLAYER 2 Wins!\r\nPLAYER 2 100, PLAYER 1 50");
  player.Do("choose the set, start, hide");
  EXPECT_FALSE(console.picLastResult.IsShown());
}

}  // namespace
}  // namespace pawnfield
