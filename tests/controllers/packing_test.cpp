// Numbers as bytes, Base64, and the decoding of the transceiver's reports.
#include "controllers/packing.h"

#include <gtest/gtest.h>

#include "controllers/transceiver_data.h"
#include "platform/hid_descriptor.h"
#include "platform/ports.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;

TEST(Packing, NumbersAsBytesAndBack) {
  EXPECT_EQ(PackLong(0x01020304, ByteOrder::Machine), "\x04\x03\x02\x01");
  EXPECT_EQ(PackLong(0x01020304, ByteOrder::Network), "\x01\x02\x03\x04");
  EXPECT_EQ(PackLongPadded(-2, ByteOrder::Machine), "\xFE\xFF\xFF\xFF\0\0\0\0"s);
  const std::string text = "\xFE\xFF\xFF\xFF\x01\x02"s;
  std::size_t pos = 0;
  EXPECT_EQ(GetLong(text, pos, ByteOrder::Machine), -2);
  EXPECT_EQ(pos, 5u);
  EXPECT_EQ(GetLong(text, pos, ByteOrder::Machine), 0) << "only two bytes are left";
  EXPECT_EQ(pos, 5u);
  EXPECT_EQ(GetShort(text, pos, ByteOrder::Network), 0x0102);
  EXPECT_EQ(GetShort(text, pos, ByteOrder::Network), 0);
  EXPECT_EQ(pos, 7u);
}

TEST(Packing, Base64) {
  EXPECT_EQ(MyEncode(""), "");
  EXPECT_EQ(MyEncode("f"), "Zg==");
  EXPECT_EQ(MyEncode("fo"), "Zm8=");
  EXPECT_EQ(MyEncode("\xFB\xFF\xBF"), "+/+/");
  EXPECT_EQ(MyEncode(PackLongPadded(114, ByteOrder::Machine)), "cgAAAAAAAAA=");
  EXPECT_EQ(MyEncode(std::string(54, 'a')).size(), 72u) << "no line end behind a full line";
  EXPECT_EQ(MyEncode(std::string(55, 'a')).substr(72), "\r\nYQ==");
}

struct ReportCase {
  const char* What;
  ReportBuffer Buffer;
  int Remote;
  const char* Button;
};

class Report : public ::testing::TestWithParam<ReportCase> {};

TEST_P(Report, Decodes) {
  TransceiverData data;
  data.Parse(GetParam().Buffer);
  EXPECT_EQ(data.Remote, GetParam().Remote) << GetParam().What;
  EXPECT_EQ(data.Button, GetParam().Button) << GetParam().What;
}

constexpr std::uint8_t Check(int remote, int button) { return static_cast<std::uint8_t>(0xFA ^ 9 ^ remote ^ button); }

INSTANTIATE_TEST_SUITE_P(
    Forms, Report,
    ::testing::Values(
        ReportCase{"buzz of 12", {0, 0xFA, 9, 0, 12, 5, 0, 0, Check(12, 5), 0xAF, 0}, 12, "BUZZ"},
        ReportCase{"wire 0 is remote 10", {0, 0xFA, 9, 0, 0, 4, 0, 0, Check(0, 4), 0xAF, 0}, 10, "A"},
        ReportCase{"wire 10 is remote 20", {0, 0xFA, 9, 0, 10, 0, 0, 0, Check(10, 0), 0xAF, 0}, 20, "POWERED"},
        ReportCase{"an unknown button", {0, 0xFA, 9, 0, 3, 6, 0, 0, Check(3, 6), 0xAF, 0}, 3, "ERROR"},
        ReportCase{"a wrong check byte", {0, 0xFA, 9, 0, 12, 5, 0, 0, Check(12, 4), 0xAF, 0}, -1, ""},
        ReportCase{"another command", {0, 0xFA, 9, 1, 12, 5, 0, 0, Check(12, 4), 0xAF, 0}, -1, ""},
        ReportCase{"another start", {0, 0xFB, 9, 0, 12, 5, 0, 0, Check(12, 4), 0xAF, 0}, -1, ""},
        ReportCase{"an empty report", ReportBuffer{0, 0, 2, 0, 0, 0}, -1, ""},
        ReportCase{"short buzz of 1", {0, 0, 1, 0}, 1, "BUZZ"}, ReportCase{"short A of 1", {0, 0, 128, 0}, 1, "A"},
        ReportCase{"a gap before buzz of 21", {0, 0, 21, 0}, -1, ""},
        ReportCase{"buzz of 21", {0, 0, 27, 0}, 21, "BUZZ"}, ReportCase{"the lowest D", {0, 0, 37, 0}, 80, "D"},
        ReportCase{"A of 39", {0, 1, 0, 0}, 39, "A"}, ReportCase{"the highest", {0, 1, 240, 0}, 69, "A"},
        ReportCase{"past the highest", {0, 1, 241, 0}, -1, ""}, ReportCase{"far past", {0, 255, 255, 0}, -1, ""},
        ReportCase{"51 has no C by rule", {0, 1, 152, 0}, -1, ""}, ReportCase{"C of 51", {0, 1, 142, 0}, 51, "C"},
        ReportCase{"D of 51 hides B of 52", {0, 1, 163, 0}, 51, "D"}, ReportCase{"D of 52", {0, 1, 143, 0}, 52, "D"},
        ReportCase{"a report number", {1, 0, 128, 0}, -1, ""}));

TEST(Report, EveryShortPressButTheHiddenOneHasItsCode) {
  int decoded = 0;
  for (int code = 0; code < 65536; ++code) {
    TransceiverData data;
    data.Parse({0, static_cast<std::uint8_t>(code >> 8), static_cast<std::uint8_t>(code), 0});
    decoded += data.Remote == -1 ? 0 : 1;
  }
  EXPECT_EQ(decoded, 349);
}

TEST(Report, ALyingLengthIsAnErrorAndNeverReadPastTheBuffer) {
  for (const int length : {0, 1, 6, 200, 255}) {
    TransceiverData data;
    EXPECT_THROW(data.Parse({0, 0xFA, static_cast<std::uint8_t>(length), 0, 1}), RuntimeError) << length;
    EXPECT_EQ(data.Remote, -1);
  }
  for (const std::size_t size : {0u, 1u, 2u, 5u}) {
    EXPECT_THROW(TransceiverData().Parse(ReportBuffer(size)), RuntimeError) << size;
  }
}

TEST(HidDescriptor, TellsTheLongestReportOfEachKind) {
  const std::string plain = "\x06\x00\xFF\x09\x01\xA1\x01\x75\x08\x95\x20\x09\x01\x81\x02\x95\x08\x91\x02\xC0"s;
  const HidReports reports = ReadReportDescriptor(plain);
  EXPECT_EQ(reports.Lengths.Input, 33u);
  EXPECT_EQ(reports.Lengths.Output, 9u);
  EXPECT_FALSE(reports.Numbered);
  const std::string numbered = "\x85\x01\x75\x01\x95\x09\x81\x02\xA4\x85\x02\x95\x11\x81\x02\xB4\x81\x02"s;
  EXPECT_EQ(ReadReportDescriptor(numbered).Lengths.Input, 4u) << "18 bits of number 1, 17 of number 2";
  EXPECT_TRUE(ReadReportDescriptor(numbered).Numbered);
  for (std::size_t cut = 0; cut < plain.size(); ++cut) {
    EXPECT_LE(ReadReportDescriptor(plain.substr(0, cut)).Lengths.Input, 33u);
  }
  EXPECT_LE(ReadReportDescriptor("\x77\xFF\xFF\xFF\xFF\x97\xFF\xFF\xFF\xFF\x81\x02"s).Lengths.Input, 16385u);
}

}  // namespace
}  // namespace pawnfield
