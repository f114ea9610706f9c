#include "media/media_on_demand.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "media/sound_table.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

class MediaOnDemand : public testing::Test {
 protected:
  MediaOnDemand() { fixture.Start(); }
  void Press(char key, const std::string& path, const std::string& bytes = "media") {
    fixture.sim.files.Put(path, bytes);
    PressBound(key, path);
  }
  void PressBound(char key, const std::string& path) {
    fixture.show().soundBanks[1][static_cast<std::size_t>(key - 56)] = path;
    PlayKeyMedia(fixture.show(), key - 56);
  }
  // "S" a sound, "V" a video, "P" a picture, "" nothing.
  std::string WhatPlays() {
    MainForm& form = fixture.form();
    std::string what;
    if (fixture.sim.media.KeyPressPlayer.Playing) what += "S";
    if (form.picMODVideo.IsShown() && fixture.sim.media.MediaPlayer1.Playing) what += "V";
    if (form.picMODPicture.IsShown()) what += "P";
    return what;
  }
  const std::string picture = SimPictures::PictureBytes(1600, 900);
  ShowFixture fixture;
};

TEST_F(MediaOnDemand, TheExtensionDecidesWhatIsDone) {
  const std::pair<const char*, const char*> cases[] = {{"a.wav", "S"},  {"a.WMA", "S"}, {"a.mp3", "S"}, {"a.avi", "V"},
                                                       {"a.MPG", "V"},  {"a.wmv", "V"}, {"a.mov", "V"}, {"a.mp4", "V"},
                                                       {"a.mpeg", "V"}, {"a.MPEG", ""}, {"a.3gp", ""},  {"a.jpg", "P"},
                                                       {"a.Bmp", "P"},  {"a.png", ""},  {"jpg", ""},    {"a.jpeg", ""}};
  for (const auto& [name, what] : cases) {
    ShowFixture fresh;
    fresh.Start();
    const std::string path = std::string("C:\\media\\") + name;
    fresh.sim.files.Put(path, picture);
    fresh.show().soundBanks[1][9] = path;
    PlayKeyMedia(fresh.show(), 9);
    EXPECT_EQ(fresh.sim.media.KeyPressPlayer.Playing, *what == 'S') << name;
    EXPECT_EQ(fresh.sim.media.MediaPlayer1.Playing && fresh.form().picMODVideo.IsShown(), *what == 'V') << name;
    EXPECT_EQ(fresh.form().picMODPicture.IsShown(), *what == 'P') << name;
    EXPECT_EQ(fresh.audience().picMOD.Visible.Get(), *what == 'V' || *what == 'P') << name;
  }
}

TEST_F(MediaOnDemand, EmptyMissingAndOtherBanksDoNothing) {
  PressBound('A', "");
  PressBound('B', "  ");
  PressBound('C', "C:\\media\\gone.mp4");
  fixture.show().soundBanks[2][34] = "C:\\media\\z.wav";
  fixture.sim.files.Put("C:\\media\\z.wav", "sound");
  PlayKeyMedia(fixture.show(), 34);
  PlayKeyMedia(fixture.show(), 35);
  EXPECT_EQ(WhatPlays(), "");
  fixture.form().optSoundBank[1].Click();
  PlayKeyMedia(fixture.show(), 34);
  EXPECT_EQ(WhatPlays(), "S");
}

TEST_F(MediaOnDemand, EveryLetterKeyOfTheConsoleHasItsRow) {
  for (int letter = 0; letter < 26; ++letter) {
    const std::string path = "C:\\media\\" + std::to_string(letter) + ".wav";
    fixture.sim.files.Put(path, "sound");
    fixture.show().soundBanks[1][static_cast<std::size_t>(9 + letter)] = path;
  }
  for (int letter = 0; letter < 26; ++letter) {
    for (const char first : {'A', 'a'}) {
      fixture.sim.media.KeyPressPlayer.Url.clear();
      fixture.form().KeyPress(first + letter);
      EXPECT_EQ(fixture.sim.media.KeyPressPlayer.Url, "C:\\media\\" + std::to_string(letter) + ".wav");
    }
  }
  fixture.sim.media.KeyPressPlayer.Url.clear();
  for (const char key : {'@', '[', '`', '{', '5', '\r'}) fixture.form().KeyPress(key);
  EXPECT_EQ(fixture.sim.media.KeyPressPlayer.Url, "");
}

TEST_F(MediaOnDemand, APictureFillsBothScreensForItsTime) {
  fixture.show().state.MODPictureTimer = 7;
  Press('P', "C:\\media\\wide.jpg", picture);
  fixture.sim.clock.Advance(6000);
  Press('P', "C:\\media\\wide.jpg", picture);
  fixture.sim.clock.Advance(6999);
  EXPECT_TRUE(fixture.form().picMOD.Visible && fixture.audience().picMOD.Visible);
  EXPECT_FALSE(fixture.form().tmrVideoDelay.Enabled);
  // 7210 wide, 7210 * 9 / 16 high, centred; and the same on the audience's 15360 by 11520.
  const Image& console = fixture.form().picImageResize[1];
  EXPECT_EQ(console.Height, 7210.0 * 9 / 16);
  EXPECT_EQ(console.Top, 792);
  const Image& audience = fixture.audience().picImageResize[1];
  EXPECT_EQ(audience.Picture.Get(), "C:\\media\\wide.jpg");
  EXPECT_EQ(audience.Height, 8640);
  EXPECT_EQ(audience.Top, 1440);
  fixture.sim.clock.Advance(1);
  EXPECT_FALSE(fixture.form().picMOD.Visible || fixture.audience().picMOD.Visible);
}

TEST_F(MediaOnDemand, APictureThatCannotBeReadIsToldAndGoes) {
  fixture.sim.dialogs.ExpectMessage("note of the following information.\x20\r\nError Number: 481");
  Press('P', "C:\\media\\broken.jpg", "no picture");
  EXPECT_TRUE(fixture.form().picMOD.Visible);
  EXPECT_FALSE(fixture.audience().picMOD.Visible);
  fixture.sim.clock.Advance(5000);
  EXPECT_FALSE(fixture.form().picMOD.Visible);
}

TEST_F(MediaOnDemand, TheOperatorsPlayerDrivesBothScreens) {
  Press('V', "C:\\media\\clip.mp4");
  MainForm& form = fixture.form();
  FSMainForm& audience = fixture.audience();
  EXPECT_EQ(form.MediaPlayer1.uiMode.Get(), "full");
  EXPECT_EQ(audience.MediaPlayer1.uiMode.Get(), "none");
  EXPECT_EQ(audience.MediaPlayer1.URL.Get(), "C:\\media\\clip.mp4");
  EXPECT_EQ(audience.MediaPlayer1.Volume, 0);
  const struct {
    PlayState state;
    const char* caption;
    bool shown;
  } table[] = {{PlayState::Playing, "II", true},
               {PlayState::Paused, ">", true},
               {PlayState::Playing, "II", true},
               {PlayState::Stopped, ">", false}};
  for (const auto& row : table) {
    fixture.sim.media.MediaPlayer1.Report(row.state);
    EXPECT_EQ(form.btnPlayVideo.Caption.Get(), row.caption);
    EXPECT_EQ(form.picMOD.Visible, row.shown);
    EXPECT_EQ(audience.picMOD.Visible, row.shown);
    EXPECT_EQ(audience.MediaPlayer1.PlayState, static_cast<int>(row.state));
  }
}

TEST_F(MediaOnDemand, EachKeyReplacesWhatIsUpAndSoundsGoBeside) {
  Press('V', "C:\\media\\clip.mp4");
  Press('S', "C:\\media\\horn.mp3");
  EXPECT_EQ(WhatPlays(), "SV");
  Press('P', "C:\\media\\p.bmp", picture);
  EXPECT_EQ(WhatPlays(), "SP");
  EXPECT_TRUE(fixture.audience().picImageResize[1].IsShown());
  EXPECT_FALSE(fixture.audience().picMODVideo.IsShown());
  Press('V', "C:\\media\\second.avi");
  EXPECT_EQ(WhatPlays(), "SV");
  EXPECT_EQ(fixture.sim.media.MediaPlayer1.Url, "C:\\media\\second.avi");
  EXPECT_FALSE(fixture.audience().picImageResize[1].IsShown());
}

TEST(MediaOnDemandOnOneScreen, TheAudienceFormStaysAsItWas) {
  ShowFixture fixture(Screens::One);
  fixture.Start();
  fixture.sim.files.Put("C:\\media\\clip.mp4", "film");
  fixture.show().soundBanks[1][9] = "C:\\media\\clip.mp4";
  PlayKeyMedia(fixture.show(), 9);
  EXPECT_TRUE(fixture.form().picMOD.Visible);
  EXPECT_FALSE(fixture.audience().picMOD.Visible);
}

}  // namespace
}  // namespace pawnfield
