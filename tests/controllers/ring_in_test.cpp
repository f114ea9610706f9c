// Presses of the wireless remotes: the gates they pass, the debounce and the routing.
#include "controllers/ring_in.h"

#include <algorithm>

#include "../support/show_fixture.h"

namespace pawnfield {
namespace {

class RingIn : public ShowFixture, public testing::Test {
 protected:
  void StartGame() {
    WriteNumberedSet("Presses", 20);
    Start();
    sim.hid.PlugTransceiver();
    CreateTransceiver(show());
    ChooseSet("Presses");
    form().btnStart.Click();
  }
  // A press as the device reports it, and time for the next poll; gives the player who holds the question then.
  int Press(int remote) {
    constexpr int kAnswerA = 4;
    const int wire = remote % 10 == 0 ? remote - 10 : remote;
    sim.hid.Reports.push_back(BuildPacket({static_cast<char>(wire), kAnswerA, '\0', '\0'}, 0));
    sim.clock.Advance(30);
    return show().state.CurrentPlayer;
  }
};

TEST_F(RingIn, TheFirstPressWinsIsLitAndHeardTwiceByItsRouting) {
  StartGame();
  sim.media.Log.clear();
  EXPECT_EQ(Press(2), 2);
  EXPECT_EQ(audience().picPlayer[1].Picture, "C:\\Pawnfield\\images\\scoreboxred.bmp");
  EXPECT_EQ(audience().lblPlayerName.Caption, "PLAYER 2");
  const MediaLog& log = sim.media.Log;
  EXPECT_EQ(std::count(log.begin(), log.end(), "EventPlayer url C:\\Pawnfield\\Sound Effects\\RingsIn.mp3"), 2);
  ASSERT_EQ(sim.hid.Writes.size(), 1U);
  EXPECT_EQ(sim.hid.Writes[0].Report[4], 2);
  for (const std::size_t button : {0U, 1U, 2U}) EXPECT_FALSE(form().btnBuzzer[button].Enabled);
  EXPECT_EQ(Press(1), 2) << "shut out";
  form().btnQuestionIncorrect.Click();
  EXPECT_EQ(Press(3), 3) << "open again after an incorrect answer";
  form().btnQuestionIncorrect.Click();
  EXPECT_EQ(Press(4) + Press(21), 0) << "without a routing";
  EXPECT_EQ(sim.hid.Writes.size(), 2U);
  show().state.Routing[4] = 1;
  sim.clock.Advance(200);
  EXPECT_EQ(Press(4), 1);
  EXPECT_EQ(sim.hid.Writes.back().Report[4], 4) << "the remote's own light";
}

TEST_F(RingIn, APressWithin200MillisecondsOfTheLastIsDropped) {
  StartGame();
  // Without a device, no light takes its time between the presses.
  show().dgTransceiver.reset();
  TransceiverData press;
  press.Remote = 1;
  for (const auto& [gap, holder] : {std::pair{1000, 1}, {200, 0}, {1, 1}, {201, 1}}) {
    sim.clock.Advance(gap);
    dgTransceiver_OnButtonPressed(show(), press);
    EXPECT_EQ(show().state.CurrentPlayer, holder) << gap;
    if (holder != 0) form().btnQuestionIncorrect.Click();
  }
}

TEST_F(RingIn, ADialogAStandbyAndAHiddenConsoleDropThePressButKeepItsTime) {
  StartGame();
  sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::No, [&] { Press(1); });
  form().mnuFileExit.Click();
  EXPECT_EQ(Press(1), 0) << "too soon after the press at the dialog";
  form().btnStandbyMode.Click();
  EXPECT_EQ(Press(2), 0);
  form().btnPlayMode.Click();
  form().Enabled = false;
  EXPECT_EQ(Press(3), 0);
  form().Enabled = true;
  sim.clock.Advance(200);
  EXPECT_EQ(Press(3), 3);
}

TEST_F(RingIn, RemotesBeyondTheTablesAreToldOnceEachAndTheShowGoesOn) {
  StartGame();
  sim.dialogs.ExpectMessage("Description: Subscript out of range (remote 51)", BoxAnswer::Ok,
                            [&] { EXPECT_EQ(Press(1), 0) << "polled and dropped while the box is up"; });
  Press(51);
  sim.dialogs.ExpectMessage("(remote 22)");
  Press(22);
  sim.clock.Advance(1000);
  for (const int remote : {51, 22, 1}) Press(remote);
  sim.clock.Advance(1000);
  EXPECT_EQ(Press(23), 1) << "a remote past the routing that finds the question held is no fault";
}

}  // namespace
}  // namespace pawnfield
