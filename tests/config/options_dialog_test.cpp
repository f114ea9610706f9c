// The options dialog: what apply, OK and Cancel do to every option.
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

constexpr const char* kSong = "C:\\Music\\Song.mp3";

class Options : public ShowFixture, public testing::Test {
 protected:
  Options() {
    sim.files.Put(kSong, "music");
    Start();
  }
  void Open(const std::function<void()>& act) {
    sim.dialogs.ExpectForm("frmOptions", act);
    form().mnuFileOptions.Click();
  }
  void ChooseSong(const std::string& path) {
    sim.dialogs.ExpectFile(path);
    options.btnBGMusic.Click();
  }
  std::string Music() {
    return std::to_string(state.BackgroundMusic) + (state.MusicEnabled ? " on" : " off") +
           (state.BgMusicFileName.empty() ? "" : " song");
  }

  OptionsForm& options = show().frmOptions;
  GameState& state = show().state;
};

TEST_F(Options, OkAppliesAndClosesApplyOnlyAppliesAndCancelKeepsTheRest) {
  const auto apply = [&] {
    options.btnApply.Click();
    EXPECT_TRUE(options.Visible && !options.btnApply.Enabled);
  };
  const std::string applied = "3,1 hold 20 full companion music 2 off song";
  // The companion's switch and the file's name are taken at once.
  const std::string cancelled = "1,20 hold 5 - companion music 0 off song";
  const std::pair<std::function<void()>, std::string> endings[] = {{[&] { options.btnCancel.Click(); }, cancelled},
                                                                   {[&] { options.Unload(); }, cancelled},
                                                                   {[&] { options.btnOK.Click(); }, applied},
                                                                   {apply, applied}};
  for (const auto& [end, wanted] : endings) {
    state = {};
    for (int n = 1; n <= 20; ++n) state.Routing[static_cast<std::size_t>(n)] = n;
    options.chkFullScreenGameBoard.Value = 0;
    Open([&, act = end] {
      options.cboRouting[0].Select(2);
      options.cboRouting[19].Select(0);
      ChooseSong(kSong);
      options.optBackgroundMusic[2].Click();
      options.cboMODPictureTmr.Select(15);
      options.chkFullScreenGameBoard.Click();
      options.chkTSSupport.Click();
      act();
      options.btnCancel.Click();
    });
    EXPECT_EQ(std::to_string(state.Routing[1]) + "," + std::to_string(state.Routing[20]) + " hold " +
                  std::to_string(state.MODPictureTimer) + (state.FullScreenGameBoard ? " full" : " -") +
                  (state.TSSupport ? " companion music " : " - music ") + Music(),
              wanted);
    EXPECT_TRUE(form().Visible && !options.Visible);
  }
  EXPECT_TRUE(sim.settings.Writes.empty());
}

TEST_F(Options, OnlyAChangeOffersApply) {
  const std::vector<std::function<void()>> acts{[&] { options.cboRouting[7].Select(3); },
                                                [&] { options.cboMODPictureTmr.Select(1); },
                                                [&] { options.optBackgroundMusic[1].Click(); },
                                                [&] { options.chkFullScreenGameBoard.Click(); },
                                                [&] { options.btnRoutingDefaults.Click(); },
                                                [&] { ChooseSong(kSong); },
                                                [&] { ChooseSong(""); },
                                                [&] { options.chkTSSupport.Click(); }};
  std::string offered;
  for (const auto& act : acts) {
    Open([&] {
      EXPECT_FALSE(options.btnApply.Enabled || options.Changed);
      act();
      EXPECT_EQ(options.btnApply.Enabled, options.Changed);
      offered += options.Changed ? "y" : "n";
      options.btnCancel.Click();
    });
  }
  EXPECT_EQ(offered, "yyyyyynn") << "no file chosen, and the switch that is taken at once";
}

TEST_F(Options, DialogOpensWithWhatRunsNowAndDefaultsPutEachBuzzerBack) {
  const auto routing = state.Routing;
  state.Routing[5] = 17;
  state.MODPictureTimer = 12;
  state.TSSupport = true;
  state.BackgroundMusic = 7;
  state.BgMusicFileName = "C:\\Music\\Gone.mp3";
  Open([&] {
    EXPECT_EQ(options.cboRouting[4].Text() + " " + options.cboMODPictureTmr.Text(), "17 12");
    EXPECT_TRUE(options.chkTSSupport.Value == 1 && options.optBackgroundMusic[0].Value);
    EXPECT_EQ(options.lblBackgroundMusic.Caption.Get(), "");
    options.btnRoutingDefaults.Click();
    options.btnOK.Click();
  });
  EXPECT_EQ(state.Routing, routing);
}

TEST_F(Options, MusicModesTakeWhatIsThereToPlay) {
  const std::string track = sim.platform.folders.DataRoot + "\\BackgroundMusic\\a.mp3";
  // A file chosen anew needs a restart; the folder's mode stays though it be empty.
  const std::tuple<std::size_t, bool, bool, std::string> cases[] = {{0, true, true, "0 off song"},
                                                                    {1, true, true, "1 on song"},
                                                                    {1, false, true, "1 off song"},
                                                                    {2, false, true, "2 off song"},
                                                                    {2, false, false, "0 off"}};
  for (const auto& [option, folderHasMusic, fileExists, music] : cases) {
    sim.files.Put(kSong, "music");
    folderHasMusic ? sim.files.Put(track, "m") : sim.files.Remove(track);
    state.MusicEnabled = false;
    Open([&, chosen = option, exists = fileExists] {
      ChooseSong(kSong);
      options.optBackgroundMusic[chosen].Click();
      if (!exists) sim.files.Remove(kSong);
      options.btnOK.Click();
    });
    EXPECT_EQ(Music(), music);
  }
  state.MusicEnabled = true;
  sim.media.Log.clear();
  Open([&] {
    options.optBackgroundMusic[2].Click();
    options.btnOK.Click();
  });
  EXPECT_EQ(Music(), "0 off") << "no file was chosen";
  EXPECT_EQ(sim.media.Log, MediaLog{"BackgroundPlayer stop"});
}

}  // namespace
}  // namespace pawnfield
