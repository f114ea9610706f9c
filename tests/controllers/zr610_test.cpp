// The wired pads: their frames, their table and its dialog, the port and its loss.
#include "controllers/zr610.h"

#include <gmock/gmock.h>

#include "forms/main_form.h"
#include "forms/press_forms.h"
#include "record/ring_in_order.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;
using Strings = std::vector<std::string>;

constexpr const char* kMapFile = "C:\\Ostara Show Kit Data\\MFMap.dat";

std::string Frame(const std::string& body) {
  return "MF"s + static_cast<char>(body.size() >> 8) + static_cast<char>(body.size()) + body;
}
std::string Pad(int id) {
  return Frame("\xFD"s + static_cast<char>(id >> 16) + static_cast<char>(id >> 8) + static_cast<char>(id));
}

TEST(FrameSplitter, CutsFramesOutOfAnyReadsAndStaysSmall) {
  const std::tuple<const char*, Strings, Strings> cases[] = {
      {"two in one read", {Pad(1) + Pad(2)}, {Pad(1), Pad(2)}},
      {"cut after three bytes", {Pad(1).substr(0, 3), Pad(1).substr(3)}, {Pad(1)}},
      {"noise, then a marker cut in two", {"xxxxM", Pad(1).substr(1)}, {Pad(1)}},
      {"a byte at a time", {"x", "M", "F", "\0"s, "\1", "\5"}, {Frame("\5")}},
      {"a frame without a type", {"MF\0\0"s + Pad(1)}, {Frame(""), Pad(1)}},
      {"a long frame that never ends", {"MF\xFF\xFFzzzz", Pad(1)}, {}},
      {"a read of noise", {std::string(1 << 20, 'M'), "F\0\1\5"s}, {Frame("\5")}},
      {"a flood of noise", Strings(1024, std::string(1024, 'x')), {}}};
  for (const auto& [what, reads, frames] : cases) {
    FrameSplitter splitter;
    Strings cut;
    for (const std::string& read : reads) {
      splitter.Add(read);
      while (const auto frame = splitter.Next(0)) cut.push_back(*frame);
      EXPECT_LE(splitter.Waiting(), 70000U) << what;
    }
    EXPECT_EQ(cut, frames) << what;
  }
}

TEST(Port, ANumberIsTheLastDigitOfACaptionAndTheWholeOneOfADevice) {
  const std::pair<const char*, int> captions[] = {
      {"USB-SERIAL (COM12)", 2}, {"ttyUSB12", 12}, {"ttyUSB0", 0}, {"(x)", 0}, {")", 0}, {"", 0}, {"tty99999", 0}};
  for (const auto& [caption, number] : captions) EXPECT_EQ(PortNumber(caption), number) << caption;
  SimSerial port;
  EXPECT_EQ(FindZR610Port(port), -1);
  port.Plug("a (COM3)");
  port.Plug("b (COM5)");
  port.Devices.push_back({"USB\\VID_1&PID_6001", "other", "c (COM8)"});
  port.Devices.push_back({"USB\\VID_1&PID_7523", "", "d (COM9)"});
  EXPECT_EQ(FindZR610Port(port), 5) << "the last that is an adapter of the system";
}

// Pads 101 to 103 are the players, 104 is slot 4.
const WordStory kPads[] = {
    {"The host unit judges and goes on", "Trivia C, pads, user advances",
     "host key 3, host key 2, turn nobody, pad 2, turn 2, host key 4, host key 9, turn 2, host key 2, turn nobody, pad "
     "3, host key 5, turn nobody, pad 1, host key 6, claim A1, host key 5, question 1, host key 2, question 2, pad 1, "
     "host key 3, turn 1, Correct is hidden"},
    {"A disabled player has no pad", "Trivia C, 2 players, pads, user advances", "pad 3, turn nobody, pad 1, turn 1"},
    {"Strangers are reported and passed over", "Trivia C, pads, user advances",
     "expect An unmapped controller has been detected., pad code 999, expect This game only uses 3 player controls., "
     "pad code 104, turn nobody, pad 2, turn 2"},
};

using PadStory = WordStoryTest;
TEST_P(PadStory, CountsByItsCode) { Play(); }
INSTANTIATE_TEST_SUITE_P(Pads, PadStory, testing::ValuesIn(kPads), WordStoryTest::Name);

TEST(Pads, BrokenFramesAreReportedOnceAndAPulledAdapterUntilReconnected) {
  GamePlayer player("Trivia C, pads, user advances");
  SimSerial& port = player.fixture().sim.serial;
  player.Do("expect Error Number: 5");
  port.Feed(Frame("") + Frame("\xB4") + Frame("") + Frame("\x01") + Pad(101));
  player.Do("turn 1, incorrect");
  port.Pull();
  EXPECT_FALSE(port.PortOpen());
  EXPECT_THAT(player.form().lblStatusBar.Caption.Get(), testing::HasSubstr("was unplugged"));
  player.Do("expect Unable to find a ZR-610 device. Please check connections and retry., reconnect the pads");
  port.Plug("USB-SERIAL (COM4)");
  port.FailNextOpen = kErrorInvalidPort;
  player.Do(
      "expect Error Number: 8002, reconnect the pads, reconnect the pads, says ZR-610 System initialized, pad 2, turn "
      "2");
  EXPECT_EQ(port.Number, 4);
}

TEST(Pads, PressesOfABusyMomentKeepTheirTimesAndOrder) {
  GamePlayer player("Trivia C, pads, user advances");
  player.Do("wait 1 s");
  SimSerial& port = player.fixture().sim.serial;
  const std::int64_t now = player.show().platform.clock.NowUs();
  port.Arrive(Pad(103).substr(0, 4), now - 400000);
  port.Arrive(Pad(103).substr(4), now - 395000);
  port.Arrive(Pad(101) + Pad(102).substr(0, 5), now - 345000);
  port.Feed(Pad(102).substr(5));
  player.Do("turn 3");
  const auto rows = RingInRows(player.show());
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].Name + rows[0].When, "PLAYER 3first");
  EXPECT_EQ(rows[1].Name + rows[1].When,
            "PLAYER 1+50 ms (\xB1"
            "21)");
  EXPECT_EQ(rows[2].Name + rows[2].When,
            "PLAYER 2+395 ms (\xB1"
            "21)");
}

TEST(Pads, HalfAFrameAndAWrongLengthCostNoLaterPress) {
  GamePlayer player("Trivia C, pads, user advances");
  SimSerial& port = player.fixture().sim.serial;
  // An adapter pulled amid a frame, and put back.
  port.Feed(Pad(102).substr(0, 6));
  port.Pull();
  port.Plug();
  player.Do("reconnect the pads, pad 1, turn 1, incorrect");
  port.Feed(Pad(102).substr(0, 6));
  player.Do("reconnect the pads, pad 1, turn 1, incorrect");
  // A head whose frame never ends.
  port.Feed("MF\xFF\xFF\1");
  player.Do("wait 1 s, pad 3, turn 3, incorrect");
  // What was pressed behind such a head counts as soon as the head is given up, in its order.
  port.Feed("MF\xFF\xFF");
  player.Do("wait 500 ms, pad 2, pad 1, turn nobody, wait 499 ms, turn nobody, wait 1 ms, turn 2, incorrect");
  // A frame in two parts, half a second apart, and one whose rest waits behind a message box.
  port.Feed(Pad(103).substr(0, 5));
  player.Do("wait 500 ms");
  port.Feed(Pad(103).substr(5));
  player.Do("turn 3, incorrect");
}

TEST(Pads, TheDialogWalksDownAndAPadStandsInOneRow) {
  GamePlayer player("Trivia C, pads");
  SimPlatform& sim = player.fixture().sim;
  MapMFForm& dialog = player.show().frmMapMF;
  const auto act = [&](int error) {
    sim.dialogs.ExpectForm("frmMapMF", [&, error] {
      sim.serial.Feed(Pad(7) + Pad(103));
      dialog.lstControllers.Select(19);
      sim.serial.Feed(Pad(8) + Pad(9));
      EXPECT_EQ(dialog.lstControllers.SelectedItem, 19);
      std::string column;
      for (const auto& row : dialog.lstControllers.ListItems.Get()) column += row[1] + ",";
      EXPECT_EQ(column, "7,103,,104" + std::string(16, ',') + "9,");
      sim.files.FailNextWrite(error);
      if (error != 0) sim.dialogs.ExpectMessage("Error Number: 61");
      dialog.cmdOK.Click();
      EXPECT_EQ(dialog.Visible, error != 0);
      dialog.cmdCancel.Click();
    });
    player.form().mnuMapMF.Click();
    return ParsePadMap(sim.files.Read(kMapFile));
  };
  EXPECT_EQ(act(kErrorDiskFull), (PadMap{101, 102, 103, 104})) << "a full disk leaves the file alone";
  player.show().presses.MFMap = {101, 102, 103, 104};
  PadMap wanted{7, 103, 103, 104};
  wanted[19] = 9;
  EXPECT_EQ(act(0), wanted) << "a slot is never emptied";
  player.Do("pad code 103, turn 2");
}

TEST(Pads, APadPressedWhileNoRowIsChosenGoesNowhere) {
  GamePlayer player("Trivia C, pads");
  MapMFForm& dialog = player.show().frmMapMF;
  player.fixture().sim.dialogs.ExpectForm("frmMapMF", [&] {
    const auto before = dialog.lstControllers.ListItems.Get();
    dialog.lstControllers.SelectedItem = -1;
    player.fixture().sim.serial.Feed(Pad(7));
    EXPECT_EQ(dialog.lstControllers.ListItems.Get(), before);
    dialog.cmdCancel.Click();
  });
  player.form().mnuMapMF.Click();
}

TEST(PadMapFile, IsEightyBytesLowByteFirstAndAShortOneLeavesTheRestEmpty) {
  PadMap map{0x00ABCDEF};
  map[19] = -1;
  const std::string bytes = FormatPadMap(map);
  EXPECT_EQ(bytes, "\xEF\xCD\xAB\0"s + std::string(72, '\0') + "\xFF\xFF\xFF\xFF");
  EXPECT_EQ(ParsePadMap(bytes), map);
  EXPECT_EQ(ParsePadMap("\1\0\0\0\2\0"s), PadMap{1});
  EXPECT_EQ(LookupPad(map, 0), 2) << "an empty slot is one of identity 0";
}

TEST(Pads, TestControllersOffersASystemThatCameLater) {
  ShowFixture fixture;
  fixture.Start();
  SimPlatform& sim = fixture.sim;
  Menu& entry = fixture.form().mTestK7Controllers;
  sim.dialogs.ExpectMessage("C:\\Pawnfield\\ZR640Tester.exe\r\ncannot be found.");
  entry.Click();
  sim.serial.Plug();
  sim.files.Put("C:\\Pawnfield\\ZR640Tester.exe", "");
  for (const BoxAnswer answer : {BoxAnswer::Cancel, BoxAnswer::No, BoxAnswer::Yes}) {
    sim.dialogs.ExpectMessage("A ZR-610 system has been detected.", answer);
    entry.Click();
    EXPECT_EQ(fixture.form().mnuZR610.Visible, answer == BoxAnswer::Yes);
  }
  EXPECT_EQ(sim.processes.Started, Strings{"C:\\Pawnfield\\ZR640Tester.exe"});
}

}  // namespace
}  // namespace pawnfield
