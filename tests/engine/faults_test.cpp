// What goes wrong with files in mid-show is told once, and the show runs on.
#include "forms/main_form.h"
#include "forms/missing_media_form.h"
#include "program/program.h"
#include "support/seen.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

class Faults : public testing::Test {
 protected:
  // Chooses the set for Trivia Mode A and starts it, with the messages of each.
  void Play(const std::string& set, const char* atChoice, const char* atStart) {
    fixture.form().optGameType[2].Click();
    if (*atChoice != 0) fixture.sim.dialogs.ExpectMessage(atChoice);
    fixture.ChooseSet(set);
    if (*atStart != 0) fixture.sim.dialogs.ExpectMessage(atStart);
    fixture.form().btnStart.Click();
  }
  // Judges the question correct, claims the square and lets the pause before the next question run out.
  void PlaySquare(int row, int column, const char* seen) {
    fixture.form().btnQuestionCorrect.Click();
    fixture.Claim(row, column);
    fixture.sim.clock.Advance(5000);
    ExpectSeen(fixture.show(), seen, " the square");
  }
  ShowFixture fixture;
};

TEST_F(Faults, BrokenAndMissingMediaAreReportedBeforeTheGameAndOpenNoBoxInIt) {
  fixture.sim.files.Put("C:\\Shows\\broken.jpg", "no picture at all");
  fixture.WriteSet("Media", {"C:\\Shows\\broken.jpg", "C:\\Shows\\missing.jpg", "C:\\Shows\\missing.wav", "The last?"});
  fixture.Start();
  fixture.sim.dialogs.ExpectForm("frmDialog2", [&] { fixture.show().frmDialog2.btnCancel.Click(); });
  Play("Media", "Question 1: broken.jpg: no picture, or too large a one\r\nQuestion 2: missing.jpg: no such file\r\n",
       "");
  const char* card = "picQuestion=up picQuestion'=up lblQuestion(0)=Picture_missing:_read_the_question,_or_Skip ";
  ExpectSeen(fixture.show(), std::string(card) + "lblQuestion(0)'=Question_1 btnQuestionCorrect=on", " the broken one");
  PlaySquare(0, 0, (std::string(card) + "lblQuestion(0)'=Question_2 question=1").c_str());
  PlaySquare(1, 0, "question=2 picSound=up");
  EXPECT_EQ(fixture.sim.media.SoundClipPlayer.Url, "C:\\Shows\\missing.wav");
  PlaySquare(2, 1, "lblQuestion(0)=The_last? picQuestion'=up scores=50/50/50");
}

TEST_F(Faults, AMissingImagesFolderCostsThePicturesAndNotTheGame) {
  for (const std::string& name : fixture.sim.files.List("C:\\Pawnfield\\Images", "")) {
    fixture.sim.files.Remove("C:\\Pawnfield\\Images\\" + name);
  }
  fixture.WriteNumberedSet("Plain", 5);
  fixture.sim.dialogs.ExpectMessage("No hardware was detected");
  fixture.sim.dialogs.ExpectMessage("File not found: C:\\Pawnfield\\Images\\X-100a.bmp");
  fixture.sim.dialogs.ExpectMessage("Filename: C:\\Pawnfield\\Images\\scorebox.bmp");
  Main(fixture.show());
  fixture.sim.clock.Advance(10000);
  Play("Plain", "Filename: C:\\Pawnfield\\images\\scoreboxred.bmp", "");
  PlaySquare(0, 0, "scores=50/0/0 turn=2 question=1");
}

TEST_F(Faults, AColourThatIsNoNumberLeavesTheQuestionUpBehindItsMessage) {
  fixture.sim.files.Write("C:\\Pawnfield\\Trivia Sets\\Odd.txt", "Which?\r\nThis\r\nT#Arial#28#True#True#blue#\r\n");
  fixture.Start();
  Play("Odd", "", "Error Number: 13");
  ExpectSeen(fixture.show(), "picQuestion=up picQuestion'=up btnQuestionCorrect=on", " the odd colour");
}

TEST_F(Faults, SettingsThatCannotBeSavedAreReportedAndTheProgramEnds) {
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
