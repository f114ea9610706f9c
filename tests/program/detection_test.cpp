// What is attached at the start: the order of the search, the text rules, the interface's wizard and file.
#include "program/detection.h"

#include "devices/transceiver.h"
#include "forms/press_forms.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

constexpr const char* kInterfaceFile = "C:\\Ostara Show Kit Data\\Interface.txt";

TEST(Detection, ATransceiverIsKnownByItsInstancePath) {
  for (const char* path : {"USB\\VID_04FE&PID_1003\\5&2A", "USB\\VID_04FE&PID_1003", "usb\\vid_04fe&pid_1001&MI_00",
                           "USB\\VID_0003&PID_1001\\1"}) {
    EXPECT_TRUE(IsTransceiver(path)) << path;
  }
  for (const char* path : {"USB\\VID_04FE", "USB\\VID_04FE&REV_1", "PID_1003&VID_04FE&x", "", "USB\\VID_04FE&PID_10030",
                           "USB\\VID_0004&PID_1003\\5"}) {
    EXPECT_FALSE(IsTransceiver(path)) << path;
  }
}

TEST(Detection, EachKindOfHardwareAtTheStart) {
  // A device under the other vendor's number is found, and not opened.
  const std::tuple<HidDevice, InterfaceCode, bool> cases[] = {{{3, 0x1003}, InterfaceCode::Wireless, true},
                                                              {{0x04FE, 0x1001}, InterfaceCode::Wireless, false},
                                                              {{3, 0x1002}, InterfaceCode::Manual, false}};
  for (const auto& [device, serialComm, opened] : cases) {
    ShowFixture fixture;
    fixture.sim.hid.Devices = {{device, {33, 33}}};
    if (serialComm == InterfaceCode::Manual) fixture.sim.dialogs.ExpectMessage("No hardware was detected");
    fixture.Start();
    EXPECT_EQ(fixture.show().state.SerialComm, serialComm);
    EXPECT_EQ(fixture.show().dgTransceiver->Ready(), opened);
    EXPECT_EQ(fixture.StatusBar().Caption == "System Initialized", serialComm == InterfaceCode::Wireless);
  }
  ShowFixture pads;
  pads.sim.hid.PlugTransceiver();
  pads.sim.serial.Plug();
  pads.sim.serial.FailNextOpen = kErrorInvalidPort;
  pads.sim.dialogs.ExpectMessage("Error Number: 8002");
  pads.Start();
  EXPECT_EQ(pads.StatusBar().Caption, "ZR-610 System initialized") << "looked for first, and told";
  EXPECT_EQ(pads.show().state.SerialComm, InterfaceCode::OutOfRange) << "left as it was";
  EXPECT_TRUE(IsFormVisible(pads.show(), "frmMain"));
}

TEST(InterfaceFile, IsReadFieldByFieldAndWrittenAtTheExit) {
  const std::pair<const char*, const char*> files[] = {{"7", "7^0^0^0^0^0"},
                                                       {"20^1^2^3^4^1", "4^1^2^3^4^1"},
                                                       {"", "4^0^0^0^0^0"},
                                                       {"x^16^-1^15^0^2", "4^0^0^15^0^0"},
                                                       {"1^2^3\r\n4^5", "1^2^3^0^0^0"},
                                                       {"0^^ 5 ^1e1^2.5^1.0", "0^0^5^10^2^1"},
                                                       {"1^2^3^4^5^1^9", "1^2^3^4^5^1"}};
  for (const auto& [bytes, line] : files) {
    ShowFixture fixture;
    fixture.sim.files.Put(kInterfaceFile, bytes);
    fixture.Start();
    fixture.Exit();
    EXPECT_EQ(fixture.sim.files.Read(kInterfaceFile), std::string(line) + "\r\n") << bytes;
  }
}

TEST(InterfaceWizard, WhatIsChosenInAGameWorksAtOnceAndIsKept) {
  GamePlayer player("Trivia C");
  Show& show = player.show();
  const auto stored = [&](const char* application, const char* key) {
    return player.fixture().sim.settings.GetSetting(application, "Settings", key, "");
  };
  player.Do("at the interface wizard: press Cancel");
  EXPECT_FALSE(player.fixture().sim.processes.Ended);
  EXPECT_EQ(show.state.SerialComm, InterfaceCode::Manual) << "as it was";
  show.state.Routing[4] = 2;
  player.Do("at the interface wizard: press OK, wait 100 ms");
  EXPECT_EQ(stored("Pawnfield", "SerialComm") + stored("PadBridge", "sendkeypress"), "91") << "a question waits";
  player.Do("key 4, turn 2, wait 100 ms");
  EXPECT_EQ(stored("PadBridge", "11"), "PLAYER 2");
  // The option that is chosen, and the interface that it gives.
  const std::pair<const char*, int> choices[] = {{"0", 0}, {"2", 2}, {"6", 6}, {"7", 8}, {"8", 9}, {"6", 6}};
  for (const auto& [option, serialComm] : choices) {
    player.Do(std::string("at the interface wizard: press optInterfaceType(") + option + "); press OK, wait 100 ms");
    EXPECT_EQ(static_cast<int>(show.state.SerialComm), serialComm) << option;
    EXPECT_EQ(stored("Pawnfield", "SerialComm"), std::to_string(serialComm));
  }
  player.Do("incorrect, key 3, turn 3");
  for (const std::size_t nothing : {1U, 3U, 4U, 5U}) {
    EXPECT_FALSE(show.frmSetInterface.optInterfaceType[nothing].Enabled) << nothing << " stands for no interface";
  }
}

}  // namespace
}  // namespace pawnfield
