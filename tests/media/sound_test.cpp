#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/show.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "platform/sim/sim_platform.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Sound : public testing::Test {
 protected:
  Sound() {
    machine.files.PutFolder(machine.platform.folders.DataRoot);
    BindSoundChannels(show);
    machine.media.Log.clear();
  }
  ~Sound() override { EXPECT_THAT(machine.dialogs.TakeFaults(), IsEmpty()); }

  SimPlatform machine;
  Show show{machine.platform};
  const std::string tablePath = machine.platform.folders.DataRoot + "\\Sounds.dat";
};

TEST_F(Sound, EachChannelRewindsBeforeItIsGivenItsFile) {
  PlayEvent(show, "a.wav");
  PlayKeyPress(show, "b.wav");
  PlaySoundClip(show, "");
  PlayCorrectIncorrect(show, "d.wav");
  EXPECT_THAT(machine.media.Log,
              ElementsAre("EventPlayer position 0", "EventPlayer url a.wav", "KeyPressPlayer position 0",
                          "KeyPressPlayer url b.wav", "SoundClipPlayer position 0", "SoundClipPlayer url ",
                          "CorrectIncorrectPlayer position 0", "CorrectIncorrectPlayer url d.wav"));
}

TEST_F(Sound, ButtonsReachTheirChannelsOnly) {
  show.frmMain.picSound.Visible = true;
  show.frmMain.lblQuestion[0].Caption = "C:\\clip.mp3";
  show.frmMain.btnPlay.Click();
  show.frmMain.btnStop.Click();
  show.frmMain.btnStopSounds.Click();
  EXPECT_THAT(machine.media.Log,
              ElementsAre("SoundClipPlayer position 0", "SoundClipPlayer url C:\\clip.mp3", "SoundClipPlayer stop",
                          "SoundClipPlayer stop", "EventPlayer stop", "KeyPressPlayer stop"));
}

TEST_F(Sound, BackgroundMusicRestartsPausesAndStops) {
  RestartBackground(show);
  PauseBackground(show);
  StopBackground(show);
  EXPECT_THAT(machine.media.Log,
              ElementsAre("BackgroundPlayer position 0", "BackgroundPlayer pause", "BackgroundPlayer stop"));
}

TEST_F(Sound, VolumesAreReadClampedAndHandedOn) {
  machine.settings.Preset("Pawnfield", "Settings", "EventPlayerVolume", "0");
  machine.settings.Preset("Pawnfield", "Settings", "KeyPressPlayerVolume", "-1");
  machine.settings.Preset("Pawnfield", "Settings", "SoundClipPlayerVolume", "101");
  machine.settings.Preset("Pawnfield", "Settings", "BackgroundPlayerVolume", "loud");
  machine.settings.Preset("Pawnfield", "Settings", "CorrectIncorrectVolume", "100");
  machine.dialogs.ExpectMessage("Error Number: 13");
  LoadVolumes(show);
  EXPECT_THAT(machine.media.Log,
              ElementsAre("EventPlayer volume 0", "KeyPressPlayer volume 75", "SoundClipPlayer volume 75",
                          "BackgroundPlayer volume 75", "CorrectIncorrectPlayer volume 100"));
  const GameState& state = show.state;
  EXPECT_THAT((std::array{state.EventPlayerVolume, state.KeyPressPlayerVolume, state.SoundClipPlayerVolume,
                          state.BackgroundPlayerVolume, state.CorrectIncorrectVolume}),
              ElementsAre(0, 75, 75, 75, 100));
}

TEST_F(Sound, TheBankInUseAnswersAtOnce) {
  for (std::size_t bank = 1; bank <= 3; ++bank) {
    show.soundBanks[bank][kSoundCorrect] = "bank" + std::to_string(bank);
    show.frmMain.optSoundBank[bank - 1].Click();
    EXPECT_EQ(SoundEntry(show, kSoundCorrect), "bank" + std::to_string(bank));
  }
  for (const int row : {-1, 0, 35, 1000}) EXPECT_EQ(SoundEntry(show, row), "");
  for (const int bank : {-1, 0, 4, 32767}) {
    show.state.SoundSet = bank;
    EXPECT_EQ(SoundEntry(show, kSoundCorrect), "") << bank;
  }
}

TEST_F(Sound, TheTableComesBackFromItsFileWithAllRows) {
  for (std::size_t bank = 1; bank <= 3; ++bank) {
    for (std::size_t row = 1; row <= 34; row += bank) {
      show.soundBanks[bank][row] = "C:\\" + std::to_string(bank) + "," + std::to_string(row) + ".wav";
    }
  }
  show.soundBanks[1][8] = "reserved";
  const SoundBanks saved = show.soundBanks;
  SaveSoundTable(show);
  show.soundBanks = {};
  EXPECT_TRUE(LoadSoundTable(show));
  EXPECT_EQ(show.soundBanks, saved);
}

TEST_F(Sound, TheFilesLinesRunBankByBank) {
  show.soundBanks[1][34] = "Z of bank 1";
  show.soundBanks[2][1] = "buzzer of bank 2";
  std::string wanted;
  for (int line = 0; line < 102; ++line) {
    wanted += std::string(line == 33 ? "Z of bank 1" : line == 34 ? "buzzer of bank 2" : "") + "\r\n";
  }
  EXPECT_EQ(FormatSoundTable(show.soundBanks), wanted);
}

TEST_F(Sound, AMissingFileLeavesTheTableAndAShortOneWhatItHolds) {
  show.soundBanks[2][9] = "kept";
  EXPECT_FALSE(LoadSoundTable(show));
  EXPECT_EQ(show.soundBanks[2][9], "kept");

  machine.files.Put(tablePath, "first\r\n\r\nthird");
  EXPECT_FALSE(LoadSoundTable(show));
  SoundBanks wanted;
  wanted[1][1] = "first";
  wanted[1][3] = "third";
  EXPECT_EQ(show.soundBanks, wanted);

  machine.files.Put(tablePath, FormatSoundTable(wanted) + "more\r\n");
  EXPECT_TRUE(LoadSoundTable(show));
  EXPECT_EQ(show.soundBanks, wanted);
}

TEST_F(Sound, DefaultsFillBankOneOnly) {
  FillDefaultSounds(show);
  const std::string folder = "C:\\Pawnfield\\Sound Effects\\";
  SoundBanks wanted;
  wanted[1] = {"",
               folder + "RingsIn.mp3",
               folder + "RingsIn.mp3",
               folder + "RingsIn.mp3",
               folder + "Correct.mp3",
               folder + "Incorrect.mp3",
               folder + "DDouble.wav",
               folder + "Question Appears.wav"};
  EXPECT_EQ(show.soundBanks, wanted);
}

}  // namespace
}  // namespace pawnfield
