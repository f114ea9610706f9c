#include "platform/hid_descriptor.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <vector>

namespace pawnfield {

namespace {

// Prefixes of the items that count here, without the two bits of their size.
constexpr int kInput = 0x80;
constexpr int kOutput = 0x90;
constexpr int kReportSize = 0x74;
constexpr int kReportId = 0x84;
constexpr int kReportCount = 0x94;
constexpr int kPush = 0xA4;
constexpr int kPop = 0xB4;
constexpr int kLongItem = 0xFE;

constexpr std::uint64_t kMostBits = std::uint64_t{16384} * 8;
// Deeper than any device nests them.
constexpr std::size_t kMostSaved = 64;

struct Globals {
  std::uint64_t Size = 0;
  std::uint64_t Count = 0;
  std::uint64_t Id = 0;
};

using BitsById = std::map<std::uint64_t, std::uint64_t>;

struct Reader {
  Globals Now;
  std::vector<Globals> Saved;
  BitsById Inputs, Outputs;
  bool Numbered = false;

  void AddField(BitsById& bits) const {
    std::uint64_t& sum = bits[Now.Id & 255];
    sum = std::min(kMostBits, sum + std::min(kMostBits, Now.Size & 0xFFFF) * std::min(kMostBits, Now.Count & 0xFFFF));
  }

  void Take(int item, std::uint64_t value) {
    if (item == kInput) AddField(Inputs);
    if (item == kOutput) AddField(Outputs);
    if (item == kReportSize) Now.Size = value;
    if (item == kReportCount) Now.Count = value;
    if (item == kReportId) {
      Now.Id = value;
      Numbered = true;
    }
    if (item == kPush && Saved.size() < kMostSaved) Saved.push_back(Now);
    if (item == kPop && !Saved.empty()) {
      Now = Saved.back();
      Saved.pop_back();
    }
  }
};

std::size_t LongestReport(const BitsById& bitsById) {
  std::uint64_t most = 0;
  for (const auto& [id, bits] : bitsById) most = std::max(most, bits);
  return most == 0 ? 0 : static_cast<std::size_t>((most + 7) / 8) + 1;
}

}  // namespace

HidReports ReadReportDescriptor(const std::string& descriptor) {
  Reader reader;
  const auto byte = [&](std::size_t index) { return static_cast<std::uint8_t>(descriptor[index]); };
  std::size_t pos = 0;
  while (pos < descriptor.size()) {
    const int prefix = byte(pos++);
    if (prefix == kLongItem) {
      pos += pos < descriptor.size() ? std::size_t{2} + byte(pos) : 0;
      continue;
    }
    const std::size_t length = (prefix & 3) == 3 ? 4 : static_cast<std::size_t>(prefix & 3);
    if (descriptor.size() - pos < length) break;
    std::uint64_t value = 0;
    for (std::size_t i = length; i-- > 0;) value = value << 8 | byte(pos + i);
    pos += length;
    reader.Take(prefix & ~3, value);
  }
  return {{LongestReport(reader.Inputs), LongestReport(reader.Outputs)}, reader.Numbered};
}

}  // namespace pawnfield
