// The options dialog: what apply, OK and Cancel do to every option.
#include "forms/options_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const std::string kSong = "C:\\Shows\\clip.WAV";

class Options : public GamePlayer, public testing::Test {
 protected:
  Options() : GamePlayer("5 3 3 full mi") {}
  void Open(const std::string& script) { Play("mnuFileOptions@frmOptions { " + script + " }"); }
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
       {std::pair{"btnCancel", cancelled}, {"btnOK", applied}, {"btnApply btnApply=off btnCancel", applied}}) {
    state = {};
    for (int n = 1; n <= 20; ++n) state.Routing[static_cast<std::size_t>(n)] = n;
    options.chkFullScreenGameBoard.Value = 0;
    Open("cboRouting(0):2 cboRouting(19):0 file:" + kSong +
         " btnBGMusic optBackgroundMusic(2) cboMODPictureTmr:15 chkFullScreenGameBoard chkTSSupport " + end);
    EXPECT_EQ(std::to_string(state.Routing[1]) + "," + std::to_string(state.Routing[20]) + " hold " +
                  std::to_string(state.MODPictureTimer) + (state.FullScreenGameBoard ? " full" : " -") +
                  (state.TSSupport ? " companion music " : " - music ") + Music(),
              wanted);
    EXPECT_FALSE(options.Visible);
  }
}

TEST_F(Options, OnlyAChangeOffersApply) {
  for (const std::string change :
       {"cboRouting(7):3", "cboMODPictureTmr:1", "optBackgroundMusic(1)", "chkFullScreenGameBoard",
        "btnRoutingDefaults", "file:C:\\Shows\\clip.WAV btnBGMusic"}) {
    Open("btnApply=off " + change + " btnApply=on btnCancel");
  }
  // No file chosen, and the switch that is taken at once.
  Open("file: btnBGMusic chkTSSupport btnApply=off btnCancel");
}

TEST_F(Options, DialogOpensWithWhatRunsNowAndDefaultsPutEachBuzzerBack) {
  const auto routing = state.Routing;
  state.Routing[5] = 17;
  state.MODPictureTimer = 12;
  state.TSSupport = true;
  state.BackgroundMusic = 7;
  state.BgMusicFileName = "C:\\Music\\Gone.mp3";
  Open(
      "cboRouting(4)=17 cboMODPictureTmr=12 chkTSSupport=1 optBackgroundMusic(0)=1 lblBackgroundMusic= "
      "btnRoutingDefaults btnOK");
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
    Open("file:" + kSong + " btnBGMusic optBackgroundMusic(" + option + ") btnOK");
    EXPECT_EQ(Music(), music);
  }
  state.MusicEnabled = true;
  sim.media.Log.clear();
  Open("optBackgroundMusic(2) btnOK");
  EXPECT_EQ(Music(), "0 off") << "no file was chosen";
  EXPECT_EQ(sim.media.Log, MediaLog{"BackgroundPlayer stop"});
}

}  // namespace
}  // namespace pawnfield
