// The transceiver on a real kernel's hidraw, with devices that the kernel takes for real ones.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <thread>

#include "controllers/packing.h"
#include "controllers/ring_in.h"
#include "hidraw/uhid_device.h"
#include "platform/desktop/hidapi_port.h"
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
  // The system needs a moment to make a device's node or to take it away.
  std::size_t WaitForDevices(std::size_t count) {
    std::size_t present = 0;
    for (int i = 0; i < 100 && present != count; ++i) {
      std::this_thread::sleep_for(Milliseconds(20));
      present = port_.Enumerate().size();
    }
    return present;
  }
  void Open() {
    fixture_.show().dgTransceiver = std::make_unique<Transceiver>(
        port_, clock_, [this](const TransceiverData& data) { dgTransceiver_OnButtonPressed(fixture_.show(), data); },
        SelfTimer::GuardFunction());
  }
  Transceiver& TheTransceiver() { return *fixture_.show().dgTransceiver; }
  // Lets the program poll until the condition holds.
  bool Polls(const std::function<bool()>& condition) {
    for (int round = 0; round < 40 && !condition(); ++round) {
      std::this_thread::sleep_for(Milliseconds(kPollMs));
      fixture_.sim.clock.Advance(kPollMs);
      clock_.Advance(kPollMs);
    }
    return condition();
  }
  bool Holds(int player) {
    return Polls([&] { return fixture_.show().state.CurrentPlayer == player; });
  }
  static std::string LongPress(int remote) {
    std::string report = BuildPacket({static_cast<char>(remote), '\5', '\0', '\0'}, 0).substr(1);
    report.resize(32);
    return report;
  }
  // Without the report number and the padding.
  static std::string Packet(const std::string& output) {
    const std::string bytes = output.size() == 33 ? output.substr(1) : output;
    return "\0"s + bytes.substr(0, static_cast<unsigned char>(bytes[1]));
  }

  PacedClock clock_;
  HidapiPort port_;
  ShowFixture fixture_;
};

TEST_F(Hidraw, TheFirstOfTwoTransceiversIsFoundAmongOthersAndItsPressesRingIn) {
  UhidDevice keyboard(0x046D, 0xC31C, 8, 1), relative(3, 0x1002, 32, 32), cousin(0x04FE, 0x1003, 32, 32);
  auto first = std::make_unique<UhidDevice>(3, 0x1003, 32, 32);
  ASSERT_TRUE(first->IsThere());
  ASSERT_EQ(WaitForDevices(4), 4u);
  UhidDevice second(3, 0x1003, 32, 32);
  ASSERT_EQ(WaitForDevices(5), 5u);
  Open();
  ASSERT_TRUE(TheTransceiver().Ready());
  EXPECT_EQ(port_.Lengths().Input, 33u);
  EXPECT_EQ(port_.Lengths().Output, 33u);

  first->Report(LongPress(2));
  first->Report(LongPress(1));
  ASSERT_TRUE(Holds(2));
  Polls([&] { return !first->Outputs().empty(); });
  ASSERT_EQ(first->Outputs().size(), 1u) << "the first press is lit, the second shut out";
  EXPECT_EQ(Packet(first->Outputs()[0].Bytes), BuildPacket("\2\0\2"s, 1));
  for (UhidDevice* other : {&keyboard, &relative, &cousin, &second}) EXPECT_TRUE(other->Outputs().empty());

  first.reset();
  EXPECT_TRUE(Polls([&] { return !TheTransceiver().Ready(); })) << "pulled in the middle of the question";
  fixture_.form().btnQuestionIncorrect.Click();
  fixture_.form().KeyPress('3');
  EXPECT_EQ(fixture_.show().state.CurrentPlayer, 3) << "the show goes on";
}

TEST_F(Hidraw, AReportOf114CharactersKeepsItsPace) {
  UhidDevice device(3, 0x1003, 32, 32);
  ASSERT_EQ(WaitForDevices(1), 1u);
  Open();
  std::string text;
  for (int i = 0; i < 114; ++i) text += static_cast<char>('!' + i % 90);
  const auto started = std::chrono::steady_clock::now();
  TheTransceiver().SendData(text);
  const auto took = std::chrono::steady_clock::now() - started;
  Polls([&] { return device.Outputs().size() >= 7; });
  const auto outputs = device.Outputs();
  ASSERT_EQ(outputs.size(), 7u);
  std::string received;
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    const std::string packet = Packet(outputs[i].Bytes);
    if (i > 0) received += packet.substr(9, packet.size() - 11);
    if (i == 0) {
      EXPECT_EQ(packet.substr(9, 12), MyEncode(PackLongPadded(114, ByteOrder::Machine)));
    }
  }
  EXPECT_EQ(received, text);
  EXPECT_GE(took, Milliseconds(7 * 60));
  EXPECT_GE(outputs[6].At - outputs[0].At, Milliseconds(5 * 60)) << "the device saw them apart";
}

TEST_F(Hidraw, TheShortFormDecodesAndIsLit) {
  UhidDevice device(3, 0x1001, 2, 8);
  ASSERT_EQ(WaitForDevices(1), 1u);
  Open();
  ASSERT_TRUE(TheTransceiver().Ready());
  EXPECT_EQ(port_.Lengths().Input, 3u);
  device.Report("\0\x15"s);
  device.Report("\0\x83"s);
  device.Report("\0\x82"s);
  ASSERT_TRUE(Holds(3)) << "0x15 is no press, and remote 4 is routed to nobody";
  Polls([&] { return !device.Outputs().empty(); });
  ASSERT_EQ(device.Outputs().size(), 1u);
  EXPECT_NE(device.Outputs()[0].Bytes.find("cmd\3"), std::string::npos);
}

}  // namespace
}  // namespace pawnfield
