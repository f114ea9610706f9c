#include <gmock/gmock.h>

#include "forms/main_form.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "show/settings.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;

class Sound : public ShowFixture, public testing::Test {
 protected:
  Sound() {
    sim.files.PutFolder(sim.platform.folders.DataRoot);
    BindSoundChannels(show());
    sim.media.Log.clear();
  }
  SoundBanks& banks() { return show().soundBanks; }
};

TEST_F(Sound, EachChannelRewindsBeforeItIsGivenItsFileAndButtonsReachTheirOwnOnly) {
  PlayEvent(show(), "a.wav");
  PlayKeyPress(show(), "b.wav");
  PlaySoundClip(show(), "");
  PlayCorrectIncorrect(show(), "d.wav");
  EXPECT_THAT(sim.media.Log,
              ElementsAre("EventPlayer position 0", "EventPlayer url a.wav", "KeyPressPlayer position 0",
                          "KeyPressPlayer url b.wav", "SoundClipPlayer position 0", "SoundClipPlayer url ",
                          "CorrectIncorrectPlayer position 0", "CorrectIncorrectPlayer url d.wav"));
  sim.media.Log.clear();
  form().picSound.Visible = true;
  form().lblQuestion[0].Caption = "C:\\clip.mp3";
  for (Button* button : {&form().btnPlay, &form().btnStop, &form().btnStopSounds}) button->Click();
  EXPECT_THAT(sim.media.Log, ElementsAre("SoundClipPlayer position 0", "SoundClipPlayer url C:\\clip.mp3",
                                         "SoundClipPlayer stop", "SoundClipPlayer stop", "EventPlayer stop",
                                         "KeyPressPlayer stop", "CorrectIncorrectPlayer stop", "MediaPlayer1 stop"))
      << "every player but the music's";
  EXPECT_EQ(form().lblStatusBar.Caption.Get(), "Sounds stopped, all but the music");
}

TEST_F(Sound, VolumesAreReadClampedAndHandedOn) {
  Preset("EventPlayerVolume", "0");
  Preset("KeyPressPlayerVolume", "-1");
  Preset("SoundClipPlayerVolume", "101");
  Preset("BackgroundPlayerVolume", "loud");
  Preset("CorrectIncorrectVolume", "100");
  sim.dialogs.ExpectMessage("BackgroundPlayerVolume = 75");
  LoadSettings(show());
  LoadVolumes(show());
  EXPECT_THAT(sim.media.Log,
              ElementsAre("EventPlayer volume 0", "KeyPressPlayer volume 75", "SoundClipPlayer volume 75",
                          "BackgroundPlayer volume 75", "CorrectIncorrectPlayer volume 100"));
}

TEST_F(Sound, TheBankInUseAnswersAtOnce) {
  for (std::size_t bank = 1; bank <= 3; ++bank) {
    banks()[bank][kSoundCorrect] = "bank" + std::to_string(bank);
    form().optSoundBank[bank - 1].Click();
    EXPECT_EQ(SoundEntry(show(), kSoundCorrect), "bank" + std::to_string(bank));
  }
  for (const int row : {-1, 0, 35, 1000}) EXPECT_EQ(SoundEntry(show(), row), "");
  for (const int bank : {-1, 0, 4, 32767}) {
    show().state.SoundSet = bank;
    EXPECT_EQ(SoundEntry(show(), kSoundCorrect), "") << bank;
  }
}

TEST_F(Sound, TheTablesLinesRunBankByBankAndAFileChangesNoMoreThanItHolds) {
  const std::string path = sim.platform.folders.DataRoot + "\\Sounds.dat";
  banks()[1][34] = "Z of bank 1";
  banks()[2][1] = "buzzer of bank 2";
  banks()[3][34] = "Z of bank 3";
  std::string lines;
  for (int line = 0; line < 102; ++line) {
    if (line == 33) lines += "Z of bank 1";
    if (line == 34) lines += "buzzer of bank 2";
    lines += line == 101 ? "Z of bank 3\r\n" : "\r\n";
  }
  const SoundBanks saved = banks();
  EXPECT_FALSE(LoadSoundTable(show())) << "there is no file";
  EXPECT_EQ(banks(), saved);
  SaveSoundTable(show());
  EXPECT_EQ(sim.files.Read(path), lines);
  banks() = {};
  sim.files.Put(path, lines + "more\r\n");
  EXPECT_TRUE(LoadSoundTable(show()));
  EXPECT_EQ(banks(), saved);

  sim.files.Put(path, "first\r\n\r\nthird");
  EXPECT_TRUE(LoadSoundTable(show())) << "what a short file holds stands, and no default goes over it";
  SoundBanks wanted;
  wanted[1][1] = "first";
  wanted[1][3] = "third";
  EXPECT_EQ(banks(), wanted);
}

}  // namespace
}  // namespace pawnfield
