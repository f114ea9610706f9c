// Presses of the wireless remotes: the gates they pass, the debounce and the routing.
#include "controllers/ring_in.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "../support/show_fixture.h"

namespace pawnfield {
namespace {

class RingIn : public ::testing::Test {
 protected:
  void StartGame(int gameType = kTriviaModeC) {
    fixture.WriteNumberedSet("Presses", 20);
    fixture.Start();
    fixture.sim.hid.PlugTransceiver();
    CreateTransceiver(fixture.show());
    fixture.form().optGameType[static_cast<std::size_t>(gameType - 1)].Click();
    fixture.ChooseSet("Presses");
    fixture.form().btnStart.Click();
  }

  // A press as the device reports it, and time for the next poll.
  void Press(int remote) {
    constexpr int kAnswerA = 4;
    const int wire = remote % 10 == 0 ? remote - 10 : remote;
    fixture.sim.hid.Reports.push_back(BuildPacket({static_cast<char>(wire), kAnswerA, '\0', '\0'}, 0));
    fixture.sim.clock.Advance(30);
  }

  int Holder() { return fixture.show().state.CurrentPlayer; }
  std::size_t Lights() { return fixture.sim.hid.Writes.size(); }

  ShowFixture fixture;
};

TEST_F(RingIn, TheFirstPressWinsIsLitAndHeardTwice) {
  StartGame();
  fixture.sim.media.Log.clear();
  Press(2);
  EXPECT_EQ(Holder(), 2);
  EXPECT_EQ(fixture.audience().picPlayer[1].Picture, "C:\\Pawnfield\\images\\scoreboxred.bmp");
  EXPECT_EQ(fixture.audience().lblPlayerName.Caption, "PLAYER 2");
  EXPECT_EQ(std::count(fixture.sim.media.Log.begin(), fixture.sim.media.Log.end(),
                       "EventPlayer url C:\\Pawnfield\\Sound Effects\\RingsIn.mp3"),
            2);
  ASSERT_EQ(Lights(), 1u);
  EXPECT_EQ(fixture.sim.hid.Writes[0].Report[4], 2);
  for (const auto& button : {0u, 1u, 2u}) EXPECT_FALSE(fixture.form().btnBuzzer[button].Enabled);
  Press(1);
  EXPECT_EQ(Holder(), 2) << "shut out";
  fixture.form().btnQuestionIncorrect.Click();
  Press(3);
  EXPECT_EQ(Holder(), 3) << "open again after an incorrect answer";
}

TEST_F(RingIn, APressWithin200MillisecondsOfTheLastIsDropped) {
  for (const int gap : {200, 201}) {
    SCOPED_TRACE(gap);
    ShowFixture shown;
    shown.WriteNumberedSet("Presses", 20);
    shown.Start();
    shown.ChooseSet("Presses");
    shown.form().btnStart.Click();
    TransceiverData press;
    press.Remote = 1;
    dgTransceiver_OnButtonPressed(shown.show(), press);
    EXPECT_EQ(shown.show().state.CurrentPlayer, 1);
    shown.form().btnQuestionIncorrect.Click();
    shown.sim.clock.Advance(gap);
    dgTransceiver_OnButtonPressed(shown.show(), press);
    EXPECT_EQ(shown.show().state.CurrentPlayer, gap > 200 ? 1 : 0);
  }
}

TEST_F(RingIn, ADialogAStandbyAndAHiddenConsoleDropThePressButKeepItsTime) {
  StartGame();
  fixture.sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::No, [&] { Press(1); });
  fixture.form().mnuFileExit.Click();
  EXPECT_EQ(Holder(), 0);
  Press(1);
  EXPECT_EQ(Holder(), 0) << "too soon after the press at the dialog";
  fixture.form().btnStandbyMode.Click();
  Press(2);
  EXPECT_EQ(Holder(), 0);
  fixture.form().btnPlayMode.Click();
  fixture.form().Enabled = false;
  Press(3);
  EXPECT_EQ(Holder(), 0);
  fixture.form().Enabled = true;
  fixture.sim.clock.Advance(200);
  Press(3);
  EXPECT_EQ(Holder(), 3);
}

TEST_F(RingIn, AnUnroutedRemoteDoesNothingAndATurnsHolderKeepsTheQuestion) {
  StartGame();
  Press(4);
  Press(21);
  EXPECT_EQ(Holder(), 0);
  EXPECT_EQ(Lights(), 0u);
  fixture.show().state.Routing[4] = 1;
  fixture.sim.clock.Advance(200);
  Press(4);
  EXPECT_EQ(Holder(), 1);
  EXPECT_EQ(fixture.sim.hid.Writes.at(0).Report[4], 4) << "the remote's own light";
}

TEST_F(RingIn, InATurnGameTheRemotesAreShutOut) {
  StartGame(kTriviaModeA);
  Press(2);
  EXPECT_EQ(Holder(), 1);
  EXPECT_EQ(Lights(), 0u);
}

TEST_F(RingIn, RemotesBeyondTheTablesAreToldOnceEachAndTheShowGoesOn) {
  StartGame();
  fixture.sim.dialogs.ExpectMessage("Description: Subscript out of range (remote 51)", BoxAnswer::Ok, [&] {
    Press(1);
    EXPECT_EQ(Holder(), 0) << "polled and dropped while the box is up";
  });
  Press(51);
  fixture.sim.dialogs.ExpectMessage("(remote 22)");
  Press(22);
  fixture.sim.clock.Advance(1000);
  Press(51);
  Press(22);
  Press(1);
  EXPECT_EQ(Holder(), 1);
  fixture.sim.clock.Advance(1000);
  Press(23);
  EXPECT_EQ(Holder(), 1) << "a remote past the routing that finds the question held is no fault";
}

}  // namespace
}  // namespace pawnfield
