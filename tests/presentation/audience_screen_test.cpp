// The audience screen on its monitor: where it goes, how it comes and goes with a cable, and that it is in step.
#include "presentation/audience_screen.h"

#include "forms/fs_main_form.h"
#include "forms/second_screen_form.h"
#include "presentation/monitors.h"
#include "program/program.h"
#include "support/game_player.h"
#include "support/screen_pairs.h"

namespace pawnfield {
namespace {

using Names = std::vector<std::string>;

const std::vector<MonitorInfo> kOne{{0, 0, 1280, 800}};
const std::vector<MonitorInfo> kTwo{{0, 0, 1280, 800}, {1280, 0, 3200, 1080}};
const std::vector<MonitorInfo> kLeft{{0, 0, 1280, 800}, {-1920, 0, 0, 1080}};

TEST(Monitors, AreCountedFromOneAndTheAudienceStandsOnTheSecond) {
  struct Row {
    std::vector<MonitorInfo> monitors;
    int fsLeft, secondRight;
    const char* leftAtExit;
  };
  for (const Row& row : {Row{{}, 0, 0, "none"}, Row{kOne, 19200, 0, "none"}, Row{kTwo, 19200, 3200, "19200"},
                         Row{kLeft, -28800, 0, "-28800"}, Row{{kOne[0], kLeft[1], kTwo[1]}, -28800, 0, "-28800"}}) {
    ShowFixture fixture(Screens::One);
    fixture.sim.displays.Monitors = row.monitors;
    fixture.Start();
    const bool second = row.monitors.size() > 1;
    EXPECT_EQ(fixture.show().state.FSLeft, row.fsLeft);
    EXPECT_EQ(fixture.show().frmSS.Visible, second);
    EXPECT_EQ(MonitorRect(fixture.show(), 2).Right, row.secondRight);
    EXPECT_EQ(MonitorRect(fixture.show(), 4).Right, 0);
    EXPECT_EQ(fixture.audience().Left, second ? row.fsLeft : 0);
    EXPECT_EQ(fixture.sim.displays.TopMost.size(), second ? 1u : 0u);
    fixture.Exit();
    EXPECT_FALSE(fixture.show().frmSS.Visible);
    EXPECT_EQ(fixture.sim.settings.GetSetting("Pawnfield", "Settings", "SecondaryLeft", "none"), row.leftAtExit);
  }
}

TEST(AudienceScreen, GoesWithItsMonitorAndComesBackInStep) {
  GamePlayer player("3 3 4 full m");
  ShowFixture& fixture = player.fixture();
  player.Play("+ 11 C");
  fixture.sim.displays.Change(kOne);
  EXPECT_FALSE(fixture.show().frmSS.Visible);
  player.Play("lblStatusBar=Audience_screen_lost picQuestion=up + 12 C");
  fixture.sim.displays.Change(kLeft);
  EXPECT_TRUE(fixture.show().frmSS.Visible);
  EXPECT_EQ(fixture.show().frmSS.Left, -28800);
  EXPECT_EQ(fixture.audience().Left, -28800);
  EXPECT_NE(fixture.StatusBar().Caption.Get(), "Audience screen lost");
  EXPECT_EQ(UnlikePairs(fixture.show()), Names());
}

TEST(AudienceScreen, MinimisesAsOneAndCanNotBeDraggedAway) {
  ShowFixture fixture;
  fixture.Start();
  SecondScreenForm& window = fixture.show().frmSS;
  // A minimised window keeps the place that it is given, one as placed goes back to its monitor.
  for (const auto& [windowState, left] : {std::pair{1, 7}, {0, 19200}}) {
    window.WindowState = windowState;
    window.OnResize();
    EXPECT_EQ(fixture.audience().WindowState, windowState);
    window.Left = 7;
    window.OnMove();
    EXPECT_EQ(window.Left, left);
  }
  fixture.show().state.FullScreenGameBoard = true;
  MonitorsChanged(fixture.show());
  EXPECT_EQ(fixture.audience().Left, 0);
  EXPECT_EQ(window.Left, 19200);
}

// Moments at which a projector is plugged in, one for each panel and state that the audience can see.
const Story kMoments[] = {
    {"Board", "1 2 3 full", "00 11 u14"},   {"Question", "3 3 5 full", "+ 00 >"},
    {"Cover", "5 3 4 full", "r3"},          {"CoverLifted", "5 2 4 full", "r2 -"},
    {"Verdict", "4 2 4 full a", "+"},       {"Bonus", "2 2 5 full", "04 40 13 31 22"},
    {"Winner", "2 2 3 row", "00 01 02"},    {"Standby", "1 3 3 row", "00 H"},
    {"Picture", "3 2 3 full mk", "+ 00 C"},
};

using PluggedIn = StoryTest;

TEST_P(PluggedIn, ShowsWhatItWouldHaveShownFromTheStart) {
  GamePlayer fromStart(GetParam().setup), later(GetParam().setup, Screens::One);
  fromStart.Play(GetParam().script);
  later.Play(GetParam().script);
  later.fixture().sim.displays.Change(kTwo);
  EXPECT_TRUE(later.show().frmSS.Visible);
  EXPECT_EQ(Appearance(later.fixture().audience()), Appearance(fromStart.fixture().audience()));
  // From here on both are written alike.
  later.Play("> >");
  EXPECT_EQ(UnlikePairs(later.show()), Names());
}

INSTANTIATE_TEST_SUITE_P(Moments, PluggedIn, testing::ValuesIn(kMoments), StoryTest::Name);

TEST(AudienceScreen, FollowsAVerdictAClaimAndAnUndoAtOnce) {
  GamePlayer player("3 3 4 full");
  player.Play("picQuestion'=up + picQuestion=- picQuestion'=- 11 scores=50/0/0 U scores=0/0/0");
  EXPECT_EQ(player.fixture().audience().Label11[0].Caption.Get(), "0");
}

TEST(AudienceScreen, OfAProjectorThatComesWhileTheConsoleLoadsHasEverything) {
  ShowFixture fixture(Screens::One);
  fixture.sim.dialogs.ExpectMessage("No hardware was detected", BoxAnswer::Ok,
                                    [&] { fixture.sim.displays.Change(kTwo); });
  Main(fixture.show());
  fixture.sim.clock.Advance(10000);
  EXPECT_TRUE(fixture.show().state.DualScreen);
  EXPECT_EQ(UnlikePairs(fixture.show()), Names());
}

TEST(AudienceScreen, HasTheNoticeInItsOwnFitWheneverItComes) {
  for (const Screens screens : {Screens::One, Screens::Two}) {
    GamePlayer player("4 2 4 full m7", screens);
    player.Play("+ 00 C + 01");
    player.fixture().sim.displays.Change(kTwo);
    player.Play("lblQuestion(0)'=5_Questions_Left! lblQuestion(0).Font=69 lblQuestion(0).Font'=120");
  }
}

TEST(AudienceScreen, HelpToConnectAProjectorIsRoundedAndClosesByItsCross) {
  GamePlayer player("1 2 3 full i");
  player.Play("mnuHelpProjector@frmConnectToProjector { imgExit }");
  EXPECT_EQ(player.fixture().sim.displays.Rounded["frmConnectToProjector"], 10);
}

TEST(AudienceScreen, SleepIsHeldOffFromStartToStandbyAndExit) {
  GamePlayer player("1 2 3 full i");
  std::string awake;
  for (const char* script : {">", "btnStart 00", "H >", "V >"}) {
    player.Play(script);
    awake += player.fixture().sim.displays.Awake ? '1' : '0';
  }
  EXPECT_EQ(awake, "0101");
  player.fixture().Exit();
  EXPECT_FALSE(player.fixture().sim.displays.Awake);
}

}  // namespace
}  // namespace pawnfield
