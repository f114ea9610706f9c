// The transceiver on a real kernel's hidraw, with devices that the kernel takes for real ones.
#include <gtest/gtest.h>

#include <cmath>
#include <iostream>

#include "controllers/ring_in.h"
#include "desktop/devices/device_folder.h"
#include "desktop/devices/hidapi_port.h"
#include "devices/packing.h"
#include "devices/transceiver.h"
#include "forms/main_form.h"
#include "hidraw/uhid_device.h"
#include "show/show_record.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;
using Milliseconds = std::chrono::milliseconds;

constexpr int kPollMs = 30;

// Virtual time whose pauses are real, so that what goes out keeps its pace.
class PacedClock : public VirtualClock {
 public:
  void Pause(int ms) override {
    std::this_thread::sleep_for(Milliseconds(ms));
    VirtualClock::Pause(ms);
  }
};

class Hidraw : public ::testing::Test {
 protected:
  void SetUp() override {
    fixture_.WriteNumberedSet("Presses", 20);
    fixture_.Start();
    fixture_.ChooseSet("Presses");
    fixture_.form().btnStart.Click();
  }
  // Lets the program poll until the condition holds.
  bool Polls(const std::function<bool()>& condition) {
    for (int round = 0; round < 60 && !condition(); ++round) {
      std::this_thread::sleep_for(Milliseconds(kPollMs));
      fixture_.sim.clock.Advance(kPollMs);
      clock_.Advance(kPollMs);
      if (fixture_.sim.hid.Instead != nullptr && folder_.TakeChanges()) fixture_.sim.devices.Notify();
    }
    return condition();
  }
  // The system needs a moment to make a device's node or to take it away.
  bool Present(std::size_t count) {
    return Polls([&] { return port_.Enumerate().size() == count; });
  }
  Transceiver& Open() {
    auto& transceiver = fixture_.show().dgTransceiver;
    transceiver = std::make_unique<Transceiver>(
        port_, clock_, [this](const TransceiverData& data) { dgTransceiver_OnButtonPressed(fixture_.show(), data); },
        SelfTimer::GuardFunction());
    EXPECT_TRUE(transceiver->Ready());
    return *transceiver;
  }
  bool Says(const std::string& text) {
    return Polls([&] { return fixture_.form().lblStatusBar.Caption == text; });
  }
  static void Press(UhidDevice& device, char remote) {
    std::string report = BuildPacket({remote, '\5', '\0', '\0'}, 0).substr(1);
    report.resize(32);
    device.Report(report);
  }
  bool Holds(int player) {
    return Polls([&] { return fixture_.show().state.CurrentPlayer == player; });
  }
  // What the device was sent, without the report numbers and the padding, once it is so much.
  std::vector<std::string> Sent(UhidDevice& device, std::size_t count) {
    Polls([&] { return device.Outputs().size() >= count; });
    std::vector<std::string> packets;
    for (const auto& output : device.Outputs()) {
      const std::string bytes = output.Bytes.size() == 33 ? output.Bytes.substr(1) : output.Bytes;
      packets.push_back("\0"s + bytes.substr(0, static_cast<unsigned char>(bytes[1])));
    }
    return packets;
  }

  PacedClock clock_;
  DeviceFolder folder_;
  HidapiPort port_;
  ShowFixture fixture_;
};

TEST_F(Hidraw, TheFirstOfTwoTransceiversIsFoundAmongOthersAndItsPressesRingIn) {
  UhidDevice keyboard(0x046D, 0xC31C, 8, 1), relative(3, 0x1002, 32, 32), cousin(0x04FE, 0x1003, 32, 32);
  auto first = std::make_unique<UhidDevice>(3, 0x1003, 32, 32);
  ASSERT_TRUE(Present(4));
  UhidDevice second(3, 0x1003, 32, 32);
  ASSERT_TRUE(Present(5));
  Transceiver& transceiver = Open();
  EXPECT_EQ(port_.Lengths().Input, 33u);
  EXPECT_EQ(port_.Lengths().Output, 33u);

  for (const char remote : {'\2', '\1'}) Press(*first, remote);
  ASSERT_TRUE(Holds(2));
  EXPECT_EQ(Sent(*first, 1), std::vector{BuildPacket("\2\0\2"s, 1)}) << "the first is lit, the second shut out";
  for (UhidDevice* other : {&keyboard, &relative, &cousin, &second}) EXPECT_TRUE(other->Outputs().empty());

  first.reset();
  EXPECT_TRUE(Polls([&] { return !transceiver.Ready(); })) << "pulled in the middle of the question";
  fixture_.form().btnQuestionIncorrect.Click();
  fixture_.form().KeyPress('3');
  EXPECT_EQ(fixture_.show().state.CurrentPlayer, 3) << "the show goes on";
}

TEST_F(Hidraw, ATransceiverThatComesAfterTheStartIsPulledAmidAGameAndComesBack) {
  fixture_.sim.hid.Instead = &port_;
  auto device = std::make_unique<UhidDevice>(3, 0x1003, 32, 32);
  EXPECT_TRUE(Says("Wireless transceiver found"));
  for (int round = 0; round < 2; ++round) {
    Press(*device, '\2');
    EXPECT_TRUE(Holds(2)) << "round " << round;
    fixture_.form().btnQuestionIncorrect.Click();
    Press(*device, '\1');
    device.reset();
    EXPECT_TRUE(Says("Wireless transceiver lost"));
    // A press that came through before the pull counts as any other.
    if (fixture_.show().state.CurrentPlayer != 0) fixture_.form().btnQuestionIncorrect.Click();
    fixture_.form().KeyPress('3');
    EXPECT_EQ(fixture_.show().state.CurrentPlayer, 3) << "the show goes on";
    fixture_.form().btnQuestionIncorrect.Click();
    const auto put = std::chrono::steady_clock::now();
    device = std::make_unique<UhidDevice>(3, 0x1003, 32, 32);
    EXPECT_TRUE(Says("Wireless transceiver back"));
    EXPECT_LT(std::chrono::steady_clock::now() - put, Milliseconds(2000));
    Polls([] { return false; });
    EXPECT_EQ(fixture_.show().state.CurrentPlayer, 0) << "no press is invented";
  }
}

double NowMs() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

// When it began and when it was done, in milliseconds.
std::pair<double, double> Timed(const std::function<void()>& work) {
  const double from = NowMs();
  work();
  return {from, NowMs()};
}

// The main thread sleeps while both come, as a busy one would.
TEST_F(Hidraw, TwoPresses5MsApartKeepTheirOrderAndMargin) {
  constexpr int kRounds = 200;
  constexpr double kMostOffMs = 2;
  fixture_.sim.hid.Instead = &port_;
  UhidDevice device(3, 0x1003, 32, 32);
  ASSERT_TRUE(Says("Wireless transceiver found"));
  MainForm& form = fixture_.form();
  const auto& presses = fixture_.show().record->Presses;
  int right = 0, off = 0;
  double worst = 0;
  for (int round = 0; round < kRounds; ++round) {
    const int first = 1 + round % 3, second = 1 + (round + 1) % 3;
    // The kernel has a report at some time of its writing.
    const auto [firstFrom, firstTo] = Timed([&] { Press(device, static_cast<char>(first)); });
    std::this_thread::sleep_for(Milliseconds(5));
    const auto [secondFrom, secondTo] = Timed([&] { Press(device, static_cast<char>(second)); });
    ASSERT_TRUE(Polls([&] { return presses.size() == 2; })) << "round " << round;
    if (presses[0].Player == first && presses[1].Player == second) ++right;
    const double margin = static_cast<double>(presses[1].TimeUs - presses[0].TimeUs) / 1000;
    const double beyond = std::max({0.0, secondFrom - firstTo - margin, margin - (secondTo - firstFrom)});
    worst = std::max(worst, beyond);
    if (beyond > kMostOffMs) ++off;
    form.btnQuestionCorrect.Click();
    form.btnUndo.Click();
    form.btnUndo.Click();
    // The remote's own bounce is over, and the question is open as it was.
    fixture_.sim.clock.Advance(1000);
    clock_.Advance(1000);
  }
  std::cout << right << " of " << kRounds << " in order, " << off << " margins more than 2 ms off, at most " << worst
            << " ms\n";
  EXPECT_EQ(right, kRounds);
  EXPECT_EQ(off, 0);
}

TEST_F(Hidraw, AReportOf114CharactersKeepsItsPace) {
  UhidDevice device(3, 0x1003, 32, 32);
  ASSERT_TRUE(Present(1));
  Transceiver& transceiver = Open();
  std::string text, received;
  for (int i = 0; i < 114; ++i) text += static_cast<char>('!' + i % 90);
  const auto started = std::chrono::steady_clock::now();
  transceiver.SendData(text);
  EXPECT_GE(std::chrono::steady_clock::now() - started, Milliseconds(7 * 60));
  const auto packets = Sent(device, 7);
  ASSERT_EQ(packets.size(), 7u);
  EXPECT_EQ(packets[0].substr(9, 12), MyEncode(PackLongPadded(114, ByteOrder::Machine)));
  for (std::size_t i = 1; i < 7; ++i) received += packets[i].substr(9, packets[i].size() - 11);
  EXPECT_EQ(received, text);
  EXPECT_GE(device.Outputs()[6].At - device.Outputs()[0].At, Milliseconds(5 * 60)) << "the device saw them apart";
}

TEST_F(Hidraw, TheShortFormDecodesAndIsLit) {
  UhidDevice device(3, 0x1001, 2, 8);
  ASSERT_TRUE(Present(1));
  Open();
  EXPECT_EQ(port_.Lengths().Input, 3u);
  for (const auto& report : {"\0\x15"s, "\0\x83"s, "\0\x82"s}) device.Report(report);
  ASSERT_TRUE(Holds(3)) << "0x15 is no press, and remote 4 is routed to nobody";
  Polls([&] { return !device.Outputs().empty(); });
  ASSERT_EQ(device.Outputs().size(), 1u);
  EXPECT_NE(device.Outputs()[0].Bytes.find("cmd\3"), std::string::npos);
}

}  // namespace
}  // namespace pawnfield
