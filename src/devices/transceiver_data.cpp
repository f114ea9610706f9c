#include "devices/transceiver_data.h"

#include <algorithm>

#include "platform/ports.h"

namespace pawnfield {

namespace {

constexpr std::uint8_t kStartByte = 0xFA;
constexpr int kRemotes = 80;
constexpr std::size_t kShortBuffer = 4;

struct Press {
  std::int16_t Remote = -1;
  const char* Button = "";
};

constexpr std::size_t kCodes = 512;
using CodeTable = std::array<Press, kCodes>;

// The code of a remote's button by the rule that all remotes but 51 follow; button 0 is A, 3 is D.
constexpr int CodeByRule(int remote, int button) {
  constexpr std::array<int, 8> kBase{127, 187, 307, 247, 367, 427, 487, 67};
  return kBase[static_cast<std::size_t>((remote - 1) / 10)] + remote % 10 - 10 * button;
}

// Remote 51 was given codes of its own for C and D; one of them is also the B of remote 52, which is never reached.
constexpr int CodeOf(int remote, int button) {
  if (remote == 51 && button == 2) return 398;
  if (remote == 51 && button == 3) return 419;
  return CodeByRule(remote, button);
}

constexpr void Enter(CodeTable& table, int code, int remote, const char* button) {
  Press& place = table[static_cast<std::size_t>(code)];
  if (place.Remote < 0) place = {static_cast<std::int16_t>(remote), button};
}

// Where two rows share a code, the lower remote has it.
constexpr CodeTable MakeCodeTable() {
  constexpr std::array<const char*, 4> kLetters{"A", "B", "C", "D"};
  CodeTable table{};
  for (int remote = 1; remote <= kRemotes; ++remote) {
    for (std::size_t i = 0; i < kLetters.size(); ++i) {
      Enter(table, CodeOf(remote, static_cast<int>(i)), remote, kLetters[i]);
    }
    if (remote <= 30) Enter(table, remote <= 20 ? remote : remote + 6, remote, "BUZZ");
  }
  return table;
}

constexpr CodeTable kCodeTable = MakeCodeTable();

std::uint8_t ByteAt(const ReportBuffer& data, int index) {
  if (static_cast<std::size_t>(index) >= data.size()) throw SubscriptError();
  return data[static_cast<std::size_t>(index)];
}

const char* LongButton(int code) {
  constexpr std::array<const char*, 6> kButtons{"POWERED", "D", "C", "B", "A", "BUZZ"};
  return code < static_cast<int>(kButtons.size()) ? kButtons[static_cast<std::size_t>(code)] : "ERROR";
}

}  // namespace

std::array<std::uint8_t, 4> TransceiverData::BytesFromValues(int first, int second, int third, int fourth) {
  return {static_cast<std::uint8_t>(first), static_cast<std::uint8_t>(second), static_cast<std::uint8_t>(third),
          static_cast<std::uint8_t>(fourth)};
}

bool TransceiverData::BytesEqual(const ReportBuffer& a, const std::array<std::uint8_t, 4>& b) {
  return a.size() == b.size() && std::equal(b.begin(), b.end(), a.begin());
}

void TransceiverData::Parse(const ReportBuffer& data) {
  if (data.size() == kShortBuffer) {
    ParseShortReport(data);
  } else {
    ParseLongReport(data);
  }
}

void TransceiverData::ParseShortReport(const ReportBuffer& data) {
  Remote = -1;
  const std::size_t code = static_cast<std::size_t>(data[1]) << 8 | data[2];
  if (code >= kCodes || !BytesEqual(data, BytesFromValues(0, data[1], data[2], 0))) return;
  Remote = kCodeTable[code].Remote;
  Button = kCodeTable[code].Button;
}

void TransceiverData::ParseLongReport(const ReportBuffer& data) {
  Remote = -1;
  const int length = ByteAt(data, 2);
  if (length < 2) throw SubscriptError();
  std::uint8_t check = 0;
  for (int i = 1; i <= length - 2; ++i) check = static_cast<std::uint8_t>(check ^ ByteAt(data, i));
  const bool sound = check == ByteAt(data, length - 1);
  const bool press = ByteAt(data, 3) == 0;
  if (!sound || !press || ByteAt(data, 1) != kStartByte) return;
  const int number = ByteAt(data, 4);
  Button = LongButton(ByteAt(data, 5));
  Remote = static_cast<std::int16_t>(number % 10 == 0 ? number + 10 : number);
}

}  // namespace pawnfield
