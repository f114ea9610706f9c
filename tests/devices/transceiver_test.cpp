// The transceiver on a simulated device: what it reads, what it writes, and when.
#include "devices/transceiver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "devices/packing.h"
#include "sim/sim_hid.h"
#include "sim/virtual_clock.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;
using testing::ElementsAre;

class Wireless : public testing::Test {
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
            presses.push_back("error " + std::to_string(error.Number()));
          }
        });
  }
  void Pressed(const TransceiverData& data) {
    presses.push_back(std::to_string(data.Remote) + data.Button + "@" + std::to_string(clock.NowMs()));
    if (data.Remote == 3) throw RuntimeError(9, "Subscript out of range");
  }
  std::string TakeWrite() {
    std::string report = hid.Writes.empty() ? "" : hid.Writes[0].Report;
    hid.Writes.clear();
    return report;
  }

  VirtualClock clock;
  SimHid hid{clock};
  std::vector<std::string> presses;
  std::unique_ptr<Transceiver> transceiver;
};

TEST_F(Wireless, OpensTheFirstOfItsKindAndTakesOneReportARoundInOrder) {
  hid.Devices = {{{3, 0x1002}, {}}, {{0x04FE, 0x1003}, {}}, {{3, 0x1001}, {3, 9}}, {{3, 0x1003}, {33, 33}}};
  Start();
  EXPECT_EQ(hid.Opened(), 2);
  hid.Reports = {"\0\0\x01"s, "\0\0\x15"s, "\0\0\x80"s};
  clock.Advance(29);
  EXPECT_TRUE(presses.empty());
  clock.Advance(61);
  EXPECT_THAT(presses, ElementsAre("1BUZZ@30", "1A@90"));
}

TEST_F(Wireless, PollingGoesOnAfterAFaultAndEndsWithTheDevice) {
  Open(kTransceiverLong);
  const std::string lie = "\0\xFA\xC8\0\x01\x05"s;
  hid.Reports = {lie, lie, BuildPacket("\x03\x05\0\0"s, 0), BuildPacket("\x07\x01\0\0"s, 0)};
  clock.Advance(120);
  EXPECT_THAT(presses, ElementsAre("error 9", "3BUZZ@90", "error 9", "7D@120")) << "the broken report once";
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
  const std::tuple<int, int, const char*, std::string> cases[] = {
      {kTransceiverLong, 10, "ten is zero", "\0\xFA\x08\x01\0\0\x02\xF1\xAF"s},
      {kTransceiverLong, 20, "twenty is ten", "\0\xFA\x08\x01\x0A\0\x02\xFB\xAF"s},
      {kTransceiverLong, 25, "itself", "\0\xFA\x08\x01\x19\0\x02\xE8\xAF"s},
      {kTransceiverLong, 0, "below one", "\0\xFA\x08\x01\x50\0\x02\xA1\xAF"s},
      {kTransceiverShort, 0, "no gap", "\0cmd\0\0\0\0\0"s},
      {kTransceiverShort, 20, "the last without a gap", "\0cmd\x14\0\0\0\0"s},
      {kTransceiverShort, 21, "behind the gap", "\0cmd\x1B\0\0\0\0"s},
      {kTransceiverShort, -1, "no remote", ""}};
  for (const auto& [product, number, what, sent] : cases) {
    hid.Devices.clear();
    transceiver.reset();
    Open(product);
    const std::int64_t before = clock.NowMs();
    transceiver->LED_Set(number, 2);
    std::string report = sent;
    if (product == kTransceiverLong) report.resize(33);
    EXPECT_EQ(TakeWrite(), report) << what;
    EXPECT_EQ(clock.NowMs() - before, product == kTransceiverLong ? 60 : 0) << what;
  }
}

TEST_F(Wireless, TextGoesOutInPiecesSixtyMillisecondsApart) {
  Open(kTransceiverLong);
  clock.Advance(0x0102);
  transceiver->SendData(std::string(22, 'x'));
  ASSERT_EQ(hid.Writes.size(), 3U);
  const std::string texts[] = {MyEncode(PackLongPadded(22, ByteOrder::Machine)), std::string(21, 'x'), "x"};
  for (std::size_t i = 0; i < 3; ++i) {
    std::string expected = BuildPacket("\2\1\0\0^"s + texts[i], 2);
    expected.resize(33);
    EXPECT_EQ(hid.Writes[i].Report, expected) << " report " << i;
    EXPECT_EQ(hid.Writes[i].AtMs, 0x0102 + 60 * static_cast<int>(i));
  }
  hid.Writes.clear();
  transceiver->SendData("");
  transceiver->SendData(std::string(21, 'x'));
  EXPECT_EQ(hid.Writes.size(), 1U + 2U);
}

TEST_F(Wireless, ADeviceThatTakesTooLittleIsReported) {
  hid.Devices = {{{3, kTransceiverLong}, {33, 8}}};
  Start();
  EXPECT_THROW(transceiver->LED_Set(1, 2), RuntimeError) << "nine bytes don't fit eight";
  hid.Devices[0].Lengths.Output = 0;
  Start();
  transceiver->LED_Set(1, 2);
  EXPECT_EQ(TakeWrite() + std::to_string(clock.NowMs()), "0");
}

TEST(SelfTimer, StopsAtZeroAndIgnoresNegativeIntervals) {
  VirtualClock clock;
  int fired = 0;
  SelfTimer timer(clock, [&] { ++fired; }, {});
  timer.SetInterval(250);
  timer.SetInterval(-1);
  clock.Advance(600);
  EXPECT_EQ(fired, 2);
  timer.SetEnabled(false);
  clock.Advance(1000);
  EXPECT_EQ(fired, 2);
  timer.SetEnabled(true);
  clock.Advance(250);
  EXPECT_EQ(fired, 3) << "begins its whole period anew";
  timer.SetInterval(0);
  clock.Advance(1000);
  EXPECT_EQ(fired, 3);
}

}  // namespace
}  // namespace pawnfield
