#include "media/sound_effects.h"

#include "forms/main_form.h"
#include "forms/sound_effects_form.h"
#include "media/sound_table.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

constexpr const char* kHorn = "D:\\clips\\horn.wav";

class SoundEffects : public GamePlayer, public testing::Test {
 protected:
  SoundEffects() : GamePlayer("Trivia C, user advances, not started") { sim.files.Put(kHorn, "sound"); }
  // Opens the dialog by its button, does that, and closes it.
  void InDialog(const std::function<void()>& act) {
    sim.dialogs.ExpectForm("frmSoundEffects", [&] {
      act();
      dialog.btnSaveExit.Click();
    });
    form().btnSounds.Click();
  }
  void InDialog(const std::string& words) { Do("at the sound table: " + words + "; press btnSaveExit"); }
  std::string& Entry(std::size_t bank, std::size_t row) { return show().soundBanks[bank][row]; }

  SimPlatform& sim = fixture().sim;
  SoundEffectsForm& dialog = show().frmSoundEffects;
  Grid& grid = dialog.Grid1;
};

TEST_F(SoundEffects, TheGridShowsTheTable) {
  const SoundBanks before = show().soundBanks;
  dialog.Unload();
  EXPECT_EQ(show().soundBanks, before) << "the program's end leaves a table that was not opened";
  Entry(2, 8) = "C:\\reserved.wav";
  Entry(3, 34) = "C:\\a\\z.wav";
  InDialog([&] {
    const std::pair<int, int> cells[] = {{0, 0}, {0, 1},  {0, 3}, {1, 0}, {6, 0}, {7, 0},
                                         {8, 0}, {33, 0}, {1, 1}, {7, 1}, {8, 2}, {33, 3}};
    std::string shown;
    for (const auto& [row, column] : cells) shown += grid.Cell(row, column) + "|";
    EXPECT_EQ(shown,
              "|Media Set 1|Media Set 3|Buzzer 1|Congratulations|Question Reveal|A Key|Z Key|RingsIn.mp3|"
              "Question Appears.wav|Double click here to insert custom effect|z.wav|");
    EXPECT_TRUE(grid.Row == 1 && grid.Col == 1);
  });
  EXPECT_EQ(Entry(2, 8), "C:\\reserved.wav");
}

TEST_F(SoundEffects, CancelTakesBackAllThatWasChanged) {
  const SoundBanks before = show().soundBanks;
  sim.dialogs.ExpectForm("frmSoundEffects", [&] {
    grid.DropFile(8, 2, kHorn);
    grid.SelectCell(1, 1);
    grid.PressKey(46, 0);
    dialog.btnCancel.Click();
  });
  form().btnSounds.Click();
  EXPECT_EQ(show().soundBanks, before);
}

TEST_F(SoundEffects, ACellsTrianglePlaysItWithoutThePreview) {
  Entry(2, 9) = kHorn;
  InDialog([&] {
    EXPECT_EQ(dialog.FileOf(8, 2), kHorn);
    dialog.OnPlayCell(8, 2);
  });
  Do("event sound is horn.wav");
}

TEST_F(SoundEffects, FilesAreChosenAndDroppedIntoTheirRows) {
  const std::string before = Entry(2, 11);
  InDialog([&] {
    sim.dialogs.ExpectFile(kHorn);
    grid.DblClickCell(33, 1);
    EXPECT_EQ(grid.Cell(33, 1), "horn.wav");
    sim.dialogs.ExpectFile("");
    grid.DblClickCell(7, 3);
    grid.DropFile(8, 2, kHorn);
    sim.dialogs.ExpectMessage("File not found: D:\\clips");
    grid.DropFile(9, 2, "D:\\clips");
    grid.DropFile(0, 2, kHorn);
    // Neither a text nor a film's subtitles are heard.
    for (const char* name : {"words.txt", "film.mp4.srt"}) {
      sim.files.Put(std::string("D:\\clips\\") + name, "Q");
      sim.dialogs.ExpectMessage(std::string(name) + " can't be played and was not taken.");
      grid.DropFile(10, 2, std::string("D:\\clips\\") + name);
    }
    EXPECT_EQ(Entry(2, 11), before);
  });
  EXPECT_EQ(Entry(1, 34) + Entry(2, 9) + Entry(3, 7), std::string(kHorn) + kHorn);
  const auto& requests = sim.dialogs.FileRequests();
  EXPECT_EQ(requests[0].InitialFolder + " " + requests[1].InitialFolder, "C:\\Pawnfield\\Sound Effects D:\\clips\\");
  EXPECT_EQ(
      requests[0].Filter,
      "All Media Types|*.wav;*.mp3;*.wma;*.bmp;*.jpg;*.avi;*.mpg;*.mpeg;*.mov;*.mp4;*.3gp|BMP Files (*.bmp)|*.bmp|"
      "JPG Files (*.jpg)|*.jpg|AVI Files (*.avi)|*.avi|MPEG Files (*.mpg;*.mpeg)|*.mpg;*.mpeg|"
      "MPEG-4 Files (*.mp4)|*.mp4|WAV Files (*.wav)|*.wav|MP3 Files (*.mp3)|*.mp3|WMA Files (*.wma)|*.wma|"
      "All Files (*.*)|*.*|");
  EXPECT_EQ(sim.files.Read("C:\\Ostara Show Kit Data\\Sounds.dat"), FormatSoundTable(show().soundBanks));
}

TEST_F(SoundEffects, PreviewPlaysTheEntryEvenOfAClearedCell) {
  MediaLog& log = sim.media.Log;
  InDialog([&] {
    log.clear();
    grid.ClickCell(4, 1);
    EXPECT_TRUE(log.empty());
    dialog.bPreview.Click();
    grid.PressKey(46, 0);
    EXPECT_EQ(grid.Cell(4, 1), "");
    grid.PressKey(13, 13);
    EXPECT_EQ(sim.media.EventPlayer.Url, "C:\\Pawnfield\\Sound Effects\\Correct.mp3");
  });
  EXPECT_EQ(Entry(1, 4) + Entry(1, 5), "C:\\Pawnfield\\Sound Effects\\Incorrect.mp3");
  EXPECT_EQ(log.back(), "EventPlayer stop");
}

TEST_F(SoundEffects, ExportAndImportCarryTheTableAndFaultsOfFilesAreTold) {
  Entry(3, 20) = "C:\\a\\twenty.wav";
  sim.files.Put("D:\\short.dat", "D:\\one\r\nD:\\two\r\n");
  InDialog("file D:\\clips\\mine.dat; press Export");
  const SoundBanks exported = std::exchange(show().soundBanks, {});
  InDialog("file D:\\clips\\mine.dat; press Import");
  EXPECT_EQ(show().soundBanks, exported);
  EXPECT_EQ(grid.Cell(19, 3), "twenty.wav");
  EXPECT_EQ(grid.Cell(8, 1), "") << "an import shows empty cells empty";
  sim.files.FailNextWrite(kErrorDiskFull);
  InDialog(
      "file D:\\gone.dat; expect File not found: D:\\gone.dat; press Import; file D:\\full.dat; "
      "expect Procedure: btnExportSoundFiles; press Export; file D:\\short.dat; expect Procedure: btnImportSoundFiles; "
      "press Import");
  sim.files.FailNextWrite(kErrorDiskFull);
  InDialog("expect Error Number: 61");
  EXPECT_EQ(sim.dialogs.FileRequests()[0].DefaultExtension, "dat");
  EXPECT_EQ(Entry(1, 2), "D:\\two");
  EXPECT_EQ(Entry(1, 4), "C:\\Pawnfield\\Sound Effects\\Correct.mp3") << "lines that are missing change nothing";
  EXPECT_EQ(sim.media.Log.back(), "EventPlayer stop");
}

}  // namespace
}  // namespace pawnfield
