// The audience screen on its monitor: where it goes, how it comes and goes with a cable, and that it is in step.
#include "presentation/audience_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "presentation/monitors.h"
#include "support/game_player.h"
#include "support/screen_pairs.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

const std::vector<MonitorInfo> kOne{{0, 0, 1280, 800}};
const std::vector<MonitorInfo> kTwo{{0, 0, 1280, 800}, {1280, 0, 3200, 1080}};
const std::vector<MonitorInfo> kLeft{{0, 0, 1280, 800}, {-1920, 0, 0, 1080}};

TEST(Monitors, AreCountedFromOneAndTheAudienceStandsOnTheSecond) {
  struct Row {
    std::vector<MonitorInfo> monitors;
    bool second;
    int fsLeft, secondRight;
  };
  for (const Row& row : {Row{{}, false, 0, 0}, Row{kOne, false, 19200, 0}, Row{kTwo, true, 19200, 3200},
                         Row{kLeft, true, -28800, 0}, Row{{kOne[0], kLeft[1], kTwo[1]}, true, -28800, 0}}) {
    ShowFixture fixture(Screens::One);
    fixture.sim.displays.Monitors = row.monitors;
    fixture.Start();
    EXPECT_EQ(MonitorCount(fixture.show()), static_cast<int>(row.monitors.size()));
    EXPECT_EQ(fixture.show().state.FSLeft, row.fsLeft);
    EXPECT_EQ(fixture.show().frmSS.Visible, row.second);
    EXPECT_EQ(MonitorRect(fixture.show(), 2).Right, row.secondRight);
    EXPECT_EQ(MonitorRect(fixture.show(), 4).Right, 0);
    if (!row.second) continue;
    EXPECT_EQ(fixture.audience().Left, row.fsLeft);
    EXPECT_THAT(fixture.sim.displays.TopMost, ElementsAre(Pair("frmSS", true)));
  }
}

TEST(AudienceScreen, GoesWithItsMonitorAndComesBackInStep) {
  GamePlayer player({3, 3, 4, Ending::FullBoard, "m"});
  ShowFixture& fixture = player.fixture();
  player.Play("+ 11 C");
  fixture.sim.displays.Change(kOne);
  EXPECT_FALSE(fixture.show().frmSS.Visible);
  EXPECT_EQ(fixture.form().lblStatusBar.Caption.Get(), "Audience screen lost");
  EXPECT_TRUE(fixture.form().picQuestion.Visible);
  player.Play("+ 12 C");
  fixture.sim.displays.Change(kLeft);
  EXPECT_TRUE(fixture.show().frmSS.Visible);
  EXPECT_EQ(fixture.show().frmSS.Left, -28800);
  EXPECT_EQ(fixture.audience().Left, -28800);
  EXPECT_NE(fixture.form().lblStatusBar.Caption.Get(), "Audience screen lost");
  EXPECT_THAT(UnlikePairs(fixture.show()), IsEmpty());
}

TEST(AudienceScreen, MinimisesAsOneAndCanNotBeDraggedAway) {
  ShowFixture fixture;
  fixture.Start();
  SecondScreenForm& window = fixture.show().frmSS;
  window.WindowState = 1;
  window.OnResize();
  EXPECT_EQ(fixture.audience().WindowState, 1);
  window.Left = 7;
  window.OnMove();
  EXPECT_EQ(window.Left, 7);
  window.WindowState = 0;
  window.OnResize();
  window.OnMove();
  EXPECT_EQ(fixture.audience().WindowState, 0);
  EXPECT_EQ(window.Left, 19200);
  fixture.show().state.FullScreenGameBoard = true;
  MonitorsChanged(fixture.show());
  EXPECT_EQ(fixture.audience().Left, 0);
  EXPECT_EQ(window.Left, 19200);
}

TEST(AudienceScreen, RecordsItsPlaceAtExitOnlyWhereItWasLoaded) {
  for (const Screens screens : {Screens::One, Screens::Two}) {
    ShowFixture fixture(screens);
    fixture.Start();
    fixture.sim.dialogs.ExpectMessage("Are you sure you want to exit?", BoxAnswer::Yes);
    fixture.form().mnuFileExit.Click();
    EXPECT_EQ(fixture.sim.settings.GetSetting("Pawnfield", "Settings", "SecondaryLeft", "none"),
              screens == Screens::Two ? "19200" : "none");
    EXPECT_FALSE(fixture.show().frmSS.Visible);
  }
}

struct Moment {
  const char* name;
  GameSetup setup;
  const char* script;
};

// Moments at which a projector is plugged in, one for each panel and state that the audience can see.
const Moment kMoments[] = {
    {"Board", {1, 2, 3, Ending::FullBoard, ""}, "00 11 u14"},
    {"Question", {3, 3, 5, Ending::FullBoard, ""}, "+ 00 >"},
    {"Cover", {5, 3, 4, Ending::FullBoard, ""}, "r3"},
    {"CoverLifted", {5, 2, 4, Ending::FullBoard, ""}, "r2 -"},
    {"Verdict", {4, 2, 4, Ending::FullBoard, "a"}, "+"},
    {"Bonus", {2, 2, 5, Ending::FullBoard, ""}, "04 40 13 31 22"},
    {"Winner", {2, 2, 3, Ending::FinishRow, ""}, "00 01 02"},
    {"Standby", {1, 3, 3, Ending::FinishRow, ""}, "00 H"},
};

class PluggedIn : public testing::TestWithParam<Moment> {};

TEST_P(PluggedIn, ShowsWhatItWouldHaveShownFromTheStart) {
  GameSetup setup = GetParam().setup;
  GamePlayer fromStart(setup);
  fromStart.Play(GetParam().script);
  setup.Monitors = Screens::One;
  GamePlayer later(setup);
  later.Play(GetParam().script);
  later.fixture().sim.displays.Change(kTwo);
  EXPECT_TRUE(later.fixture().show().frmSS.Visible);
  EXPECT_EQ(Appearance(later.fixture().audience()), Appearance(fromStart.fixture().audience()));
  // From here on both are written alike.
  later.Play("> >");
  EXPECT_THAT(UnlikePairs(later.fixture().show()), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Moments, PluggedIn, testing::ValuesIn(kMoments),
                         [](const auto& moment) { return std::string(moment.param.name); });

TEST(AudienceScreen, HelpToConnectAProjectorIsRoundedAndClosesByItsCross) {
  ShowFixture fixture;
  fixture.Start();
  ConnectToProjectorForm& help = fixture.show().frmConnectToProjector;
  fixture.sim.dialogs.ExpectForm("frmConnectToProjector", [&] { help.imgExit.Click(); });
  fixture.form().mnuHelpProjector.Click();
  EXPECT_FALSE(help.Visible);
  EXPECT_EQ(fixture.sim.displays.Rounded["frmConnectToProjector"], 10);
}

TEST(AudienceScreen, SleepIsHeldOffFromStartToStandbyAndExit) {
  GamePlayer player({1, 2, 3, Ending::FullBoard, ""});
  const SimDisplays& displays = player.fixture().sim.displays;
  EXPECT_FALSE(displays.Awake);
  player.Play("00");
  EXPECT_TRUE(displays.Awake);
  player.Play("H >");
  EXPECT_FALSE(displays.Awake);
  player.Play("V >");
  EXPECT_TRUE(displays.Awake);
  player.fixture().sim.dialogs.ExpectMessage("Are you sure you want to exit?", BoxAnswer::Yes);
  player.fixture().form().mnuFileExit.Click();
  EXPECT_FALSE(displays.Awake);
}

}  // namespace
}  // namespace pawnfield
