// The wired pads: their frames, their table and its dialog, the port and its loss.
#include "controllers/zr610.h"

#include <gmock/gmock.h>

#include "../support/show_fixture.h"

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
std::string Key(int code) { return Frame("\xB4"s + static_cast<char>(code)); }

class Pads : public ShowFixture, public testing::Test {
 protected:
  // Pads 101, 102 and 103 are the players, 104 is slot 4.
  void StartGame() {
    sim.serial.Plug();
    sim.files.Put(kMapFile, FormatPadMap({101, 102, 103, 104}));
    WriteNumberedSet("Pads", 20);
    Start();
    form().cboAutoContinue.Select(3);
    ChooseSet("Pads");
    form().btnStart.Click();
  }
  void Feed(const std::string& bytes) { sim.serial.Feed(bytes); }
  int Holder() { return show().state.CurrentPlayer; }
};

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
      while (const auto frame = splitter.Next()) cut.push_back(*frame);
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

TEST_F(Pads, TheFirstPressWinsAndTheHostUnitJudgesAndGoesOn) {
  sim.hid.PlugTransceiver();
  StartGame();
  EXPECT_EQ(sim.serial.Number, 7) << "the pads are looked for first";
  EXPECT_TRUE(form().mnuZR610.Visible && !form().mTestK7Controllers.Visible);
  form().btnSelectPlayer[0].Enabled = false;
  Feed(Pad(101) + Key(3) + Key(2));
  EXPECT_EQ(Holder(), 0) << "the player's button is disabled";
  form().btnSelectPlayer[0].Enabled = true;
  Feed(Pad(102) + Pad(101));
  EXPECT_EQ(Holder(), 2);
  Feed(Key(4) + Key(9) + Key(2));
  EXPECT_EQ(Holder(), 0) << "judged incorrect, open again";
  Feed(Pad(103) + Key(5) + Pad(101) + Key(6));
  Claim(0, 0);
  sim.clock.Advance(1000);
  EXPECT_TRUE(form().btnContinue.Enabled) << "judged correct";
  const int question = show().state.CurrentQuestion;
  Feed(Key(5));
  EXPECT_EQ(show().state.CurrentQuestion, question) << "only key 2 goes on";
  Feed(Key(2));
  EXPECT_EQ(show().state.CurrentQuestion, question + 1);
}

TEST_F(Pads, StrangersAndBrokenFramesAreToldAndABoxHoldsBackWhatFollows) {
  StartGame();
  sim.dialogs.ExpectMessage("An unmapped controller has been detected.", BoxAnswer::Ok, [&] {
    Feed(Pad(102));
    sim.clock.Advance(100);
    EXPECT_EQ(Holder(), 0) << "held back while the box is up";
  });
  Feed(Pad(999));
  EXPECT_EQ(Holder(), 2);
  sim.dialogs.ExpectMessage("This game only uses 3 player controls.");
  Feed(Pad(104));
  form().btnQuestionIncorrect.Click();
  sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::No, [&] { Feed(Pad(103)); });
  form().mnuFileExit.Click();
  EXPECT_EQ(Holder(), 0);
  sim.clock.Advance(15);
  EXPECT_EQ(Holder(), 3) << "taken up once the box is gone";
  form().btnQuestionIncorrect.Click();
  sim.dialogs.ExpectMessage("Error Number: 5");
  Feed(Frame("") + Frame("\xB4") + Frame("") + Frame("\x01") + Pad(101));
  EXPECT_EQ(Holder(), 1) << "told once, and the next frame is taken";
}

TEST_F(Pads, APulledAdapterIsToldOnceAndReconnectBringsItBack) {
  StartGame();
  sim.serial.Pull();
  EXPECT_FALSE(sim.serial.PortOpen());
  EXPECT_THAT(form().lblStatusBar.Caption.Get(), testing::HasSubstr("was unplugged"));
  sim.dialogs.ExpectMessage("Unable to find a ZR-610 device. Please check connections and retry.");
  form().mnuReconnectMF.Click();
  sim.serial.Plug("USB-SERIAL (COM4)");
  sim.serial.FailNextOpen = kErrorInvalidPort;
  sim.dialogs.ExpectMessage("Error Number: 8002");
  form().mnuReconnectMF.Click();
  form().mnuReconnectMF.Click();
  EXPECT_EQ(sim.serial.Number, 4);
  Feed(Pad(102));
  EXPECT_EQ(Holder(), 2) << "the question was still open";
}

TEST_F(Pads, TheDialogWalksDownAndAPadStandsInOneRow) {
  StartGame();
  MapMFForm& dialog = show().frmMapMF;
  const auto act = [&](bool keep) {
    sim.dialogs.ExpectForm("frmMapMF", [&, keep] {
      EXPECT_EQ(dialog.lstControllers.ListItems.Get()[3][1] + dialog.lstControllers.ListItems.Get()[4][1], "104");
      Feed(Pad(7) + Pad(103));
      dialog.lstControllers.Select(19);
      Feed(Pad(8) + Pad(9));
      EXPECT_EQ(dialog.lstControllers.SelectedItem, 19);
      std::string column;
      for (const auto& row : dialog.lstControllers.ListItems.Get()) column += row[1] + ",";
      EXPECT_EQ(column, "7,103,,104" + std::string(16, ',') + "9,");
      sim.files.FailNextWrite(keep ? 0 : kErrorDiskFull);
      if (!keep) sim.dialogs.ExpectMessage("Error Number: 61");
      dialog.cmdOK.Click();
      EXPECT_EQ(dialog.Visible, !keep);
      dialog.cmdCancel.Click();
    });
    form().mnuMapMF.Click();
    return ParsePadMap(sim.files.Read(kMapFile));
  };
  EXPECT_EQ(act(false), (PadMap{101, 102, 103, 104})) << "a full disk leaves the file alone";
  show().presses.MFMap = {101, 102, 103, 104};
  PadMap wanted{7, 103, 103, 104};
  wanted[19] = 9;
  EXPECT_EQ(act(true), wanted) << "a slot is never emptied";
  Feed(Pad(103));
  EXPECT_EQ(Holder(), 2) << "the first slot that has the pad";
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

TEST_F(Pads, TestControllersOffersASystemThatCameLater) {
  Start();
  Menu& entry = form().mTestK7Controllers;
  sim.dialogs.ExpectMessage("C:\\Pawnfield\\ZR640Tester.exe\r\ncannot be found.");
  entry.Click();
  sim.serial.Plug();
  sim.files.Put("C:\\Pawnfield\\ZR640Tester.exe", "");
  for (const BoxAnswer answer : {BoxAnswer::Cancel, BoxAnswer::No, BoxAnswer::Yes}) {
    sim.dialogs.ExpectMessage("A ZR-610 system has been detected.", answer);
    entry.Click();
    EXPECT_EQ(form().mnuZR610.Visible, answer == BoxAnswer::Yes);
  }
  EXPECT_EQ(sim.processes.Started, Strings{"C:\\Pawnfield\\ZR640Tester.exe"});
}

}  // namespace
}  // namespace pawnfield
