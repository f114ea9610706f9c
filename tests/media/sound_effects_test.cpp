#include "media/sound_effects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "media/sound_table.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

const std::string kPlaceholder = "Double click here to insert custom effect";

class SoundEffects : public testing::Test {
 protected:
  SoundEffects() {
    fixture.Start();
    fixture.sim.files.Put("D:\\clips\\horn.wav", "sound");
  }
  // Opens the dialog by its button, does that, and closes it.
  void InDialog(const std::function<void()>& act) {
    fixture.sim.dialogs.ExpectForm("frmSoundEffects", [&] {
      act();
      fixture.show().frmSoundEffects.btnSaveExit.Click();
    });
    fixture.form().btnSounds.Click();
  }
  Grid& grid() { return fixture.show().frmSoundEffects.Grid1; }
  std::string& Entry(std::size_t bank, std::size_t row) { return fixture.show().soundBanks[bank][row]; }
  std::string File() { return fixture.sim.files.Read("C:\\Ostara Show Kit Data\\Sounds.dat"); }

  ShowFixture fixture;
};

TEST_F(SoundEffects, TheGridShowsTheTable) {
  Entry(2, 8) = "C:\\reserved.wav";
  Entry(3, 34) = "C:\\a\\z.wav";
  InDialog([&] {
    const std::tuple<int, int, std::string> cells[] = {{0, 0, ""},
                                                       {0, 1, "Media Set 1"},
                                                       {0, 3, "Media Set 3"},
                                                       {1, 0, "Buzzer 1"},
                                                       {6, 0, "Congratulations"},
                                                       {7, 0, "Question Reveal"},
                                                       {8, 0, "A Key"},
                                                       {33, 0, "Z Key"},
                                                       {1, 1, "RingsIn.mp3"},
                                                       {7, 1, "Question Appears.wav"},
                                                       {8, 2, kPlaceholder},
                                                       {33, 3, "z.wav"}};
    for (const auto& [row, column, text] : cells) EXPECT_EQ(grid().Cell(row, column), text) << row << "," << column;
    EXPECT_EQ(grid().Row, 1);
    EXPECT_EQ(grid().Col, 1);
  });
  EXPECT_EQ(Entry(2, 8), "C:\\reserved.wav");
}

TEST_F(SoundEffects, FilesAreChosenAndDroppedIntoTheirRows) {
  InDialog([&] {
    fixture.sim.dialogs.ExpectFile("D:\\clips\\horn.wav");
    grid().DblClickCell(33, 1);
    EXPECT_EQ(grid().Cell(33, 1), "horn.wav");
    fixture.sim.dialogs.ExpectFile("");
    grid().DblClickCell(7, 3);
    grid().DropFile(8, 2, "D:\\clips\\horn.wav");
    fixture.sim.dialogs.ExpectMessage("File not found: D:\\clips");
    grid().DropFile(9, 2, "D:\\clips");
    grid().DropFile(0, 2, "D:\\clips\\horn.wav");
  });
  EXPECT_EQ(Entry(1, 34), "D:\\clips\\horn.wav");
  EXPECT_EQ(Entry(2, 9), "D:\\clips\\horn.wav");
  EXPECT_EQ(Entry(3, 7), "");
  const auto& requests = fixture.sim.dialogs.FileRequests();
  EXPECT_EQ(requests[0].InitialFolder, "C:\\Pawnfield\\Sound Effects");
  EXPECT_EQ(requests[1].InitialFolder, "D:\\clips\\");
  EXPECT_TRUE(requests[0].Filter.starts_with(
      "All Media Types|*.wav;*.mp3;*.wma;*.bmp;*.jpg;*.avi;*.mpg;*.mpeg;*.mov;*.mp4;*.3gp|BMP Files (*.bmp)|*.bmp|"));
  EXPECT_EQ(File(), FormatSoundTable(fixture.show().soundBanks));
}

TEST_F(SoundEffects, PreviewPlaysTheEntryEvenOfAClearedCell) {
  MediaLog& log = fixture.sim.media.Log;
  InDialog([&] {
    log.clear();
    grid().ClickCell(4, 1);
    EXPECT_TRUE(log.empty());
    fixture.show().frmSoundEffects.bPreview.Click();
    grid().PressKey(46, 0);
    EXPECT_EQ(grid().Cell(4, 1), "");
    grid().PressKey(13, 13);
    EXPECT_EQ(fixture.sim.media.EventPlayer.Url, "C:\\Pawnfield\\Sound Effects\\Correct.mp3");
  });
  EXPECT_EQ(Entry(1, 4), "");
  EXPECT_EQ(Entry(1, 5), "C:\\Pawnfield\\Sound Effects\\Incorrect.mp3");
  EXPECT_EQ(log.back(), "EventPlayer stop");
}

TEST_F(SoundEffects, ExportAndImportCarryTheTable) {
  Entry(3, 20) = "C:\\a\\twenty.wav";
  InDialog([&] {
    fixture.sim.dialogs.ExpectFile("D:\\clips\\mine.dat");
    fixture.show().frmSoundEffects.btnExport.Click();
    const SoundBanks exported = fixture.show().soundBanks;
    fixture.show().soundBanks = {};
    fixture.sim.dialogs.ExpectFile("D:\\clips\\mine.dat");
    fixture.show().frmSoundEffects.btnImport.Click();
    EXPECT_EQ(fixture.show().soundBanks, exported);
    EXPECT_EQ(grid().Cell(19, 3), "twenty.wav");
    EXPECT_EQ(grid().Cell(8, 1), "") << "an import shows empty cells empty";
  });
  EXPECT_EQ(fixture.sim.dialogs.FileRequests()[0].DefaultExtension, "dat");
}

TEST_F(SoundEffects, FaultsOfFilesAreToldAndTheDialogGoesOn) {
  fixture.sim.files.Put("D:\\short.dat", "D:\\one\r\nD:\\two\r\n");
  InDialog([&] {
    SoundEffectsForm& form = fixture.show().frmSoundEffects;
    fixture.sim.dialogs.ExpectFile("D:\\gone.dat");
    fixture.sim.dialogs.ExpectMessage("File not found: D:\\gone.dat");
    form.btnImport.Click();
    fixture.sim.dialogs.ExpectFile("D:\\short.dat");
    fixture.sim.dialogs.ExpectMessage("Procedure: btnImportSoundFiles");
    form.btnImport.Click();
    fixture.sim.files.FailNextWrite(kErrorDiskFull);
    fixture.sim.dialogs.ExpectFile("D:\\full.dat");
    fixture.sim.dialogs.ExpectMessage("Procedure: btnExportSoundFiles");
    form.btnExport.Click();
    fixture.sim.files.FailNextWrite(kErrorDiskFull);
    fixture.sim.dialogs.ExpectMessage("Error Number: 61");
  });
  EXPECT_EQ(Entry(1, 2), "D:\\two");
  EXPECT_EQ(Entry(1, 4), "C:\\Pawnfield\\Sound Effects\\Correct.mp3") << "lines that are missing change nothing";
  EXPECT_EQ(fixture.sim.media.Log.back(), "EventPlayer stop");
}

TEST_F(SoundEffects, TheProgramsEndLeavesATableThatWasNotOpened) {
  const SoundBanks before = fixture.show().soundBanks;
  fixture.show().frmSoundEffects.Unload();
  EXPECT_EQ(fixture.show().soundBanks, before);
}

}  // namespace
}  // namespace pawnfield
