// A claim from the click to the resting piece, tick by tick, and the cycle that follows it.
#include "engine/board_play.h"

#include <gtest/gtest.h>

#include "support/game_player.h"

namespace pawnfield {
namespace {

constexpr const char* kImages = "C:\\Pawnfield\\Images\\";

std::string Face(ShowFixture& fixture, int r, int c) {
  const std::string path = fixture.form().img.At(r, c)->Picture;
  return path.starts_with(kImages) ? path.substr(std::string(kImages).size()) : path;
}

TEST(BoardPlay, ThePieceTurnsOnItsMiddleAndComesBackToItsFullSize) {
  struct Case {
    int grid;
    double height, low;
    int ticks;
    double audienceHeight;
  };
  const Case cases[] = {{3, 1155, 135, 8, 2010}, {4, 915, 75, 8, 1608}, {5, 750, 90, 8, 1340}};
  for (const Case& c : cases) {
    GamePlayer player({2, 2, c.grid, Ending::FullBoard, ""});
    ShowFixture& fixture = player.fixture();
    Image& square = *fixture.form().img.At(1, 2);
    Image& twin = *fixture.audience().img.At(1, 2);
    const double top = square.Top, twinTop = twin.Top;
    ASSERT_EQ(square.Height, c.height);
    ASSERT_EQ(twin.Height, c.audienceHeight);
    square.Click();
    double lowest = c.height;
    int ticks = 0;
    for (; fixture.form().tmrFlipPlayerPiece.Enabled && ticks < 50; ++ticks) {
      fixture.sim.clock.Advance(10);
      lowest = std::min(lowest, square.Height.Get());
      EXPECT_DOUBLE_EQ(square.Top + square.Height / 2, top + c.height / 2);
      EXPECT_GE(twin.Height, 0);
    }
    EXPECT_EQ(ticks, c.ticks) << c.grid;
    EXPECT_EQ(lowest, c.low) << c.grid;
    fixture.sim.clock.Advance(100);
    EXPECT_EQ(square.Height, c.height);
    EXPECT_EQ(twin.Height, c.audienceHeight);
    EXPECT_EQ(twin.Top, twinTop);
  }
}

TEST(BoardPlay, TheFlashShowsBothFacesSixTimesAndRestsOnTheFirst) {
  struct Case {
    const char* before;
    const char* edge;
    const char* rest;
    const char* second;
  };
  const Case cases[] = {{"", "X-100b.bmp", "X-100a.bmp", "X-100b.bmp"},
                        {"N", "O-100a.bmp", "O-100a.bmp", "O-100b.bmp"},
                        {"N N", "T-100b.bmp", "T-100a.bmp", "T-100b.bmp"}};
  for (const Case& c : cases) {
    GamePlayer player({2, 3, 3, Ending::FullBoard, ""});
    ShowFixture& fixture = player.fixture();
    player.Play(c.before);
    fixture.Claim(0, 0);
    fixture.sim.clock.Advance(50);
    EXPECT_EQ(Face(fixture, 0, 0), c.edge);
    fixture.sim.clock.Advance(50);
    EXPECT_EQ(Face(fixture, 0, 0), c.rest);
    fixture.sim.clock.Advance(50);
    for (int tick = 1; tick <= 6; ++tick) {
      EXPECT_EQ(Face(fixture, 0, 0), tick % 2 == 1 ? c.second : c.rest) << tick;
      EXPECT_EQ(fixture.form().tmrAnswer.Enabled, tick < 6) << tick;
      fixture.sim.clock.Advance(150);
    }
    EXPECT_EQ(Face(fixture, 0, 0), c.rest);
  }
}

TEST(BoardPlay, OnlyAnOpenBoardTakesAClaimFromEitherScreen) {
  GamePlayer player({2, 2, 3, Ending::FullBoard, ""});
  ShowFixture& fixture = player.fixture();
  fixture.audience().img.At(2, 2)->Click();
  EXPECT_EQ(player.Board(), "000/000/001");
  fixture.Claim(0, 0);
  fixture.sim.clock.Advance(899);
  fixture.Claim(0, 0);
  EXPECT_EQ(player.Board(), "000/000/001");
  fixture.sim.clock.Advance(1);
  fixture.Claim(0, 0);
  EXPECT_EQ(player.Board(), "100/000/001");
  EXPECT_EQ(fixture.sim.media.EventPlayer.Url, "C:\\Pawnfield\\Sound Effects\\Pawn.Wav");
  EXPECT_FALSE(TryClaimSquare(fixture.show(), 6, 0));
  EXPECT_FALSE(TryClaimSquare(fixture.show(), 0, -1));
}

TEST(BoardPlay, ABonusStandsThreeSecondsAndThenTheGameGoesOn) {
  GamePlayer player({2, 2, 3, Ending::FullBoard, ""});
  ShowFixture& fixture = player.fixture();
  player.Play("00 22 20 02");
  fixture.Claim(1, 1);
  fixture.sim.clock.Advance(899);
  EXPECT_FALSE(fixture.form().picBonus.Visible);
  fixture.sim.clock.Advance(1);
  EXPECT_TRUE(fixture.audience().picBonus.Visible);
  EXPECT_FALSE(fixture.show().state.PlacementOpen);
  EXPECT_EQ(fixture.sim.media.EventPlayer.Url, "C:\\Pawnfield\\Sound Effects\\DDouble.wav");
  fixture.sim.clock.Advance(3000);
  EXPECT_FALSE(fixture.audience().picBonus.Visible);
  EXPECT_TRUE(fixture.show().state.PlacementOpen);
  EXPECT_TRUE(fixture.form().btnUndo.Enabled);
  EXPECT_EQ(fixture.Scores(), "500 0 0");
}

TEST(QuestionCycle, ThePauseIsAsLongAsChosenAndTheUserMayAdvance) {
  for (const int choice : {0, 1, 2, 3}) {
    GamePlayer player({4, 2, 3, Ending::FullBoard, ""});
    ShowFixture& fixture = player.fixture();
    player.Play("+");
    fixture.form().cboAutoContinue.Select(choice);
    fixture.Claim(0, 0);
    fixture.sim.clock.Advance(900 + (choice + 3) * 1000 - 1);
    EXPECT_EQ(fixture.show().state.CurrentQuestion, 0) << choice;
    fixture.sim.clock.Advance(1);
    EXPECT_EQ(fixture.show().state.CurrentQuestion, choice == 3 ? 0 : 1) << choice;
    fixture.sim.clock.Advance(60000);
    EXPECT_EQ(fixture.form().btnContinue.Enabled, choice == 3) << choice;
  }
}

TEST(QuestionCycle, EachKindOfQuestionHasItsPanelOnBothScreensUntilTheVerdict) {
  struct Case {
    const char* question;
    const char* panel;
    const char* sound;
  };
  const Case cases[] = {{"Which one?", "picQuestion", ""},
                        {"C:\\Shows\\clip.WAV", "picSound", "C:\\Shows\\clip.WAV"},
                        {"C:\\Shows\\photo.jpg", "picQuestionPicture", ""}};
  for (const Case& c : cases) {
    ShowFixture fixture;
    fixture.sim.files.Put("C:\\Shows\\photo.jpg", SimPictures::PictureBytes(800, 600));
    fixture.sim.files.Put("C:\\Shows\\clip.WAV", "sound");
    fixture.WriteSet("One", {c.question});
    fixture.Start();
    fixture.form().optGameType[2].Click();
    fixture.ChooseSet("One");
    fixture.form().btnStart.Click();
    for (const bool up : {true, false}) {
      for (const char* panel : {"picQuestion", "picSound", "picQuestionPicture"}) {
        const bool expected = up && std::string(panel) == c.panel;
        EXPECT_EQ(fixture.form().Find(panel)->Visible.Get(), expected) << c.question << " " << panel;
        EXPECT_EQ(fixture.audience().Find(panel)->Visible.Get(), expected) << c.question << " " << panel;
      }
      EXPECT_EQ(fixture.sim.media.SoundClipPlayer.Playing, up && *c.sound != 0) << c.question;
      fixture.form().btnQuestionCorrect.Click();
    }
    EXPECT_EQ(fixture.sim.media.SoundClipPlayer.Url, c.sound);
    EXPECT_EQ(fixture.form().lblAnswer.Caption, "The answer");
  }
}

TEST(QuestionCycle, FiveQuestionsLeftIsToldOnceOnBothScreens) {
  GamePlayer player({4, 2, 4, Ending::FullBoard, "m"});
  ShowFixture& fixture = player.fixture();
  fixture.show().NumGameQuestions = 7;
  player.Play("+ 00");
  EXPECT_FALSE(fixture.form().tmr5QuestionTimer.Enabled);
  player.Play("C + 01");
  EXPECT_EQ(fixture.form().lblQuestion[0].Caption, "5 Questions Left!\r\n\r\n\r\n");
  EXPECT_EQ(fixture.audience().lblQuestion[0].Caption, "5 Questions Left!\r\n\r\n\r\n");
  EXPECT_EQ(fixture.audience().lblQuestion[0].Font->Size, 60);
  EXPECT_FALSE(fixture.form().btnContinue.Enabled);
  player.Play("> C + 02");
  EXPECT_FALSE(fixture.form().tmr5QuestionTimer.Enabled);
  EXPECT_FALSE(fixture.form().picQuestion.Visible);
}

TEST(QuestionCycle, TheRecordAfterTheLastIsAnEmptyQuestionAndTheLastIndexTheEnd) {
  GamePlayer player({4, 2, 5, Ending::FullBoard, "m"});
  ShowFixture& fixture = player.fixture();
  fixture.show().state.CurrentQuestion = 29;
  player.Play("+ 00 C");
  EXPECT_TRUE(fixture.form().picQuestion.Visible);
  EXPECT_EQ(fixture.form().lblQuestion[0].Caption, "");
  fixture.show().state.CurrentQuestion = 100;
  player.Play("+ 01");
  fixture.sim.dialogs.ExpectMessage("Subscript out of range");
  fixture.form().btnContinue.Click();
}

}  // namespace
}  // namespace pawnfield
