// Numbers as bytes, Base64, and the decoding of the transceiver's reports.
#include "devices/packing.h"

#include <gtest/gtest.h>

#include "devices/transceiver_data.h"
#include "platform/hid_descriptor.h"
#include "platform/ports.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;

TEST(Packing, NumbersAsBytesAndBase64) {
  EXPECT_EQ(PackLong(0x01020304, ByteOrder::Machine), "\x04\x03\x02\x01");
  EXPECT_EQ(PackLong(0x01020304, ByteOrder::Network), "\x01\x02\x03\x04");
  EXPECT_EQ(PackLongPadded(-2, ByteOrder::Machine), "\xFE\xFF\xFF\xFF\0\0\0\0"s);
  const std::string text = "\xFE\xFF\xFF\xFF\x01\x02"s;
  std::size_t pos = 0;
  EXPECT_EQ(GetLong(text, pos, ByteOrder::Machine), -2);
  EXPECT_EQ(GetLong(text, pos, ByteOrder::Machine), 0) << "only two bytes are left";
  EXPECT_EQ(pos, 5U);
  EXPECT_EQ(GetShort(text, pos, ByteOrder::Network), 0x0102);
  EXPECT_EQ(GetShort(text, pos, ByteOrder::Network), 0);
  EXPECT_EQ(pos, 7U);
  EXPECT_EQ(MyEncode("") + MyEncode("f") + MyEncode("fo") + MyEncode("\xFB\xFF\xBF"), "Zg==Zm8=+/+/");
  EXPECT_EQ(MyEncode(std::string(54, 'a')).size(), 72U) << "no line end behind a full line";
  EXPECT_EQ(MyEncode(std::string(55, 'a')).substr(72), "\r\nYQ==");
}

constexpr std::uint8_t Check(int remote, int button) { return static_cast<std::uint8_t>(0xFA ^ 9 ^ remote ^ button); }

std::string Decoded(const ReportBuffer& report) {
  TransceiverData data;
  data.Parse(report);
  return std::to_string(data.Remote) + data.Button;
}

TEST(Report, Decodes) {
  const std::tuple<const char*, ReportBuffer, const char*> cases[] = {
      {"buzz of 12", {0, 0xFA, 9, 0, 12, 5, 0, 0, Check(12, 5), 0xAF, 0}, "12BUZZ"},
      {"wire 0 is remote 10", {0, 0xFA, 9, 0, 0, 4, 0, 0, Check(0, 4), 0xAF, 0}, "10A"},
      {"wire 10 is remote 20", {0, 0xFA, 9, 0, 10, 0, 0, 0, Check(10, 0), 0xAF, 0}, "20POWERED"},
      {"an unknown button", {0, 0xFA, 9, 0, 3, 6, 0, 0, Check(3, 6), 0xAF, 0}, "3ERROR"},
      {"a wrong check byte", {0, 0xFA, 9, 0, 12, 5, 0, 0, Check(12, 4), 0xAF, 0}, "-1"},
      {"another command", {0, 0xFA, 9, 1, 12, 5, 0, 0, Check(12, 4), 0xAF, 0}, "-1"},
      {"another start", {0, 0xFB, 9, 0, 12, 5, 0, 0, Check(12, 4), 0xAF, 0}, "-1"},
      {"an empty report", ReportBuffer{0, 0, 2, 0, 0, 0}, "-1"},
      {"short A of 1", {0, 0, 128, 0}, "1A"},
      {"a gap before buzz of 21", {0, 0, 21, 0}, "-1"},
      {"buzz of 21", {0, 0, 27, 0}, "21BUZZ"},
      {"the lowest D", {0, 0, 37, 0}, "80D"},
      {"A of 39", {0, 1, 0, 0}, "39A"},
      {"the highest", {0, 1, 240, 0}, "69A"},
      {"far past", {0, 255, 255, 0}, "-1"},
      {"51 has no C by rule", {0, 1, 152, 0}, "-1"},
      {"C of 51", {0, 1, 142, 0}, "51C"},
      {"D of 51 hides B of 52", {0, 1, 163, 0}, "51D"},
      {"a report number", {1, 0, 128, 0}, "-1"}};
  for (const auto& [what, report, press] : cases) EXPECT_EQ(Decoded(report), press) << what;
  for (const ReportBuffer& lie : {ReportBuffer{0, 0xFA, 0, 0, 1}, {0, 0xFA, 200, 0, 1}, {0, 0}, {}}) {
    EXPECT_THROW(Decoded(lie), RuntimeError) << lie.size();
  }
  int decoded = 0;
  for (int code = 0; code < 65536; ++code) {
    const auto high = static_cast<std::uint8_t>(code >> 8), low = static_cast<std::uint8_t>(code);
    decoded += Decoded({0, high, low, 0}) == "-1" ? 0 : 1;
  }
  EXPECT_EQ(decoded, 349) << "every short press but the hidden one has its code";
}

TEST(HidDescriptor, TellsTheLongestReportOfEachKind) {
  const std::string plain = "\x06\x00\xFF\x09\x01\xA1\x01\x75\x08\x95\x20\x09\x01\x81\x02\x95\x08\x91\x02\xC0"s;
  const HidReports reports = ReadReportDescriptor(plain);
  EXPECT_TRUE(reports.Lengths.Input == 33 && reports.Lengths.Output == 9 && !reports.Numbered);
  const std::string numbered = "\x85\x01\x75\x01\x95\x09\x81\x02\xA4\x85\x02\x95\x11\x81\x02\xB4\x81\x02"s;
  EXPECT_EQ(ReadReportDescriptor(numbered).Lengths.Input, 4U) << "18 bits of number 1, 17 of number 2";
  EXPECT_TRUE(ReadReportDescriptor(numbered).Numbered);
  EXPECT_EQ(ReadReportDescriptor(plain.substr(0, 15)).Lengths.Input, 33U) << "cut off";
  EXPECT_LE(ReadReportDescriptor("\x77\xFF\xFF\xFF\xFF\x97\xFF\xFF\xFF\xFF\x81\x02"s).Lengths.Input, 16385U);
}

}  // namespace
}  // namespace pawnfield
