#include "media/media_on_demand.h"

#include <sstream>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "support/seen.h"
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

TEST(MediaOnDemand, TheExtensionDecidesWhatIsDone) {
  const std::pair<const char*, const char*> kinds[] = {{"S/", ".wav .WMA .mp3"},
                                                       {"V/V", ".avi .MPG .wmv .mov .mp4 .mpeg .MPEG .3gp"},
                                                       {"P/P", ".jpg .Bmp"},
                                                       {"/", ".png .jpeg jpg"}};
  for (const auto& [what, endings] : kinds) {
    std::istringstream words(endings);
    for (std::string ending; words >> ending;) {
      MediaShow fresh;
      for (const char* path : {"", "  ", "C:\\media\\gone.mp4"}) fresh.PressBound(path);
      fresh.Press("C:\\media\\a" + ending);
      EXPECT_EQ(fresh.WhatPlays(), what) << ending;
    }
  }
  MediaShow single(Screens::One);
  single.Press("C:\\clip.mp4");
  EXPECT_EQ(single.WhatPlays(), "V/");
}

TEST(MediaOnDemand, APictureFillsBothScreensForItsTime) {
  MediaShow media;
  media.show().state.MODPictureTimer = 7;
  media.Press("C:\\media\\wide.jpg");
  media.sim.clock.Advance(6000);
  media.Press("C:\\media\\wide.jpg");
  media.sim.clock.Advance(6999);
  // 7210 wide, 7210 * 9 / 16 high, centred; and the same on the audience's 15360 by 11520.
  ExpectSeen(media.show(),
             "tmrVideoDelay=off picImageResize(1)=wide.jpg picImageResize(1).Height=4055.625 picImageResize(1).Top=792 "
             "picImageResize(1)'=wide.jpg picImageResize(1).Height'=8640 picImageResize(1).Top'=1440",
             " a picture");
  media.sim.clock.Advance(1);
  ExpectSeen(media.show(), "picMOD=- picMOD'=-", " its time");
  media.Press("C:\\media\\broken.jpg", "no picture");
  ExpectSeen(media.show(), "picMOD=- picMOD'=-", " a broken one, which opens no box");
  EXPECT_EQ(media.form().lblStatusBar.Caption.Get(), "broken.jpg can't be shown");
}

TEST(MediaOnDemand, TheOperatorsPlayerDrivesBothScreens) {
  MediaShow media;
  media.Press("C:\\media\\clip.mp4");
  const MediaPlayer& seen = media.audience().MediaPlayer1;
  EXPECT_EQ(media.form().MediaPlayer1.uiMode.Get() + seen.uiMode.Get() + seen.URL.Get(), "fullnoneC:\\media\\clip.mp4");
  EXPECT_EQ(seen.Volume, 0);
  const std::tuple<PlayState, const char*, const char*> reports[] = {{PlayState::Playing, "II", "V/V"},
                                                                     {PlayState::Paused, ">", "V/V"},
                                                                     {PlayState::Playing, "II", "V/V"},
                                                                     {PlayState::Stopped, ">", "/"}};
  for (const auto& [state, caption, shown] : reports) {
    media.sim.media.MediaPlayer1.Report(state);
    EXPECT_EQ(media.form().btnPlayVideo.Caption.Get(), caption);
    EXPECT_EQ(media.WhatPlays(), shown) << caption;
    EXPECT_EQ(seen.PlayState, static_cast<int>(state));
  }
}

TEST(MediaOnDemand, EachKeyReplacesWhatIsUpAndSoundsGoBeside) {
  MediaShow media;
  for (const auto& [path, what] : {std::pair{"C:\\media\\clip.mp4", "V/V"},
                                   {"C:\\media\\horn.mp3", "SV/V"},
                                   {"C:\\media\\p.bmp", "SP/P"},
                                   {"C:\\media\\second.avi", "SV/V"}}) {
    media.Press(path);
    EXPECT_EQ(media.WhatPlays(), what) << path;
  }
  EXPECT_EQ(media.sim.media.MediaPlayer1.Url, "C:\\media\\second.avi");
}

TEST(MediaOnDemand, WhatIsLastIsAloneAndItsEndIsItsOwn) {
  MediaShow media;
  media.Press("C:\\media\\p.jpg");
  media.sim.clock.Advance(2000);
  media.Press("C:\\media\\clip.mp4");
  media.sim.clock.Advance(5000);
  EXPECT_EQ(media.WhatPlays(), "V/V") << "the picture's time takes no film down";
  media.Press("C:\\media\\p.jpg");
  EXPECT_FALSE(media.sim.media.MediaPlayer1.Playing) << "no film is heard under a picture";
  media.sim.media.MediaPlayer1.Report(PlayState::Stopped);
  EXPECT_EQ(media.WhatPlays(), "P/P") << "nor does its end take the picture down";
}

TEST(MediaOnDemand, OfTwoThatTheDiskHoldsUpTheLastIsShown) {
  MediaShow media;
  media.sim.pictures.Slow = true;
  media.Press("C:\\media\\p.jpg");
  media.Press("C:\\media\\clip.mp4");
  media.sim.pictures.Answer();
  EXPECT_EQ(media.WhatPlays(), "V/V");
}

TEST(MediaOnDemand, StandsAboveStandbyQuestionAndLoudspeakerOnBothScreens) {
  MediaShow media;
  for (const char* below : {"picStandby", "picQuestion", "picQuestionPicture", "picSound", "picBonus", "picWinner"}) {
    for (const Form* form : {static_cast<Form*>(&media.form()), static_cast<Form*>(&media.audience())}) {
      EXPECT_GT(form->Find("picMOD")->ZOrder.Get(), form->Find(below)->ZOrder.Get()) << form->Name() << below;
    }
  }
}

TEST(MediaOnDemand, AScreenThatComesUpShowsWhatTheConsoleHasUp) {
  // The file, what became of it, and what is shown.
  const std::tuple<std::string, std::string, const char*> cases[] = {{"C:\\a.mp4", "", "V/V"},
                                                                     {"C:\\a.mp4", "gone", "V/V"},
                                                                     {"C:\\a.mp4", "ended", "/"},
                                                                     {"C:\\a.jpg", "", "P/P"},
                                                                     {"C:\\a.jpg", "gone", "/"}};
  for (const auto& [file, event, shown] : cases) {
    MediaShow media(Screens::One);
    media.Press(file);
    if (event == "ended") media.sim.media.MediaPlayer1.Report(PlayState::Stopped);
    if (event == "gone") media.sim.files.Remove(file);
    media.sim.media.Log.clear();
    media.sim.displays.Change({{0, 0, 1280, 800}, {1280, 0, 3200, 1080}});
    EXPECT_EQ(media.WhatPlays(), shown) << file << event;
    EXPECT_EQ(media.audience().picMOD.Visible, std::string(shown).size() == 3);
    EXPECT_EQ(media.sim.media.Log, MediaLog{}) << "what runs is left to run";
  }
}

}  // namespace
}  // namespace pawnfield
