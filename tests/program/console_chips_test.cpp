// What the chips of the menu bar say of the machine, and what a click on one opens.
#include "program/console_chips.h"

#include "forms/main_form.h"
#include "forms/second_screen_form.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

const MonitorInfo kOperators{0, 0, 1280, 800};
const MonitorInfo kRooms{1280, 0, 3200, 1080};

class Chips : public ShowFixture, public testing::Test {
 protected:
  void BeginGame() {
    form().optGameType[0].Click();
    form().btnStart.Click();
    ASSERT_TRUE(show().state.GameStarted);
  }
  void Expect(const Chip& chip, const std::string& caption, ChipState light) {
    ShowChips(show());
    EXPECT_EQ(chip.Caption.Get(), caption);
    EXPECT_EQ(chip.State.Get(), light) << caption;
    EXPECT_FALSE(chip.ToolTipText->empty()) << caption;
  }
};

TEST_F(Chips, TellOfTheRoomsScreenWhileItComesIsCoveredAndGoes) {
  Start();
  sim.displays.Change({kOperators});
  show().state.DualScreen = false;
  Expect(form().chpAudience, "NO AUDIENCE SCREEN", ChipState::Amber);
  sim.displays.Change({kOperators, kRooms});
  Expect(form().chpAudience, "AUDIENCE COVERED", ChipState::None);
  form().btnPlayMode.Click();
  Expect(form().chpAudience, "AUDIENCE 1920x1080", ChipState::Good);
  form().btnStandbyMode.Click();
  Expect(form().chpAudience, "AUDIENCE COVERED", ChipState::None);
  sim.displays.Change({kOperators});
  Expect(form().chpAudience, "AUDIENCE LOST", ChipState::Red);
}

TEST_F(Chips, TellThatTheSoundIsMutedIsLostAndIsBack) {
  Start();
  Expect(form().chpSound, "SOUND", ChipState::Good);
  form().btnMute.Click();
  Expect(form().chpSound, "MUSIC MUTED", ChipState::Good);
  form().btnMute.Click();
  sim.media.KeyPressPlayer.FallSilent(true);
  Expect(form().chpSound, "SOUND LOST", ChipState::Red);
  sim.media.KeyPressPlayer.FallSilent(false);
  Expect(form().chpSound, "SOUND", ChipState::Good);
}

TEST_F(Chips, TellThatThereNeverWasASoundDevice) {
  sim.media.BackgroundPlayer.FallSilent(true);
  Start();
  Expect(form().chpSound, "NO SOUND DEVICE", ChipState::Amber);
  EXPECT_FALSE(form().fraCues.Visible);
  BeginGame();
  form().chpSound.Click();
  EXPECT_FALSE(form().fraCues.Visible) << "there is nothing to set";
  sim.media.BackgroundPlayer.FallSilent(false);
  form().chpSound.Click();
  EXPECT_TRUE(form().fraCues.Visible) << "the volumes and the letters";
}

TEST_F(Chips, TellOfRemotesThatArePluggedOutAndIn) {
  sim.hid.PlugTransceiver();
  Start();
  Expect(form().chpBuzzers, "BUZZERS WIRELESS", ChipState::Good);
  show().presses.TransceiverLost = true;
  Expect(form().chpBuzzers, "BUZZERS LOST", ChipState::Red);
  show().presses.TransceiverLost = false;
  Expect(form().chpBuzzers, "BUZZERS WIRELESS", ChipState::Good);
}

TEST_F(Chips, TellHowManyPadsAreKnown) {
  sim.serial.Plug();
  Start();
  show().presses.MFMap = {};
  Expect(form().chpBuzzers, "BUZZERS 0 of 3", ChipState::Amber);
  show().presses.MFMap[0] = 101;
  show().presses.MFMap[1] = 102;
  Expect(form().chpBuzzers, "BUZZERS 2 of 3", ChipState::Amber);
  form().optPlayers[0].Click();
  Expect(form().chpBuzzers, "BUZZERS 2 of 2", ChipState::Good);
}

TEST_F(Chips, OpenInAGameWhatMendsWhatTheyTell) {
  Start();
  BeginGame();
  std::string opened;
  form().mnuHelpProjector.OnClick = [&] { opened += "projector "; };
  form().mnuFileInterface.OnClick = [&] { opened += "interface "; };
  form().mnuMapMF.OnClick = [&] { opened += "map "; };
  form().mnuHelpManual.OnClick = [&] { opened += "manual "; };
  form().chpAudience.Click();
  form().chpBuzzers.Click();
  form().chpRecord.Visible = true;
  form().chpRecord.Click();
  show().presses.ZR610Present = true;
  form().mnuMapMF.Enabled = form().mnuMapMF.Visible = true;
  form().chpBuzzers.Click();
  EXPECT_EQ(opened, "projector interface manual map ");
}

}  // namespace
}  // namespace pawnfield
