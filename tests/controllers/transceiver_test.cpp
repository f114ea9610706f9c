// The transceiver on a simulated device: what it reads, what it writes, and when.
#include "controllers/transceiver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controllers/packing.h"
#include "platform/sim/sim_hid.h"
#include "platform/sim/virtual_clock.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;
using testing::ElementsAre;

class Wireless : public ::testing::Test {
 protected:
  void Open(int product) {
    hid.PlugTransceiver(product);
    Start();
  }
  void Start() {
    transceiver = std::make_unique<Transceiver>(
        hid, clock, [this](const TransceiverData& data) { Pressed(data); },
        [this](const std::function<void()>& poll, const std::string&, const std::string&) {
          try {
            poll();
          } catch (const RuntimeError& error) {
            errors.push_back(error.Number());
          }
        });
  }
  void Pressed(const TransceiverData& data) {
    presses.push_back(std::to_string(data.Remote) + data.Button + "@" + std::to_string(clock.NowMs()));
    if (data.Remote == failing) throw RuntimeError(9, "Subscript out of range");
  }
  std::string Written(std::size_t index) { return hid.Writes.at(index).Report; }

  VirtualClock clock;
  SimHid hid{clock};
  std::vector<std::string> presses;
  std::vector<int> errors;
  int failing = -1;
  std::unique_ptr<Transceiver> transceiver;
};

TEST_F(Wireless, OpensTheFirstOfItsKindAmongOthers) {
  hid.Devices = {{{3, 0x1002}, {}}, {{0x04FE, 0x1003}, {}}, {{3, 0x1001}, {3, 9}}, {{3, 0x1003}, {33, 33}}};
  Start();
  EXPECT_EQ(hid.Opened(), 2);
  transceiver->LED_Set(1, 2);
  EXPECT_EQ(Written(0), "\0cmd\x01\0\0\0\0"s);
}

TEST_F(Wireless, TakesOneReportARoundInOrder) {
  Open(kTransceiverShort);
  hid.Reports = {"\0\0\x01"s, "\0\0\x15"s, "\0\0\x80"s};
  clock.Advance(29);
  EXPECT_TRUE(presses.empty());
  clock.Advance(61);
  EXPECT_THAT(presses, ElementsAre("1BUZZ@30", "1A@90"));
}

TEST_F(Wireless, PollingGoesOnAfterAFaultAndEndsWithTheDevice) {
  Open(kTransceiverLong);
  failing = 3;
  const std::string lie = "\0\xFA\xC8\0\x01\x05"s;
  hid.Reports = {lie, lie, BuildPacket("\x03\x05\0\0"s, 0), BuildPacket("\x07\x01\0\0"s, 0)};
  clock.Advance(120);
  EXPECT_THAT(errors, ElementsAre(9, 9)) << "the broken report once, the failing press";
  EXPECT_THAT(presses, ElementsAre("3BUZZ@90", "7D@120"));
  hid.Pull();
  clock.Advance(30);
  EXPECT_FALSE(transceiver->Ready());
  EXPECT_EQ(hid.Opened(), -1);
  EXPECT_TRUE(clock.Running().empty());
  transceiver->LED_Set(3, 2);
  transceiver->SendData("text");
  EXPECT_EQ(clock.NowMs(), 150) << "nothing is waited for";
}

TEST_F(Wireless, LightsOfBothForms) {
  struct Case {
    int product, number;
    const char* what;
    std::string sent;
  };
  const Case cases[] = {
      {kTransceiverLong, 10, "ten is zero", "\0\xFA\x08\x01\0\0\x02\xF1\xAF"s},
      {kTransceiverLong, 20, "twenty is ten", "\0\xFA\x08\x01\x0A\0\x02\xFB\xAF"s},
      {kTransceiverLong, 25, "itself", "\0\xFA\x08\x01\x19\0\x02\xE8\xAF"s},
      {kTransceiverLong, 0, "below one", "\0\xFA\x08\x01\x50\0\x02\xA1\xAF"s},
      {kTransceiverShort, 20, "the last without a gap", "\0cmd\x14\0\0\0\0"s},
      {kTransceiverShort, 21, "behind the gap", "\0cmd\x1B\0\0\0\0"s},
      {kTransceiverShort, -1, "no remote", ""},
  };
  for (const Case& c : cases) {
    VirtualClock time;
    SimHid port(time);
    port.PlugTransceiver(c.product);
    Transceiver device(port, time, {}, {});
    device.LED_Set(c.number, 2);
    const bool shortForm = c.product == kTransceiverShort;
    EXPECT_EQ(time.NowMs(), shortForm ? 0 : 60) << c.what;
    ASSERT_EQ(port.Writes.size(), c.sent.empty() ? 0u : 1u) << c.what;
    if (c.sent.empty()) continue;
    std::string expected = c.sent;
    expected.resize(shortForm ? 9 : 33);
    EXPECT_EQ(port.Writes[0].Report, expected) << c.what;
  }
}

TEST_F(Wireless, TextGoesOutInPiecesSixtyMillisecondsApart) {
  struct Case {
    std::size_t length;
    std::vector<std::size_t> pieces;
  };
  for (const Case& c : {Case{0, {}}, Case{21, {21}}, Case{22, {21, 1}}, Case{114, {21, 21, 21, 21, 21, 9}}}) {
    VirtualClock time;
    SimHid port(time);
    port.PlugTransceiver();
    Transceiver device(port, time, {}, {});
    time.Advance(0x0102);
    device.SendData(std::string(c.length, 'x'));
    ASSERT_EQ(port.Writes.size(), c.pieces.size() + 1) << c.length;
    const std::string size = PackLongPadded(static_cast<int>(c.length), ByteOrder::Machine);
    std::string expected = BuildPacket("\x02\x01\0\0^"s + MyEncode(size), 2);
    for (std::size_t i = 0; i < port.Writes.size(); ++i) {
      if (i > 0) expected = BuildPacket("\x02\x01\0\0^"s + std::string(c.pieces[i - 1], 'x'), 2);
      expected.resize(33);
      EXPECT_EQ(port.Writes[i].Report, expected) << c.length << " report " << i;
      EXPECT_EQ(port.Writes[i].AtMs, 0x0102 + 60 * static_cast<int>(i));
    }
  }
}

TEST_F(Wireless, WithoutADeviceAndWithOddOnes) {
  Start();
  transceiver->LED_Set(1, 2);
  transceiver->SendData("text");
  EXPECT_TRUE(clock.Running().empty());
  EXPECT_EQ(clock.NowMs(), 0);
  hid.Devices = {{{3, kTransceiverLong}, {33, 8}}};
  Start();
  EXPECT_THROW(transceiver->LED_Set(1, 2), RuntimeError) << "nine bytes don't fit eight";
  hid.Devices[0].Lengths.Output = 0;
  Start();
  transceiver->LED_Set(1, 2);
  EXPECT_EQ(clock.NowMs(), 0);
  EXPECT_TRUE(hid.Writes.empty());
}

TEST(SelfTimer, TellsTheSecondsSinceItsFirstEventAndIgnoresNegativeIntervals) {
  VirtualClock clock;
  std::vector<double> seconds;
  SelfTimer timer(clock, [&](double at) { seconds.push_back(at); }, {});
  timer.SetInterval(250);
  timer.SetInterval(-1);
  EXPECT_EQ(timer.Interval(), 250);
  clock.Advance(600);
  timer.Reset();
  timer.SetInterval(250);
  clock.Advance(500);
  timer.SetInterval(0);
  clock.Advance(1000);
  EXPECT_THAT(seconds, ElementsAre(0, 0.25, 0, 0.25));
}

}  // namespace
}  // namespace pawnfield
