// Start-up, the settings it applies, and the way out.
#include "program/start_up.h"

#include <gmock/gmock.h>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/second_screen_form.h"
#include "forms/small_forms.h"
#include "program/handlers.h"
#include "program/program.h"
#include "support/game_player.h"
#include "support/seen.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(StartUp, TheSplashComesBeforeTheConsoleAndTakesItsTime) {
  ShowFixture fixture;
  const auto shown = [&] {
    std::string names;
    for (const Form* form : AllForms(fixture.show())) names += form->Visible ? form->Name() + " " : "";
    return names;
  };
  fixture.sim.dialogs.ExpectMessage("No hardware was detected so you will be loaded in manual mode.");
  Main(fixture.show());
  // 8900 twips in steps of 500 are 18 ticks of 50 ms, then 5600 ms.
  const std::pair<int, const char*> cases[] = {{0, "frmFSMain frmLoading frmSS "},
                                               {50, "frmFSMain frmSplash frmSS "},
                                               {18 * 50 + 5599, "frmFSMain frmSplash frmSS "},
                                               {1, "frmMain frmFSMain frmSS "}};
  for (const auto& [ms, forms] : cases) {
    fixture.sim.clock.Advance(ms);
    EXPECT_EQ(shown(), forms) << ms;
  }
  EXPECT_EQ(fixture.show().state.SerialComm, InterfaceCode::Manual);
}

TEST(StartUp, TheRoomSeesStandbyAsSoonAsItsScreenIsKnown) {
  for (const bool known : {true, false}) {
    ShowFixture fixture;
    fixture.sim.files.Put("C:\\Pawnfield\\Images\\Standby.jpg", SimPictures::PictureBytes(1024, 768));
    const auto both = fixture.sim.displays.Monitors;
    if (!known) fixture.sim.displays.Monitors.resize(1);
    Main(fixture.show());
    const FSMainForm& room = fixture.audience();
    EXPECT_EQ(fixture.show().frmSS.Visible, known);
    if (!known) fixture.sim.displays.Change(both);
    fixture.sim.clock.Advance(100);
    EXPECT_TRUE(fixture.show().frmSS.Visible && room.picStandby.Visible && room.imgStandby.Visible);
    EXPECT_EQ(room.imgStandby.Picture, "C:\\Pawnfield\\Images\\Standby.jpg");
    // The projector's cable is pulled and put back under the splash.
    fixture.sim.displays.Change({both[0]});
    EXPECT_FALSE(fixture.show().frmSS.Visible);
    fixture.sim.displays.Change(both);
    EXPECT_TRUE(fixture.show().frmSS.Visible && !fixture.form().Visible);
  }
}

TEST(StartUp, AClickEndsTheSplashOnceAndNotTheSearchForHardware) {
  ShowFixture fixture;
  fixture.sim.dialogs.ExpectMessage("No hardware was detected");
  Main(fixture.show());
  fixture.sim.clock.Advance(60);
  fixture.show().frmSplash.Click();
  EXPECT_TRUE(fixture.form().Visible && !fixture.show().frmSplash.Visible);
  EXPECT_EQ(fixture.show().state.SerialComm, InterfaceCode::Manual);
  const auto saved = fixture.sim.settings.Writes.size();
  fixture.show().frmSplash.Click();
  fixture.sim.clock.Advance(20000);
  EXPECT_EQ(fixture.sim.settings.Writes.size(), saved) << "started a second time";
}

TEST(StartUp, ABoxTellsOfMissingHardwareOnceOnAMachineAndThenTheBottomLine) {
  ShowFixture first;
  first.Start();
  EXPECT_EQ(first.form().lblStatusBar.Caption, "");
  ShowFixture second;
  const std::string key = "NoHardwareTold";
  second.Preset(key, first.sim.settings.GetSetting("Pawnfield", "Settings", key, "False"));
  Main(second.show());
  second.sim.clock.Advance(10000);
  EXPECT_TRUE(second.form().Visible);
  EXPECT_EQ(second.form().lblStatusBar.Caption, "No hardware was detected: manual mode");
}

TEST(StartUp, ASetThatTheProgramIsStartedWithIsLoadedBehindTheSplash) {
  struct Case {
    const char* gameType;
    const char* set;
    const char* told;
    int questions;
  };
  for (const Case& c : {Case{"5", "Named", nullptr, 7},
                        {"5", "None", "Error Number: 53", 0},
                        {"1", "Named", "The set was not loaded", 0}}) {
    ShowFixture fixture;
    fixture.WriteNumberedSet("Named", 7);
    fixture.Preset("GameType", c.gameType);
    fixture.show().consoleDialog.FileName = std::string("C:\\Pawnfield\\Trivia Sets\\") + c.set + ".txt";
    fixture.sim.dialogs.ExpectMessage("No hardware was detected");
    if (c.told != nullptr) fixture.sim.dialogs.ExpectMessage(c.told);
    Main(fixture.show());
    fixture.sim.clock.Advance(10000);
    EXPECT_TRUE(fixture.form().Visible) << c.set;
    EXPECT_EQ(fixture.show().NumGameQuestions, c.questions) << c.set;
    EXPECT_EQ(fixture.show().state.GameLoaded, c.questions > 0) << c.set;
  }
}

TEST(StartUp, EveryButtonAndEntryOfEveryFormActs) {
  ShowFixture fixture;
  fixture.Start();
  // The heads of menus, lamps, and buttons that stand for the video player's own.
  const std::string silent =
      " mnuFile mnuEdit mnuHelp mnuZR610 btnBuzzer(0) btnBuzzer(1) btnBuzzer(2) btnPlayVideo btnStopVideo "
      "btnEnableAllBuzzers ";
  for (Form* form : AllForms(fixture.show())) {
    // Its answers are bound to each question.
    if (form == &fixture.show().frmGameInProgress) continue;
    for (const Control* control : form->Controls()) {
      const bool acts = control->Kind() == ControlKind::Button || control->Kind() == ControlKind::Menu;
      if (!acts || silent.find(" " + control->Name() + " ") != std::string::npos) continue;
      EXPECT_TRUE(control->OnClick) << form->Name() << " " << control->Name();
    }
  }
}

TEST(StartUp, SettingsReachTheControlsAndOddOnesTheirDefaults) {
  struct Case {
    const char* key;
    const char* value;
    const char* seen;
  };
  // Trivia Mode A alone starts with the board called shown.
  const Case cases[] = {
      {"GameType", "1", "optGameType(0)=1 offers=Start,PlayMode btnNextPlayer=off picStandby'=up turn=0"},
      {"GameType", "2", "optGameType(1)=1 offers=Start,PlayMode btnNextPlayer=off picStandby'=up turn=0"},
      {"GameType", "3", "optGameType(2)=1 offers=SelectGame,StandbyMode btnNextPlayer=off picStandby'=up turn=0"},
      {"GameType", "4", "optGameType(3)=1 offers=SelectGame,PlayMode btnNextPlayer=off picStandby'=up turn=0"},
      {"GameType", "5", "optGameType(4)=1 offers=SelectGame,PlayMode btnNextPlayer=- picStandby'=up turn=0"},
      {"GameType", "6", "optGameType(0)=1 optGameType(4)=0"},
      {"GridControl", "4", "optGridControl(1)=1 optGridControl(2)=0 imgD'= imgE'=-"},
      {"GridControl", "6", "optGridControl(2)=1 imgE'="},
      {"Players", "2", "optPlayers(0)=1 picPlayer(2)'=-"},
      {"Players", "1", "optPlayers(1)=1 picPlayer(2)'=up"},
      {"AutoContinue", "5", "cboAutoContinue=5_Seconds"},
      {"TimedResponse", "7", "cboTimedResponse=7"},
      {"Scoring", "10", "cbxScore(0)=100"},
      {"GameEnds", "True", "optGameEnds(0)=1 optGameEnds(1)=0"},
      {"None", "", "optGameType(4)=1 optPlayers(1)=1 cboTimedResponse=None cbxScore(0)=50 optGameEnds(1)=1"},
  };
  for (const Case& c : cases) {
    ShowFixture fixture;
    fixture.sim.settings.Preset("pawnfield", "settings", c.key, c.value);
    fixture.Start();
    ExpectSeen(fixture.show(), c.seen, std::string(" ") + c.key + "=" + c.value);
  }
}

TEST(StartUp, OwnScreenPicturesAreTakenOnlyWhenAllThreeAreThere) {
  for (const bool complete : {false, true}) {
    ShowFixture fixture;
    for (const char* name : {"pawnfield.bmp", "bonus.bmp", "header.bmp"}) {
      if (!complete && name[0] == 'h') continue;
      fixture.sim.files.Put(std::string("C:\\Pawnfield\\") + name, SimPictures::PictureBytes(1024, 768));
    }
    fixture.Start();
    EXPECT_EQ(fixture.audience().imgStandby.Picture == "C:\\Pawnfield\\pawnfield.bmp", complete);
    EXPECT_EQ(fixture.form().imgBonus.Picture == "C:\\Pawnfield\\bonus.bmp", complete);
  }
}

TEST(StartUp, TheProgramRunsAloneInItsFamily) {
  struct Case {
    std::string caption;
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
    const std::string told = " is already running. Please close that instance first.";
    if (c.stops) fixture.sim.dialogs.ExpectMessage(c.caption + told);
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
  EXPECT_TRUE(fixture.sim.processes.Ended && !fixture.form().Visible);
}

TEST(StartUp, OnlyMissingDataFoldersAreMadeAndAFailureIsReported) {
  const std::string root = "C:\\Ostara Show Kit Data\\";
  ShowFixture fixture;
  fixture.sim.files.Put(root + "Pawnfield\\keep.txt", "kept");
  fixture.sim.files.Deny(root + "Pawnfield");
  PrepareDataFolders(fixture.show());
  for (const char* name :
       {"Ostara Panel Pro 4", "Ostara Clash", "Ostara Wheelhouse", "Ostara Bargain", "BackgroundMusic"}) {
    EXPECT_TRUE(fixture.sim.files.FolderExists(root + name)) << name;
  }

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
    fixture.sim.displays.TopMost.clear();
    fixture.sim.dialogs.ExpectMessage("Are you sure you want to exit?", answer);
    fixture.form().mnuFileExit.Click();
    const bool yes = answer == BoxAnswer::Yes;
    EXPECT_THAT(fixture.sim.displays.TopMost, ElementsAre(Pair("frmMain", true), Pair("frmMain", false)));
    EXPECT_EQ(fixture.sim.processes.Ended, yes);
    EXPECT_EQ(fixture.form().Visible, !yes);
    EXPECT_EQ(fixture.show().frmSS.Visible, !yes);
    EXPECT_EQ(fixture.form().tmrArrowsTimer.Enabled, !yes);
    EXPECT_EQ(fixture.sim.settings.GetSetting("Pawnfield", "Settings", "GameType", "none"), yes ? "5" : "none");
  }
}

TEST(StartUp, OffersTheOptionsOfTheTypeThatWasLastPlayed) {
  const char* const trivia =
      "chkAnimation.Enabled=yes lblShowAnimation.Enabled=yes chkIncorrectPenalty.Enabled=yes "
      "lblLose100Points.Enabled=yes btnEnableAllBuzzers.Enabled=";
  const std::string challenge =
      "chkAnimation.Enabled=no lblShowAnimation.Enabled=no chkIncorrectPenalty.Enabled=no lblLose100Points.Enabled=no "
      "chkHideQuestion.Enabled=no btnEnableAllBuzzers.Enabled=no";
  for (const auto& [type, offered] : {std::pair<std::string, std::string>{"1", challenge},
                                      {"2", challenge},
                                      {"3", std::string(trivia) + "no"},
                                      {"4", std::string(trivia) + "no"},
                                      {"5", std::string(trivia) + "yes"}}) {
    ShowFixture fixture;
    fixture.Preset("GameType", type);
    fixture.Start();
    ExpectSeen(fixture.show(), offered, " a start in type " + type);
  }
}

TEST(Exit, WhatWasChosenComesBackAtTheNextStart) {
  const char* const chosen =
      "optGameType(3)=1 optPlayers(0)=1 optGridControl(1)=1 optGameEnds(0)=1 cboAutoContinue=User_Advances "
      "chkIncorrectPenalty=1";
  GamePlayer first("Trivia B, 2 players, 4x4, Finish Row, user advances, penalty, not started");
  ExpectSeen(first.show(), chosen, " the choice");
  first.fixture().sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::Yes);
  first.Do("press Exit");
  ShowFixture second;
  for (const auto& [key, value] : first.fixture().sim.settings.Writes) {
    if (key == "NoHardwareTold") continue;
    second.sim.settings.Preset("pawnfield", "settings", key, value);
  }
  second.Start();
  ExpectSeen(second.show(), chosen, " the next start");
  EXPECT_TRUE(second.show().state.IncorrectPenalty);
}

}  // namespace
}  // namespace pawnfield
