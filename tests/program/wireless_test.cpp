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
  WirelessEvening evening("Trivia C, remotes, user advances");
  evening.player.Do("remote 2, turn 2, incorrect");
  evening.sim.hid.Reports.push_back({'\0', '\0', '\3'});
  evening.Pull();
  EXPECT_EQ(evening.Status(), "Wireless transceiver lost");
  evening.player.fixture().StatusBar().Caption = "";
  // The system reports other devices too, and the show goes on by hand.
  evening.sim.devices.Notify();
  evening.player.Do("wait 3 s, turn nobody, key 3, turn 3, incorrect");
  EXPECT_EQ(evening.Status(), "") << "told once";
  evening.Plug();
  EXPECT_EQ(evening.Status(), "Wireless transceiver back");
  evening.player.Do("wait 300 ms, turn nobody, remote 1, turn 1, incorrect");
  // One that no poll has missed yet is put back at once.
  evening.sim.hid.Pull();
  evening.Plug();
  evening.sim.clock.Advance(30);
  EXPECT_EQ(evening.Status(), "Wireless transceiver back");
  evening.player.Do("wait 300 ms, remote 3, turn 3");
}

TEST(WirelessEvening, PluggedInFirstWhenTheConsoleIsUpItServesTheGame) {
  WirelessEvening evening("Trivia C, user advances");
  EXPECT_EQ(evening.player.show().state.SerialComm, InterfaceCode::Manual);
  evening.sim.devices.Notify();
  EXPECT_EQ(evening.Status(), "") << "some other device";
  evening.Plug();
  EXPECT_EQ(evening.Status(), "Wireless transceiver found");
  EXPECT_EQ(evening.player.show().state.SerialComm, InterfaceCode::Wireless);
  evening.player.Do("remote 2, turn 2, incorrect");
  evening.Pull();
  EXPECT_EQ(evening.Status(), "Wireless transceiver lost");
  // Keypads that were chosen meanwhile stay chosen.
  evening.player.show().state.SerialComm = InterfaceCode::PublishingKeypads;
  evening.Plug();
  EXPECT_EQ(evening.player.show().state.SerialComm, InterfaceCode::PublishingKeypads);
}

}  // namespace
}  // namespace pawnfield
