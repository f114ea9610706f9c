// What is attached at the start: the order of the search, the text rules, the interface dialog and its file.
#include "controllers/detection.h"

#include <gtest/gtest.h>

#include <map>

#include "../support/show_fixture.h"

namespace pawnfield {
namespace {

constexpr const char* kInterfaceFile = "C:\\Ostara Show Kit Data\\Interface.txt";

TEST(Detection, InstancePaths) {
  struct Case {
    const char* path;
    bool first, later;
  };
  const Case cases[] = {
      {"USB\\VID_04FE&PID_1003\\5&2A", true, true},
      {"USB\\VID_04FE&PID_1003", true, true},
      {"usb\\vid_04fe&pid_1001&MI_00", true, true},
      {"USB\\VID_0003&PID_1001\\1", true, false},
      {"USB\\VID_04FE", false, false},
      {"USB\\VID_04FE&REV_1", false, false},
      {"PID_1003&VID_04FE&x", false, false},
      {"USB\\VID_04FE&PID_10030", false, false},
      {"USB\\VID_0004&PID_1003\\5", false, false},
      {"", false, false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(IsTransceiver(c.path, ControlSet::First), c.first) << c.path;
    EXPECT_EQ(IsTransceiver(c.path, ControlSet::Later), c.later) << c.path;
  }
}

TEST(Detection, TheWalkThroughTheControlSets) {
  struct Case {
    const char* set;
    const char* name;
    const char* value;
    bool found;
  };
  const Case cases[] = {{"001\\Services\\HidUSB", "10", "x\\VID_0003&PID_1003", true},
                        {"001\\Services\\HidUSB", "11", "x\\VID_0003&PID_1003", false},
                        {"002\\Services\\HidUsb", "0", "x\\VID_0003&PID_1001", false},
                        {"003\\Services\\HidUsb", "3", "x\\VID_04FE&PID_1001", true}};
  for (const Case& c : cases) {
    const std::string key = std::string("System\\ControlSet") + c.set + "\\Enum";
    const bool found = FindTransceiverInRegistry([&](const std::string& asked, const std::string& name) {
      return asked == key && name == c.name ? std::optional<std::string>(c.value) : std::nullopt;
    });
    EXPECT_EQ(found, c.found) << key << " " << c.name;
  }
}

TEST(Detection, EachKindOfHardwareAtTheStart) {
  struct Case {
    HidDevice device;
    int serialComm;
    bool opened;
  };
  // A device under the other vendor's number is found, and not opened.
  for (const Case& c : {Case{{3, 0x1003}, 10, true}, Case{{0x04FE, 0x1001}, 10, false}, Case{{3, 0x1002}, 6, false}}) {
    ShowFixture fixture;
    fixture.sim.hid.Devices = {{c.device, {33, 33}}};
    if (c.serialComm == 6) fixture.sim.dialogs.ExpectMessage("No hardware was detected");
    fixture.Start();
    EXPECT_EQ(fixture.show().state.SerialComm, c.serialComm);
    EXPECT_EQ(fixture.show().presses.HardwareFound, c.serialComm == 10);
    EXPECT_EQ(fixture.show().dgTransceiver->Ready(), c.opened);
    EXPECT_EQ(fixture.form().lblStatusBar.Caption == "System Initialized", c.serialComm == 10);
    EXPECT_TRUE(fixture.form().Visible);
    EXPECT_TRUE(fixture.audience().Visible);
  }
}

TEST(Detection, ThePadsAreLookedForFirstAndAPortThatWontOpenIsTold) {
  ShowFixture fixture;
  fixture.sim.hid.PlugTransceiver();
  fixture.sim.serial.Plug();
  fixture.sim.serial.FailNextOpen = kErrorInvalidPort;
  fixture.sim.dialogs.ExpectMessage("Error Number: 8002");
  fixture.Start();
  EXPECT_EQ(fixture.form().lblStatusBar.Caption, "ZR-610 System initialized");
  EXPECT_EQ(fixture.show().state.SerialComm, 99) << "left as it was";
  EXPECT_TRUE(fixture.form().Visible);
}

TEST(InterfaceFile, FieldsAndTheirDefaults) {
  struct Case {
    const char* bytes;
    const char* line;
  };
  const Case cases[] = {{"7", "7^0^0^0^0^0"},
                        {"20^1^2^3^4^1", "4^1^2^3^4^1"},
                        {"", "4^0^0^0^0^0"},
                        {"x^16^-1^15^0^2", "4^0^0^15^0^0"},
                        {"1^2^3\r\n4^5", "1^2^3^0^0^0"},
                        {"0^^ 5 ^1e1^2.5^1.0", "0^0^5^10^2^1"},
                        {"1^2^3^4^5^1^9", "1^2^3^4^5^1"}};
  for (const Case& c : cases) {
    EXPECT_EQ(FormatInterface(ParseInterface(c.bytes)), std::string(c.line) + "\r\n") << c.bytes;
  }
}

TEST(InterfaceFile, IsReadAtTheStartAndWrittenAtTheExit) {
  ShowFixture fixture;
  fixture.sim.files.Put(kInterfaceFile, "3^1^2^3^4^1");
  fixture.Start();
  EXPECT_TRUE(fixture.show().state.ZR650);
  fixture.show().state.ZR650 = false;
  fixture.sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::Yes);
  fixture.form().mnuFileExit.Click();
  EXPECT_EQ(fixture.sim.files.Read(kInterfaceFile), "3^1^2^3^4^0\r\n");
}

TEST(InterfaceDialog, AlwaysResultsInTheSharedKeypadMode) {
  for (const char* stored : {"0", "4", "5", "99"}) {
    ShowFixture fixture;
    fixture.Start();
    fixture.sim.settings.Preset("Pawnfield", "Settings", "SerialComm", stored);
    fixture.show().state.ZR650 = true;
    fixture.show().frmSetInterface.Visible = true;
    frmSetInterface_Load(fixture.show());
    EXPECT_EQ(fixture.show().state.SerialComm, 9);
    EXPECT_FALSE(fixture.show().state.ZR650);
    EXPECT_FALSE(fixture.show().frmSetInterface.Visible);
    EXPECT_EQ(fixture.sim.settings.GetSetting("Pawnfield", "Settings", "SerialComm", ""), "9");
    fixture.show().frmSetInterface.Visible = true;
    fixture.show().frmSetInterface.btnCancel.Click();
    EXPECT_TRUE(fixture.sim.processes.Ended);
  }
}

}  // namespace
}  // namespace pawnfield
