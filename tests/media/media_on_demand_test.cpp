#include "media/media_on_demand.h"

#include <sstream>

#include "media/sound_table.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

class MediaShow : public ShowFixture {
 public:
  explicit MediaShow(Screens screens = Screens::Two) : ShowFixture(screens) { Start(); }
  void Press(const std::string& path, const std::string& bytes = SimPictures::PictureBytes(1600, 900)) {
    sim.files.Put(path, bytes);
    PressBound(path);
  }
  void PressBound(const std::string& path) {
    show().soundBanks[1][9] = path;
    PlayKeyMedia(show(), 9);
  }
  // "S" a sound, "V" a video, "P" a picture; then the same of the pictures on the audience's screen.
  std::string WhatPlays() {
    std::string what;
    if (sim.media.KeyPressPlayer.Playing) what += "S";
    if (form().picMODVideo.IsShown() && sim.media.MediaPlayer1.Playing) what += "V";
    if (form().picMODPicture.IsShown()) what += "P";
    what += "/";
    if (audience().picMODVideo.IsShown()) what += "V";
    if (audience().picImageResize[1].IsShown()) what += "P";
    return what;
  }
};

class MediaOnDemand : public MediaShow, public testing::Test {};

TEST_F(MediaOnDemand, TheExtensionDecidesWhatIsDone) {
  const std::pair<const char*, const char*> kinds[] = {{"S/", ".wav .WMA .mp3"},
                                                       {"V/V", ".avi .MPG .wmv .mov .mp4 .mpeg"},
                                                       {"P/P", ".jpg .Bmp"},
                                                       {"/", ".MPEG .3gp .png .jpeg jpg"}};
  for (const auto& [what, endings] : kinds) {
    std::istringstream words(endings);
    for (std::string ending; words >> ending;) {
      MediaShow fresh;
      fresh.Press("C:\\media\\a" + ending);
      EXPECT_EQ(fresh.WhatPlays(), what) << ending;
    }
  }
  MediaShow single(Screens::One);
  single.Press("C:\\clip.mp4");
  EXPECT_EQ(single.WhatPlays(), "V/");
}

TEST_F(MediaOnDemand, EmptyMissingAndOtherBanksDoNothing) {
  for (const char* path : {"", "  ", "C:\\media\\gone.mp4"}) PressBound(path);
  show().soundBanks[2][34] = "C:\\media\\z.wav";
  sim.files.Put("C:\\media\\z.wav", "sound");
  PlayKeyMedia(show(), 34);
  PlayKeyMedia(show(), 35);
  EXPECT_EQ(WhatPlays(), "/");
  form().optSoundBank[1].Click();
  PlayKeyMedia(show(), 34);
  EXPECT_EQ(WhatPlays(), "S/");
}

TEST_F(MediaOnDemand, APictureFillsBothScreensForItsTime) {
  show().state.MODPictureTimer = 7;
  Press("C:\\media\\wide.jpg");
  sim.clock.Advance(6000);
  Press("C:\\media\\wide.jpg");
  sim.clock.Advance(6999);
  EXPECT_EQ(WhatPlays(), "P/P");
  EXPECT_FALSE(form().tmrVideoDelay.Enabled);
  // 7210 wide, 7210 * 9 / 16 high, centred; and the same on the audience's 15360 by 11520.
  EXPECT_EQ(form().picImageResize[1].Height, 7210.0 * 9 / 16);
  EXPECT_EQ(form().picImageResize[1].Top, 792);
  EXPECT_EQ(audience().picImageResize[1].Picture.Get(), "C:\\media\\wide.jpg");
  EXPECT_EQ(audience().picImageResize[1].Height, 8640);
  EXPECT_EQ(audience().picImageResize[1].Top, 1440);
  sim.clock.Advance(1);
  EXPECT_FALSE(form().picMOD.Visible || audience().picMOD.Visible);
  sim.dialogs.ExpectMessage("note of the following information.\x20\r\nError Number: 481");
  Press("C:\\media\\broken.jpg", "no picture");
  EXPECT_TRUE(form().picMOD.Visible && !audience().picMOD.Visible);
  sim.clock.Advance(7000);
  EXPECT_FALSE(form().picMOD.Visible);
}

TEST_F(MediaOnDemand, TheOperatorsPlayerDrivesBothScreens) {
  Press("C:\\media\\clip.mp4");
  EXPECT_EQ(form().MediaPlayer1.uiMode.Get() + " " + audience().MediaPlayer1.uiMode.Get(), "full none");
  EXPECT_EQ(audience().MediaPlayer1.URL.Get(), "C:\\media\\clip.mp4");
  EXPECT_EQ(audience().MediaPlayer1.Volume, 0);
  const std::tuple<PlayState, const char*, bool> reports[] = {{PlayState::Playing, "II", true},
                                                              {PlayState::Paused, ">", true},
                                                              {PlayState::Playing, "II", true},
                                                              {PlayState::Stopped, ">", false}};
  for (const auto& [state, caption, shown] : reports) {
    sim.media.MediaPlayer1.Report(state);
    EXPECT_EQ(form().btnPlayVideo.Caption.Get(), caption);
    EXPECT_EQ(form().picMOD.Visible, shown);
    EXPECT_EQ(audience().picMOD.Visible, shown);
    EXPECT_EQ(audience().MediaPlayer1.PlayState, static_cast<int>(state));
  }
}

TEST_F(MediaOnDemand, EachKeyReplacesWhatIsUpAndSoundsGoBeside) {
  for (const auto& [path, what] : {std::pair{"C:\\media\\clip.mp4", "V/V"},
                                   {"C:\\media\\horn.mp3", "SV/V"},
                                   {"C:\\media\\p.bmp", "SP/P"},
                                   {"C:\\media\\second.avi", "SV/V"}}) {
    Press(path);
    EXPECT_EQ(WhatPlays(), what) << path;
  }
  EXPECT_EQ(sim.media.MediaPlayer1.Url, "C:\\media\\second.avi");
}

}  // namespace
}  // namespace pawnfield
