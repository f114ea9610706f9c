// The options dialog: what apply, OK and Cancel do to every option.
#include "forms/options_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const std::string kSong = "C:\\Shows\\clip.WAV";

class Options : public GamePlayer, public testing::Test {
 protected:
  Options() : GamePlayer("Trivia C, user advances, not started") {}
  void Open(const std::string& words) { Do("at the options: " + words); }
  std::string Music() {
    return std::to_string(state.BackgroundMusic) + (state.MusicEnabled ? " on" : " off") +
           (state.BgMusicFileName.empty() ? "" : " song");
  }

  OptionsForm& options = show().frmOptions;
  GameState& state = show().state;
  SimPlatform& sim = fixture().sim;
};

TEST_F(Options, OkAppliesAndClosesApplyOnlyAppliesAndCancelKeepsTheRest) {
  const std::string applied = "3,1 hold 20 full companion music 2 on song";
  // The companion's switch and the file's name are taken at once.
  const std::string cancelled = "1,20 hold 5 - companion music 0 off song";
  for (const auto& [end, wanted] :
       {std::pair{"Cancel", cancelled}, {"OK", applied}, {"Apply; Apply is off; press Cancel", applied}}) {
    state = {};
    for (int n = 1; n <= 20; ++n) state.Routing[static_cast<std::size_t>(n)] = n;
    options.chkFullScreenGameBoard.Value = 0;
    Open("choose entry 2 of routing 1; choose entry 0 of routing 20; file " + kSong +
         "; press Browse; press One File; choose entry 15 of picture time; press Full Screen; press Companion; press " +
         end);
    EXPECT_EQ(std::to_string(state.Routing[1]) + "," + std::to_string(state.Routing[20]) + " hold " +
                  std::to_string(state.MODPictureTimer) + (state.FullScreenGameBoard ? " full" : " -") +
                  (state.TSSupport ? " companion music " : " - music ") + Music(),
              wanted);
    EXPECT_FALSE(options.Visible);
  }
}

TEST_F(Options, OnlyAChangeOffersApply) {
  for (const std::string change :
       {"choose entry 3 of routing 8", "choose entry 1 of picture time", "press Whole Folder", "press Full Screen",
        "press Defaults", "file C:\\Shows\\clip.WAV; press Browse"}) {
    Open("Apply is off; " + change + "; Apply is on; press Cancel");
  }
  // No file chosen, and the switch that is taken at once.
  Open("file none; press Browse; press Companion; Apply is off; press Cancel");
}

TEST_F(Options, DialogOpensWithWhatRunsNowAndDefaultsPutEachBuzzerBack) {
  const auto routing = state.Routing;
  state.Routing[5] = 17;
  state.MODPictureTimer = 12;
  state.TSSupport = true;
  state.BackgroundMusic = 7;
  state.BgMusicFileName = "C:\\Music\\Gone.mp3";
  Open(
      "routing 5 is 17; picture time is 12; Companion is 1; No Music is 1; music file is empty; "
      "press Defaults; press OK");
  EXPECT_EQ(state.Routing, routing);
}

TEST_F(Options, MusicModesTakeWhatIsThereToPlay) {
  const std::string track = sim.platform.folders.DataRoot + "\\BackgroundMusic\\a.mp3";
  // The folder's mode stays though it be empty.
  const std::tuple<const char*, bool, bool, std::string> cases[] = {{"0", true, true, "0 off song"},
                                                                    {"1", true, true, "1 on song"},
                                                                    {"1", false, true, "1 off song"},
                                                                    {"2", false, true, "2 on song"},
                                                                    {"2", false, false, "0 off"}};
  for (const auto& [option, folderHasMusic, fileExists, music] : cases) {
    fileExists ? sim.files.Put(kSong, "music") : sim.files.Remove(kSong);
    folderHasMusic ? sim.files.Put(track, "m") : sim.files.Remove(track);
    state.MusicEnabled = false;
    Open("file " + kSong + "; press Browse; press optBackgroundMusic(" + option + "); press OK");
    EXPECT_EQ(Music(), music);
  }
  state.MusicEnabled = true;
  sim.media.Log.clear();
  Open("press One File; press OK");
  EXPECT_EQ(Music(), "0 off") << "no file was chosen";
  EXPECT_EQ(sim.media.Log, MediaLog{"BackgroundPlayer stop"});
}

}  // namespace
}  // namespace pawnfield
