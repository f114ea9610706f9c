// What goes wrong with files in mid-show is told once, and the show runs on.
#include <gtest/gtest.h>

#include "../support/show_fixture.h"

namespace pawnfield {
namespace {

std::vector<std::string> PictureSet() {
  return {"C:\\Shows\\broken.jpg", "C:\\Shows\\missing.jpg", "C:\\Shows\\missing.wav", "A last question?"};
}

// Judges the question correct, claims the square and lets the pause before the next question run out.
void PlaySquare(ShowFixture& fixture, int row, int column) {
  fixture.form().btnQuestionCorrect.Click();
  fixture.Claim(row, column);
  fixture.sim.clock.Advance(5000);
}

TEST(Faults, BrokenAndMissingMediaAreToldAndTheGameGoesOn) {
  ShowFixture fixture;
  fixture.sim.files.Put("C:\\Shows\\broken.jpg", "no picture at all");
  fixture.WriteSet("Media", PictureSet());
  fixture.Start();
  fixture.form().optGameType[2].Click();
  fixture.sim.dialogs.ExpectForm("frmDialog2", [&] { fixture.show().frmDialog2.btnCancel.Click(); });
  fixture.ChooseSet("Media");
  fixture.sim.dialogs.ExpectMessage("An untrapped error has occurred.  Please make a ");
  fixture.form().btnStart.Click();
  EXPECT_TRUE(fixture.form().btnQuestionCorrect.Visible);
  fixture.sim.dialogs.ExpectMessage("File not found:");
  PlaySquare(fixture, 0, 0);
  EXPECT_EQ(fixture.show().state.CurrentQuestion, 1);
  PlaySquare(fixture, 1, 0);
  EXPECT_TRUE(fixture.form().picSound.Visible);
  EXPECT_EQ(fixture.sim.media.SoundClipPlayer.Url, "C:\\Shows\\missing.wav");
  PlaySquare(fixture, 2, 1);
  EXPECT_EQ(fixture.form().lblQuestion[0].Caption, "A last question?");
  EXPECT_TRUE(fixture.audience().picQuestion.Visible);
  EXPECT_EQ(fixture.Scores(), "50 50 50");
}

TEST(Faults, AMissingImagesFolderCostsThePicturesAndNotTheGame) {
  ShowFixture fixture;
  for (const std::string& name : fixture.sim.files.List("C:\\Pawnfield\\Images", "")) {
    fixture.sim.files.Remove("C:\\Pawnfield\\Images\\" + name);
  }
  fixture.WriteNumberedSet("Plain", 5);
  fixture.sim.dialogs.ExpectMessage("No hardware was detected");
  fixture.sim.dialogs.ExpectMessage("File not found: C:\\Pawnfield\\Images\\X-100a.bmp");
  fixture.sim.dialogs.ExpectMessage("Filename: C:\\Pawnfield\\Images\\scorebox.bmp");
  Main(fixture.show());
  fixture.sim.clock.Advance(10000);
  ASSERT_TRUE(fixture.form().Visible);
  fixture.form().optGameType[2].Click();
  fixture.sim.dialogs.ExpectMessage("Filename: C:\\Pawnfield\\images\\scoreboxred.bmp");
  fixture.ChooseSet("Plain");
  fixture.form().btnStart.Click();
  PlaySquare(fixture, 0, 0);
  EXPECT_EQ(fixture.Scores(), "50 0 0");
  EXPECT_EQ(fixture.show().state.CurrentPlayer, 2);
}

TEST(Faults, AColourThatIsNoNumberLeavesTheQuestionUpBehindItsMessage) {
  ShowFixture fixture;
  fixture.sim.files.Write("C:\\Pawnfield\\Trivia Sets\\Odd.txt", "Which?\r\nThis\r\nT#Arial#28#True#True#blue#\r\n");
  fixture.Start();
  fixture.form().optGameType[2].Click();
  fixture.ChooseSet("Odd");
  fixture.sim.dialogs.ExpectMessage("Error Number: 13");
  fixture.form().btnStart.Click();
  EXPECT_TRUE(fixture.form().picQuestion.Visible);
  EXPECT_TRUE(fixture.audience().picQuestion.Visible);
  EXPECT_TRUE(fixture.form().btnQuestionCorrect.Visible);
}

TEST(Faults, SettingsThatCannotBeSavedAreToldAndTheProgramEnds) {
  ShowFixture fixture;
  fixture.Start();
  fixture.sim.settings.FailSaves = 2;
  fixture.sim.dialogs.ExpectMessage("Are you sure you want to exit?", BoxAnswer::Yes);
  fixture.sim.dialogs.ExpectMessage("Procedure: WriteSharedKey");
  fixture.sim.dialogs.ExpectMessage("Procedure: fileExit");
  fixture.form().mnuFileExit.Click();
  EXPECT_TRUE(fixture.sim.processes.Ended);
}

}  // namespace
}  // namespace pawnfield
