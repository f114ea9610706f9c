// Start-up, the settings it applies, and the way out.
#include "engine/start_up.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "engine/handlers.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;
using testing::Pair;

void Preset(ShowFixture& fixture, const char* key, const char* value) {
  fixture.sim.settings.Preset("pawnfield", "settings", key, value);
}

TEST(StartUp, TheSplashComesBeforeTheConsoleAndTakesItsTime) {
  ShowFixture fixture;
  fixture.sim.dialogs.ExpectMessage("No hardware was detected so you will be loaded in manual mode.");
  Main(fixture.show());
  EXPECT_TRUE(fixture.show().frmLoading.Visible);
  EXPECT_FALSE(fixture.show().frmSplash.Visible);
  fixture.sim.clock.Advance(50);
  EXPECT_FALSE(fixture.show().frmLoading.Visible);
  EXPECT_TRUE(fixture.show().frmSplash.Visible);
  // 8900 twips in steps of 500 are 18 ticks of 50 ms, then 5600 ms.
  fixture.sim.clock.Advance(18 * 50 + 5599);
  EXPECT_FALSE(fixture.form().Visible);
  fixture.sim.clock.Advance(1);
  EXPECT_TRUE(fixture.form().Visible);
  EXPECT_FALSE(fixture.show().frmSplash.Visible);
  EXPECT_EQ(fixture.show().state.SerialComm, 6);
  EXPECT_EQ(fixture.audience().Left, 1280 * 15);
  EXPECT_TRUE(fixture.audience().Visible);
}

TEST(StartUp, EveryButtonAndEntryOfEveryFormActs) {
  ShowFixture fixture;
  fixture.Start();
  // The heads of menus, lamps, and buttons that stand for the video player's own.
  const std::set<std::string> silent{"mnuFile",      "mnuHelp",      "mnuZR610",
                                     "btnBuzzer(0)", "btnBuzzer(1)", "btnBuzzer(2)",
                                     "btnPlayVideo", "btnStopVideo", "btnEnableAllBuzzers"};
  for (Form* form : AllForms(fixture.show())) {
    // Its answers are bound to each question.
    if (form == &fixture.show().frmGameInProgress) continue;
    for (const Control* control : form->Controls()) {
      const bool acts = control->Kind() == ControlKind::Button || control->Kind() == ControlKind::Menu;
      if (!acts || silent.contains(control->Name())) continue;
      EXPECT_TRUE(control->OnClick) << form->Name() << " " << control->Name();
    }
  }
}

TEST(StartUp, OneMonitorMeansNoAudienceScreen) {
  ShowFixture fixture(Screens::One);
  fixture.Start();
  EXPECT_FALSE(fixture.audience().Visible);
  EXPECT_FALSE(fixture.show().state.DualScreen);
}

TEST(StartUp, SettingsReachTheControlsAndOddOnesTheirDefaults) {
  struct Case {
    const char* key;
    const char* value;
    std::function<std::string(Show&)> read;
    const char* expected;
  };
  const auto selected = [](auto& options) {
    std::string which;
    for (std::size_t i = 0; i < options.Size(); ++i) which += options[i].Value ? '1' : '0';
    return which;
  };
  const auto gameType = [&](Show& s) { return selected(s.frmMain.optGameType); };
  const auto grid = [&](Show& s) { return selected(s.frmMain.optGridControl) + std::to_string(s.state.GridCols); };
  const auto players = [&](Show& s) { return selected(s.frmMain.optPlayers); };
  const auto pause = [](Show& s) { return s.frmMain.cboAutoContinue.Text(); };
  const auto response = [](Show& s) { return s.frmMain.cboTimedResponse.Text(); };
  const auto scoring = [](Show& s) { return s.frmMain.cbxScore[0].Text(); };
  const auto ending = [&](Show& s) { return selected(s.frmMain.optGameEnds); };
  const auto keyCorrect = [](Show& s) { return s.state.KeyCorrect; };
  const auto volume = [](Show& s) { return std::to_string(s.state.EventPlayerVolume); };
  const auto routing = [](Show& s) { return std::to_string(s.state.Routing[7]); };
  const auto penalty = [](Show& s) { return s.frmPlayerNames.cboPenaltyPoints.Text(); };
  const Case cases[] = {
      {"GameType", "2", gameType, "01000"},
      {"GameType", "6", gameType, "10000"},
      {"None", "", gameType, "00001"},
      {"GridControl", "4", grid, "0104"},
      {"GridControl", "6", grid, "0015"},
      {"Players", "2", players, "10"},
      {"Players", "1", players, "01"},
      {"AutoContinue", "6", pause, "User Advances"},
      {"AutoContinue", "5", pause, "5 Seconds"},
      {"TimedResponse", "7", response, "7"},
      {"None", "", response, "None"},
      {"Scoring", "10", scoring, "100"},
      {"None", "", scoring, "50"},
      {"GameEnds", "True", ending, "10"},
      {"None", "", ending, "01"},
      {"KeyCorrect", " ", keyCorrect, "Y"},
      {"KeyCorrect", "J", keyCorrect, "J"},
      {"EventPlayerVolume", "101", volume, "75"},
      {"EventPlayerVolume", "0", volume, "0"},
      {"Routing7", "20", routing, "20"},
      {"None", "", routing, "7"},
      {"PenaltyPoints", "20", penalty, "20"},
  };
  for (const Case& c : cases) {
    ShowFixture fixture;
    Preset(fixture, c.key, c.value);
    fixture.Start();
    EXPECT_EQ(c.read(fixture.show()), c.expected) << c.key << "=" << c.value;
  }
}

TEST(StartUp, TriviaModeAAloneStartsWithTheBoardCalledShown) {
  for (const char* gameType : {"1", "2", "3", "4", "5"}) {
    ShowFixture fixture;
    Preset(fixture, "GameType", gameType);
    fixture.Start();
    const bool triviaA = std::string(gameType) == "3";
    EXPECT_EQ(fixture.form().btnStandbyMode.Enabled, triviaA) << gameType;
    EXPECT_EQ(fixture.form().btnPlayMode.Enabled, !triviaA) << gameType;
    EXPECT_TRUE(fixture.audience().picStandby.Visible) << gameType;
    EXPECT_EQ(fixture.form().btnStart.Enabled, gameType[0] <= '2') << gameType;
    EXPECT_EQ(fixture.show().state.CurrentPlayer, 0) << gameType;
    EXPECT_EQ(fixture.form().btnNextPlayer.Visible, gameType[0] != '5') << gameType;
  }
}

TEST(StartUp, OwnScreenPicturesAreTakenOnlyWhenAllThreeAreThere) {
  for (const bool complete : {false, true}) {
    ShowFixture fixture;
    for (const char* name : {"pawnfield.bmp", "bonus.bmp", "header.bmp"}) {
      if (complete || name[0] != 'h') {
        fixture.sim.files.Put(std::string("C:\\Pawnfield\\") + name, SimPictures::PictureBytes(1024, 768));
      }
    }
    fixture.Start();
    EXPECT_EQ(fixture.audience().imgStandby.Picture == "C:\\Pawnfield\\pawnfield.bmp", complete);
    EXPECT_EQ(fixture.form().imgBonus.Picture == "C:\\Pawnfield\\bonus.bmp", complete);
  }
}

TEST(StartUp, TheProgramRunsAloneInItsFamily) {
  struct Case {
    const char* caption;
    std::int64_t id;
    bool stops;
  };
  const Case cases[] = {{"Ostara Clash.exe", 7, true},
                        {"OSTARA", 7, true},
                        {"ostar", 7, false},
                        {"My Ostara", 7, false},
                        {"Ostara X", 4711, false}};
  for (const Case& c : cases) {
    ShowFixture fixture;
    fixture.sim.processes.Others = {{"init", 1}, {c.caption, c.id}};
    if (c.stops) {
      fixture.sim.dialogs.ExpectMessage(std::string(c.caption) +
                                        " is already running. Please close that instance first.");
    }
    Main(fixture.show());
    EXPECT_EQ(fixture.sim.processes.Ended, c.stops) << c.caption;
    EXPECT_EQ(fixture.sim.processes.Activated.size(), c.stops ? 1u : 0u) << c.caption;
    EXPECT_EQ(ScanForSiblings(fixture.show(), ScanMode::AskOnly), c.stops) << c.caption;
  }
}

TEST(StartUp, ASecondInstanceGivesWayToTheFirst) {
  ShowFixture fixture;
  fixture.sim.processes.AlreadyRuns = true;
  fixture.sim.dialogs.ExpectMessage("There is already an instance of this application open.");
  Main(fixture.show());
  fixture.sim.clock.Advance(20000);
  EXPECT_THAT(fixture.sim.processes.Activated, ElementsAre(0));
  EXPECT_TRUE(fixture.sim.processes.Ended);
  EXPECT_FALSE(fixture.form().Visible);
}

TEST(StartUp, OnlyMissingDataFoldersAreMadeAndAFailureIsTold) {
  ShowFixture fixture;
  fixture.sim.files.Put("C:\\Ostara Show Kit Data\\Pawnfield\\keep.txt", "kept");
  PrepareDataFolders(fixture.show());
  for (const char* name :
       {"Ostara Panel Pro 4", "Ostara Clash", "Pawnfield", "Ostara Wheelhouse", "Ostara Bargain", "BackgroundMusic"}) {
    EXPECT_TRUE(fixture.sim.files.FolderExists(std::string("C:\\Ostara Show Kit Data\\") + name)) << name;
  }
  EXPECT_EQ(fixture.sim.files.Read("C:\\Ostara Show Kit Data\\Pawnfield\\keep.txt"), "kept");

  ShowFixture denied;
  denied.sim.files.Deny("C:\\Ostara Show Kit Data");
  denied.sim.dialogs.ExpectMessage("Error Number: 75");
  denied.Start();
  EXPECT_TRUE(denied.form().Visible);
}

TEST(Exit, OnlyYesEndsTheProgramAndSavesTheSettings) {
  for (const BoxAnswer answer : {BoxAnswer::Cancel, BoxAnswer::No, BoxAnswer::Yes}) {
    ShowFixture fixture;
    fixture.Start();
    fixture.form().optGameType[1].Click();
    fixture.sim.displays.TopMost.clear();
    fixture.sim.dialogs.ExpectMessage("Are you sure you want to exit?", answer);
    fixture.form().mnuFileExit.Click();
    const bool yes = answer == BoxAnswer::Yes;
    EXPECT_THAT(fixture.sim.displays.TopMost, ElementsAre(Pair("frmMain", true), Pair("frmMain", false)));
    EXPECT_EQ(fixture.sim.processes.Ended, yes);
    EXPECT_EQ(fixture.form().Visible, !yes);
    EXPECT_EQ(fixture.audience().Visible, !yes);
    EXPECT_EQ(fixture.form().tmrArrowsTimer.Enabled, !yes);
    EXPECT_EQ(fixture.sim.settings.GetSetting("Pawnfield", "Settings", "GameType", "none"), yes ? "2" : "none");
  }
}

TEST(Exit, WhatWasChosenComesBackAtTheNextStart) {
  ShowFixture first;
  first.Start();
  first.form().optGameType[3].Click();
  first.form().optPlayers[0].Click();
  first.form().optGridControl[1].Click();
  first.form().optGameEnds[0].Click();
  first.form().cboAutoContinue.Select(3);
  first.form().chkIncorrectPenalty.Click();
  first.sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::Yes);
  first.form().mnuFileExit.Click();

  ShowFixture second;
  for (const auto& [key, value] : first.sim.settings.Writes) Preset(second, key.c_str(), value.c_str());
  second.Start();
  EXPECT_TRUE(second.form().optGameType[3].Value);
  EXPECT_TRUE(second.form().optPlayers[0].Value);
  EXPECT_TRUE(second.form().optGridControl[1].Value);
  EXPECT_TRUE(second.form().optGameEnds[0].Value);
  EXPECT_EQ(second.form().cboAutoContinue.Text(), "User Advances");
  EXPECT_EQ(second.form().chkIncorrectPenalty.Value, 1);
  EXPECT_EQ(second.show().state.IncorrectPenalty, true);
}

}  // namespace
}  // namespace pawnfield
