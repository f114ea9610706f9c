// The options dialog: what apply, OK and Cancel do to every option, and that the exit writes what it says.
#include <gtest/gtest.h>

#include "support/show_fixture.h"

namespace pawnfield {
namespace {

constexpr const char* kSong = "C:\\Music\\Song.mp3";

class Options : public testing::Test {
 protected:
  Options() {
    fixture.sim.files.Put(kSong, "music");
    fixture.Start();
  }
  void Open(const std::function<void()>& act) {
    fixture.sim.dialogs.ExpectForm("frmOptions", act);
    fixture.form().mnuFileOptions.Click();
  }
  void ChooseSong(const std::string& path) {
    fixture.sim.dialogs.ExpectFile(path);
    options.btnBGMusic.Click();
  }
  // Everything the dialog decides, as text.
  std::string State() {
    return std::to_string(state.Routing[1]) + "," + std::to_string(state.Routing[20]) + " music " +
           std::to_string(state.BackgroundMusic) + (state.MusicEnabled ? "on" : "off") + " '" +
           ExtractName(state.BgMusicFileName) + "' hold " + std::to_string(state.MODPictureTimer) +
           (state.FullScreenGameBoard ? " full" : " -") + (state.TSSupport ? " companion" : " -");
  }
  static std::string ExtractName(const std::string& path) { return path.substr(path.rfind('\\') + 1); }
  void ChangeEverything() {
    options.cboRouting[0].Select(2);
    options.cboRouting[19].Select(0);
    ChooseSong(kSong);
    options.optBackgroundMusic[2].Click();
    options.cboMODPictureTmr.Select(15);
    options.chkFullScreenGameBoard.Click();
    options.chkTSSupport.Click();
  }

  ShowFixture fixture;
  OptionsForm& options = fixture.show().frmOptions;
  GameState& state = fixture.show().state;
};

TEST_F(Options, OkAppliesAndClosesApplyOnlyAppliesAndCancelKeepsTheRest) {
  const std::string before = "1,20 music 0off '' hold 5 - -";
  const std::string after = "3,1 music 2off 'Song.mp3' hold 20 full companion";
  struct Case {
    const char* name;
    std::function<void()> end;
    std::string state;
  };
  const Case cases[] = {
      // The companion's switch and the file's name are taken at once.
      {"Cancel", [&] { options.btnCancel.Click(); }, "1,20 music 0off 'Song.mp3' hold 5 - companion"},
      {"close box", [&] { options.Unload(); }, "1,20 music 0off 'Song.mp3' hold 5 - companion"},
      {"OK", [&] { options.btnOK.Click(); }, after},
      {"Apply, Cancel",
       [&] {
         options.btnApply.Click();
         EXPECT_TRUE(options.Visible);
         EXPECT_FALSE(options.btnApply.Enabled);
         options.btnCancel.Click();
       },
       after},
  };
  for (const Case& c : cases) {
    for (int n = 1; n <= 20; ++n) state.Routing[static_cast<std::size_t>(n)] = n;
    state.BgMusicFileName.clear();
    state.BackgroundMusic = 0;
    state.MODPictureTimer = 5;
    state.FullScreenGameBoard = state.TSSupport = false;
    options.chkFullScreenGameBoard.Value = 0;
    EXPECT_EQ(State(), before);
    Open([&] {
      ChangeEverything();
      c.end();
    });
    EXPECT_EQ(State(), c.state) << c.name;
    EXPECT_TRUE(fixture.form().Visible);
  }
}

TEST_F(Options, OnlyAChangeOffersApply) {
  const std::function<void()> changes[] = {
      [&] { options.cboRouting[7].Select(3); },       [&] { options.cboMODPictureTmr.Select(1); },
      [&] { options.optBackgroundMusic[1].Click(); }, [&] { options.chkFullScreenGameBoard.Click(); },
      [&] { options.btnRoutingDefaults.Click(); },    [&] { ChooseSong(kSong); }};
  for (const auto& change : changes) {
    Open([&] {
      EXPECT_FALSE(options.btnApply.Enabled);
      EXPECT_FALSE(options.Changed);
      change();
      EXPECT_TRUE(options.btnApply.Enabled);
      EXPECT_TRUE(options.Changed);
      options.btnCancel.Click();
    });
  }
  Open([&] {
    options.chkTSSupport.Click();
    ChooseSong("");
    EXPECT_FALSE(options.btnApply.Enabled);
    options.btnCancel.Click();
  });
}

TEST_F(Options, DialogOpensWithWhatRunsNowAndDefaultsPutEachBuzzerBack) {
  state.Routing[5] = 17;
  state.MODPictureTimer = 12;
  state.TSSupport = true;
  state.BackgroundMusic = 7;
  state.BgMusicFileName = "C:\\Music\\Gone.mp3";
  Open([&] {
    EXPECT_EQ(options.cboRouting[4].Text(), "17");
    EXPECT_EQ(options.cboMODPictureTmr.Text(), "12");
    EXPECT_EQ(options.chkTSSupport.Value, 1);
    EXPECT_TRUE(options.optBackgroundMusic[0].Value);
    EXPECT_EQ(options.lblBackgroundMusic.Caption.Get(), "");
    options.btnRoutingDefaults.Click();
    options.btnOK.Click();
  });
  for (int n = 1; n <= 20; ++n) EXPECT_EQ(state.Routing[static_cast<std::size_t>(n)], n);
}

TEST_F(Options, MusicModesTakeWhatIsThereToPlay) {
  const std::string folder = fixture.sim.platform.folders.DataRoot + "\\BackgroundMusic\\";
  struct Case {
    std::size_t option;
    bool folderHasMusic, fileExists;
    int mode;
    bool enabled;
  };
  // A file chosen anew needs a restart; the folder's mode stays though it be empty.
  for (const Case& c : {Case{0, true, true, 0, false},
                        {1, true, true, 1, true},
                        {1, false, true, 1, false},
                        {2, false, true, 2, false},
                        {2, false, false, 0, false}}) {
    fixture.sim.files.Put(kSong, "music");
    c.folderHasMusic ? fixture.sim.files.Put(folder + "a.mp3", "m") : fixture.sim.files.Remove(folder + "a.mp3");
    state.MusicEnabled = false;
    Open([&] {
      ChooseSong(kSong);
      options.optBackgroundMusic[c.option].Click();
      if (!c.fileExists) fixture.sim.files.Remove(kSong);
      options.btnOK.Click();
    });
    EXPECT_EQ(state.BackgroundMusic, c.mode) << c.option;
    EXPECT_EQ(state.MusicEnabled, c.enabled) << c.option;
    EXPECT_EQ(state.BgMusicFileName.empty(), !c.fileExists);
  }
  state.MusicEnabled = true;
  fixture.sim.media.Log.clear();
  Open([&] {
    options.optBackgroundMusic[2].Click();
    options.btnOK.Click();
  });
  EXPECT_FALSE(state.MusicEnabled);
  EXPECT_EQ(fixture.sim.media.Log, MediaLog{"BackgroundPlayer stop"});
}

TEST_F(Options, ExitWritesWhatTheDialogSaysAndNothingIsWrittenBefore) {
  Open([&] {
    ChangeEverything();
    options.picEvent.RealSlider.StepTo(31);
    options.btnOK.Click();
  });
  EXPECT_TRUE(fixture.sim.settings.Writes.empty());
  fixture.sim.dialogs.ExpectMessage("Are you sure you want to exit?", BoxAnswer::Yes);
  fixture.form().mnuFileExit.Click();
  for (const auto& [key, value] : {std::pair{"Routing1", "3"},
                                   {"Routing20", "1"},
                                   {"MODPictureTimer", "20"},
                                   {"BackGroundMusic", "2"},
                                   {"BgMusicFileName", kSong},
                                   {"TSSupport", "True"},
                                   {"FullScreenGameBoard", "True"},
                                   {"EventPlayerVolume", "31"}}) {
    EXPECT_EQ(fixture.sim.settings.GetSetting("Pawnfield", "Settings", key, "?"), value) << key;
  }
}

TEST_F(Options, RoutingSaysWhoAKeypadsDigitRingsIn) {
  state.SerialComm = 8;
  Open([&] {
    options.cboRouting[0].Select(2);
    options.btnOK.Click();
  });
  fixture.WriteNumberedSet("Ten", 10);
  fixture.ChooseSet("Ten");
  fixture.form().btnStart.Click();
  EXPECT_FALSE(fixture.form().mnuFileOptions.Enabled);
  fixture.form().KeyPress('1');
  EXPECT_EQ(state.CurrentPlayer, 3);
}

}  // namespace
}  // namespace pawnfield
