// Whatever a page says decodes to one of the messages or to nothing, and whatever text goes out is JSON in ASCII.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "devices/page_message.h"

namespace {

using namespace pawnfield;

void Require(bool holds) {
  if (!holds) std::abort();
}

void RequireMessage(const PageMessage& message) {
  constexpr std::int64_t kMostUs = 1000000000000000;
  Require((message.Word == PageWord::Hello) == (message.Kind != PageKind::None));
  Require(message.SeatToken.empty() || (message.Kind == PageKind::Phone && message.SeatToken.size() == 32));
  Require(message.Number >= 0 && message.Number <= 999999999);
  Require(message.FirstUs >= 0 && message.FirstUs < kMostUs && message.SecondUs < kMostUs);
  if (message.Word == PageWord::Nothing) Require(message == PageMessage{});
  if (message.Word == PageWord::Pong) Require(message.SecondUs >= message.FirstUs);
  if (message.Word == PageWord::Seat) Require(message.Number <= 9);
}

void RequireJson(const std::string& json) {
  Require(json.size() >= 2 && json.front() == '"' && json.back() == '"');
  for (std::size_t at = 1; at + 1 < json.size(); ++at) {
    const char letter = json[at];
    Require(letter >= ' ' && letter <= '~' && letter != '"');
    if (letter != '\\') continue;
    Require(json[at + 1] == 'u' && at + 6 < json.size());
    at += 5;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  RequireMessage(DecodePageMessage(text));
  RequireJson(JsonText(text));
  return 0;
}
