// The transceiver in an evening: pulled and put back amid a game, and plugged in first when the console is up.
#include "program/wireless.h"

#include "devices/transceiver.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

class WirelessEvening {
 public:
  explicit WirelessEvening(const char* setup) : player(setup) {}
  void Pull() {
    sim.hid.Pull();
    sim.devices.Notify();
    sim.clock.Advance(60);
  }
  void Plug() {
    sim.hid.PlugTransceiver(kTransceiverShort);
    sim.devices.Notify();
  }
  std::string Status() { return player.fixture().StatusBar().Caption; }

  GamePlayer player;
  SimPlatform& sim = player.fixture().sim;
};

TEST(WirelessEvening, PulledAmidAQuestionItIsMissedOnceAndBackByItself) {
  WirelessEvening evening("5 3 3 full wm");
  evening.player.Play("2 >30 turn=2 -");
  evening.sim.hid.Reports.push_back({'\0', '\0', '\3'});
  evening.Pull();
  EXPECT_EQ(evening.Status(), "Wireless transceiver lost");
  evening.player.fixture().StatusBar().Caption = "";
  // The system reports other devices too, and the show goes on by hand.
  evening.sim.devices.Notify();
  evening.player.Play(">3000 turn=0 keys:3 turn=3 -");
  EXPECT_EQ(evening.Status(), "") << "told once";
  evening.Plug();
  EXPECT_EQ(evening.Status(), "Wireless transceiver back");
  evening.player.Play(">300 turn=0 1 >30 turn=1 -");
  // One that no poll has missed yet is put back at once.
  evening.sim.hid.Pull();
  evening.Plug();
  evening.sim.clock.Advance(30);
  EXPECT_EQ(evening.Status(), "Wireless transceiver back");
  evening.player.Play(">300 3 >30 turn=3");
}

TEST(WirelessEvening, PluggedInFirstWhenTheConsoleIsUpItServesTheGame) {
  WirelessEvening evening("5 3 3 full m");
  EXPECT_EQ(evening.player.show().state.SerialComm, InterfaceCode::Manual);
  evening.sim.devices.Notify();
  EXPECT_EQ(evening.Status(), "") << "some other device";
  evening.Plug();
  EXPECT_EQ(evening.Status(), "Wireless transceiver found");
  EXPECT_EQ(evening.player.show().state.SerialComm, InterfaceCode::Wireless);
  evening.player.Play("2 >30 turn=2 -");
  evening.Pull();
  EXPECT_EQ(evening.Status(), "Wireless transceiver lost");
  // Keypads that were chosen meanwhile stay chosen.
  evening.player.show().state.SerialComm = InterfaceCode::PublishingKeypads;
  evening.Plug();
  EXPECT_EQ(evening.player.show().state.SerialComm, InterfaceCode::PublishingKeypads);
}

}  // namespace
}  // namespace pawnfield
