// The wired pads: their frames, their table and its dialog, the port and its loss.
#include "controllers/zr610.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "../support/show_fixture.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;
using testing::ElementsAre;

constexpr const char* kMapFile = "C:\\Ostara Show Kit Data\\MFMap.dat";

std::string Frame(const std::string& body) {
  return "MF"s + static_cast<char>(body.size() >> 8) + static_cast<char>(body.size()) + body;
}
std::string Pad(int id) {
  return Frame("\xFD"s + static_cast<char>(id >> 16) + static_cast<char>(id >> 8) + static_cast<char>(id));
}
std::string Key(int code) { return Frame("\xB4"s + static_cast<char>(code)); }

class Pads : public ::testing::Test {
 protected:
  // Pads 101, 102 and 103 are the players, 104 is slot 4.
  void StartGame() {
    fixture.sim.serial.Plug();
    fixture.sim.files.Put(kMapFile, FormatPadMap({101, 102, 103, 104}));
    fixture.WriteNumberedSet("Pads", 20);
    fixture.Start();
    fixture.form().cboAutoContinue.Select(3);
    fixture.ChooseSet("Pads");
    fixture.form().btnStart.Click();
  }
  void Feed(const std::string& bytes) { fixture.sim.serial.Feed(bytes); }
  int Holder() { return fixture.show().state.CurrentPlayer; }
  std::string PadText(std::size_t row) { return fixture.show().frmMapMF.lstControllers.ListItems.Get()[row - 1][1]; }

  ShowFixture fixture;
};

struct StreamCase {
  const char* What;
  std::vector<std::string> Reads;
  std::vector<std::string> Frames;
};

class Stream : public ::testing::TestWithParam<StreamCase> {};

TEST_P(Stream, IsCutIntoFrames) {
  FrameSplitter splitter;
  std::vector<std::string> frames;
  for (const std::string& read : GetParam().Reads) {
    splitter.Add(read);
    while (const auto frame = splitter.Next()) frames.push_back(*frame);
  }
  EXPECT_EQ(frames, GetParam().Frames) << GetParam().What;
}

INSTANTIATE_TEST_SUITE_P(
    Bytes, Stream,
    ::testing::Values(StreamCase{"two in one read", {Pad(1) + Pad(2)}, {Pad(1), Pad(2)}},
                      StreamCase{"cut after three bytes", {Pad(1).substr(0, 3), Pad(1).substr(3)}, {Pad(1)}},
                      StreamCase{"noise in front", {"xx" + Pad(1)}, {Pad(1)}},
                      StreamCase{"noise, then a marker cut in two", {"xxxxM", Pad(1).substr(1)}, {Pad(1)}},
                      StreamCase{"a byte at a time", {"x", "M", "F", "\0"s, "\1", "\5"}, {Frame("\5")}},
                      StreamCase{"a frame without a type", {"MF\0\0"s + Pad(1)}, {Frame(""), Pad(1)}},
                      StreamCase{"a long frame that never ends", {"MF\xFF\xFFzzzz", Pad(1)}, {}},
                      StreamCase{"flooded with noise", {std::string(1 << 20, 'M'), "F\0\1\5"s}, {Frame("\5")}}));

TEST(Stream, AFloodOfNoiseStaysBounded) {
  FrameSplitter splitter;
  for (int i = 0; i < 1024; ++i) {
    splitter.Add(std::string(1024, 'x'));
    EXPECT_FALSE(splitter.Next());
    EXPECT_LE(splitter.Waiting(), 70000u);
  }
}

TEST(Port, ANumberIsTheLastDigitOfACaptionAndTheWholeOneOfADevice) {
  const std::pair<const char*, int> cases[] = {{"USB-SERIAL CH340 (COM7)", 7},
                                               {"USB-SERIAL (COM12)", 2},
                                               {"ttyUSB0", 0},
                                               {"ttyUSB12", 12},
                                               {"(x)", 0},
                                               {")", 0},
                                               {"", 0},
                                               {"tty99999", 0}};
  for (const auto& [caption, number] : cases) EXPECT_EQ(PortNumber(caption), number) << caption;
  SimSerial port;
  EXPECT_EQ(FindZR610Port(port), -1);
  port.Plug("a (COM3)");
  port.Plug("b (COM5)");
  port.Devices.push_back({"USB\\VID_1&PID_6001", "other", "c (COM8)"});
  port.Devices.push_back({"USB\\VID_1&PID_7523", "", "d (COM9)"});
  EXPECT_EQ(FindZR610Port(port), 5) << "the last that is an adapter of the system";
}

TEST_F(Pads, AreFoundFirstAndTheFirstPressWins) {
  fixture.sim.hid.PlugTransceiver();
  StartGame();
  EXPECT_EQ(fixture.sim.serial.Number, 7);
  EXPECT_TRUE(fixture.form().mnuZR610.Visible);
  EXPECT_FALSE(fixture.form().mTestK7Controllers.Visible);
  fixture.form().btnSelectPlayer[0].Enabled = false;
  Feed(Pad(101));
  EXPECT_EQ(Holder(), 0) << "the player's button is disabled";
  Feed(Pad(103));
  EXPECT_EQ(Holder(), 3);
}

TEST_F(Pads, TheHostUnitJudgesAndGoesOn) {
  StartGame();
  Feed(Key(3) + Key(2));
  EXPECT_EQ(Holder(), 0);
  Feed(Pad(102) + Key(4) + Key(9) + Key(2));
  EXPECT_EQ(Holder(), 0) << "judged incorrect, open again";
  Feed(Pad(101) + Key(6));
  fixture.Claim(0, 0);
  fixture.sim.clock.Advance(1000);
  EXPECT_TRUE(fixture.form().btnContinue.Enabled) << "judged correct";
  const int question = fixture.show().state.CurrentQuestion;
  Feed(Key(5));
  EXPECT_EQ(fixture.show().state.CurrentQuestion, question) << "only key 2 goes on";
  Feed(Key(2));
  EXPECT_EQ(fixture.show().state.CurrentQuestion, question + 1);
}

TEST_F(Pads, StrangersAreToldAndABoxHoldsBackWhatFollows) {
  StartGame();
  fixture.sim.dialogs.ExpectMessage("An unmapped controller has been detected.", BoxAnswer::Ok, [&] {
    Feed(Pad(102));
    fixture.sim.clock.Advance(100);
    EXPECT_EQ(Holder(), 0) << "held back while the box is up";
  });
  Feed(Pad(999));
  EXPECT_EQ(Holder(), 2);
  fixture.sim.dialogs.ExpectMessage("This game only uses 3 player controls.");
  Feed(Pad(104));
  fixture.form().btnQuestionIncorrect.Click();
  fixture.sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::No, [&] { Feed(Pad(103)); });
  fixture.form().mnuFileExit.Click();
  EXPECT_EQ(Holder(), 0);
  fixture.sim.clock.Advance(15);
  EXPECT_EQ(Holder(), 3) << "taken up once the box is gone";
}

TEST_F(Pads, ABrokenFrameIsToldOnceAndTheNextIsTaken) {
  StartGame();
  fixture.sim.dialogs.ExpectMessage("Error Number: 5");
  Feed(Frame("") + Frame("\xB4") + Frame("") + Frame("\x01") + Pad(101));
  EXPECT_EQ(Holder(), 1);
}

TEST_F(Pads, APulledAdapterIsToldOnceAndReconnectBringsItBack) {
  StartGame();
  fixture.sim.serial.Pull();
  EXPECT_FALSE(fixture.sim.serial.PortOpen());
  EXPECT_THAT(fixture.form().lblStatusBar.Caption.Get(), testing::HasSubstr("was unplugged"));
  fixture.sim.dialogs.ExpectMessage("Unable to find a ZR-610 device. Please check connections and retry.");
  fixture.form().mnuReconnectMF.Click();
  fixture.sim.serial.Plug("USB-SERIAL (COM4)");
  fixture.sim.serial.FailNextOpen = kErrorInvalidPort;
  fixture.sim.dialogs.ExpectMessage("Error Number: 8002");
  fixture.form().mnuReconnectMF.Click();
  fixture.form().mnuReconnectMF.Click();
  EXPECT_EQ(fixture.sim.serial.Number, 4);
  Feed(Pad(102));
  EXPECT_EQ(Holder(), 2) << "the question was still open";
}

TEST_F(Pads, TheDialogWalksDownAndAPadStandsInOneRow) {
  StartGame();
  fixture.sim.dialogs.ExpectForm("frmMapMF", [&] {
    EXPECT_EQ(PadText(4), "104");
    EXPECT_EQ(PadText(5), "");
    Feed(Pad(7) + Pad(103));
    fixture.show().frmMapMF.lstControllers.Select(19);
    Feed(Pad(8) + Pad(9));
    EXPECT_EQ(fixture.show().frmMapMF.lstControllers.SelectedItem, 19);
    EXPECT_EQ(PadText(1) + " " + PadText(2) + " " + PadText(3) + " " + PadText(20), "7 103  9");
    EXPECT_EQ(Holder(), 0);
    fixture.show().frmMapMF.cmdOK.Click();
  });
  fixture.form().mnuMapMF.Click();
  const PadMap map = ParsePadMap(fixture.sim.files.Read(kMapFile));
  EXPECT_THAT(std::vector<int>(map.begin(), map.begin() + 4), ElementsAre(7, 103, 103, 104))
      << "a slot is never emptied";
  EXPECT_EQ(map[19], 9);
  Feed(Pad(103));
  EXPECT_EQ(Holder(), 2) << "the first slot that has the pad";
}

TEST_F(Pads, CancelAndAFullDiskLeaveTheFileAlone) {
  StartGame();
  const std::string before = fixture.sim.files.Read(kMapFile);
  fixture.sim.dialogs.ExpectForm("frmMapMF", [&] {
    Feed(Pad(7));
    fixture.sim.files.FailNextWrite(kErrorDiskFull);
    fixture.sim.dialogs.ExpectMessage("Error Number: 61");
    fixture.show().frmMapMF.cmdOK.Click();
    EXPECT_TRUE(fixture.show().frmMapMF.Visible);
    fixture.show().frmMapMF.cmdCancel.Click();
  });
  fixture.form().mnuMapMF.Click();
  EXPECT_EQ(fixture.sim.files.Read(kMapFile), before);
}

TEST(PadMapFile, IsEightyBytesLowByteFirstAndAShortOneLeavesTheRestEmpty) {
  PadMap map{};
  map[0] = 0x00ABCDEF;
  map[19] = -1;
  const std::string bytes = FormatPadMap(map);
  ASSERT_EQ(bytes.size(), 80u);
  EXPECT_EQ(bytes.substr(0, 4), "\xEF\xCD\xAB\0"s);
  EXPECT_EQ(ParsePadMap(bytes), map);
  EXPECT_EQ(ParsePadMap(bytes.substr(0, 42))[0], 0x00ABCDEF);
  EXPECT_EQ(ParsePadMap(std::string(42, '\1'))[9], 0x01010101);
  EXPECT_EQ(ParsePadMap(std::string(42, '\1'))[10], 0);
  EXPECT_EQ(LookupPad(map, 0), 2) << "an empty slot is one of identity 0";
}

TEST_F(Pads, TestControllersOffersASystemThatCameLater) {
  fixture.Start();
  Menu& entry = fixture.form().mTestK7Controllers;
  fixture.sim.dialogs.ExpectMessage("C:\\Pawnfield\\ZR640Tester.exe\r\ncannot be found.");
  entry.Click();
  fixture.sim.serial.Plug();
  fixture.sim.files.Put("C:\\Pawnfield\\ZR640Tester.exe", "");
  for (const BoxAnswer answer : {BoxAnswer::Cancel, BoxAnswer::No, BoxAnswer::Yes}) {
    fixture.sim.dialogs.ExpectMessage("A ZR-610 system has been detected.", answer);
    entry.Click();
    EXPECT_EQ(fixture.form().mnuZR610.Visible, answer == BoxAnswer::Yes);
  }
  EXPECT_THAT(fixture.sim.processes.Started, ElementsAre("C:\\Pawnfield\\ZR640Tester.exe"));
}

}  // namespace
}  // namespace pawnfield
