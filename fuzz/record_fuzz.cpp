// The reader of a show's record: whatever bytes a disk gives it, what it makes of them can be written and read again,
// and can be restored.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "record/record_lines.h"

using namespace pawnfield;

namespace {

// The bytes as lines whose sums are right, so that what stands behind the sum is reached too.
std::string WithSums(std::string_view bytes) {
  std::string record = FormatHead({});
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    if (const auto json = Json::Parse(bytes.substr(0, end))) {
      if (!json->AsMembers().empty()) record += FormatLine(json->AsMembers());
    }
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return record;
}

void Check(std::string_view bytes) {
  const auto record = ParseRecord(bytes);
  if (!record) return;
  if (record->WholeBytes > bytes.size()) std::abort();
  if (!record->Game.Events.empty() && record->Game.Now >= record->Game.Events.size()) std::abort();
  for (const RecordedEvent& event : record->Events) {
    const auto again = ParseRecord(FormatHead({}) + FormatEvent(event));
    if (!again || again->Events.size() != 1 || !(again->Events[0].After == event.After)) std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (const auto json = Json::Parse(bytes); json && Json::Parse(json->Text()) != json) std::abort();
  Check(bytes);
  Check(WithSums(bytes));
  return 0;
}
