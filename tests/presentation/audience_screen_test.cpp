// The audience screen on its monitor: where it goes, how it comes and goes with a cable, and that it is in step.
#include "presentation/audience_screen.h"

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
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
  GamePlayer player("Trivia A, 4x4, user advances");
  ShowFixture& fixture = player.fixture();
  player.Do("correct, claim B2, continue");
  fixture.sim.displays.Change(kOne);
  EXPECT_FALSE(fixture.show().frmSS.Visible);
  player.Do("says Audience screen lost, question panel is shown, correct, claim C2, continue");
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
const WordStory kMoments[] = {
    {"Board", "Challenge A, 2 players", "claim A1, claim B2, player 1 gains 10"},
    {"Question", "Trivia A, 5x5", "correct, claim A1, wait 3 s"},
    {"Cover", "Trivia C, 4x4", "player 3 rings in"},
    {"Cover lifted", "Trivia C, 2 players, 4x4", "player 2 rings in, incorrect"},
    {"Verdict", "Trivia B, 2 players, 4x4, animated", "correct"},
    {"Bonus", "Challenge B, 2 players, 5x5", "claim E1, claim A5, claim D2, claim B4, claim C3"},
    {"Winner", "Challenge B, 2 players, Finish Row", "claim A1, claim B1, claim C1"},
    {"Standby", "Challenge A, Finish Row", "claim A1, hide"},
    {"Picture", "Trivia A, 2 players, user advances, picture second", "correct, claim A1, continue"},
};

using PluggedIn = WordStoryTest;

TEST_P(PluggedIn, ShowsWhatItWouldHaveShownFromTheStart) {
  GamePlayer fromStart(GetParam().setup), later(GetParam().setup, Screens::One);
  fromStart.Do(GetParam().steps);
  later.Do(GetParam().steps);
  later.fixture().sim.displays.Change(kTwo);
  EXPECT_TRUE(later.show().frmSS.Visible);
  EXPECT_EQ(Appearance(later.fixture().audience()), Appearance(fromStart.fixture().audience()));
  // From here on both are written alike.
  later.Do("wait 3 s, wait 3 s");
  EXPECT_EQ(UnlikePairs(later.show()), Names());
}

INSTANTIATE_TEST_SUITE_P(Moments, PluggedIn, testing::ValuesIn(kMoments), WordStoryTest::Name);

TEST(AudienceScreen, FollowsAVerdictAClaimAndAnUndoAtOnce) {
  GamePlayer player("Trivia A, 4x4");
  player.Do(
      "room question panel is shown, correct, question panel is hidden, room question panel is hidden, claim B2, "
      "scores 50/0/0, undo, scores 0/0/0");
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
    GamePlayer player("Trivia B, 2 players, 4x4, user advances, 7 questions", screens);
    player.Do("correct, claim A1, continue, correct, claim B1");
    player.fixture().sim.displays.Change(kTwo);
    player.Do(
        "room question text is 5 Questions Left!, question text font size is 69, room question text font size is 120");
  }
}

TEST(AudienceScreen, HelpToConnectAProjectorIsRoundedAndClosesByItsCross) {
  GamePlayer player("Challenge A, 2 players, not started");
  player.Do("at the projector help: press the cross");
  EXPECT_EQ(player.fixture().sim.displays.Rounded["frmConnectToProjector"], 10);
}

TEST(AudienceScreen, SleepIsHeldOffFromStartToStandbyAndExit) {
  GamePlayer player("Challenge A, 2 players, not started");
  std::string awake;
  for (const char* words : {"wait 3 s", "start, claim A1", "hide, wait 3 s", "show, wait 3 s"}) {
    player.Do(words);
    awake += player.fixture().sim.displays.Awake ? '1' : '0';
  }
  EXPECT_EQ(awake, "0101");
  player.fixture().Exit();
  EXPECT_FALSE(player.fixture().sim.displays.Awake);
}

TEST(AudienceScreen, WhereNothingHoldsTheSaverOffTheChipSaysSoWhileTheRoomSeesTheShow) {
  GamePlayer player("Challenge A, 2 players, not started");
  const Chip& chip = player.fixture().form().chpAudience;
  player.fixture().sim.displays.AwakeGrants.Saver = false;
  player.Do("wait 3 s");
  EXPECT_EQ(chip.Caption.Get(), "AUDIENCE COVERED");
  player.Do("start, claim A1, wait 3 s");
  EXPECT_EQ(chip.Caption.Get(), "SCREENS MAY SLEEP");
  EXPECT_EQ(chip.State.Get(), ChipState::Amber);
  player.fixture().sim.displays.AwakeGrants.Saver = true;
  player.Do("wait 3 s");
  EXPECT_EQ(chip.Caption.Get(), "AUDIENCE 1920x1080");
}

}  // namespace
}  // namespace pawnfield
