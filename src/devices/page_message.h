// What the pages of phones, hosts and scores say to the program, and how the program's own words to them are written.
//
// A page says one message in each frame: words parted by single blanks, in ASCII, at most 1,024 bytes.
//   hello phone PIN [TOKEN]   a phone that wants a seat, or its seat back: the token is the 32 digits it was given
//   hello host PIN            the host's page
//   hello scores              the scores' page
//   hello events TOKEN        a control device that wants to hear what happens
//   seat N                    the phone takes that seat
//   leave                     the phone gives its seat back
//   pong N RECEIVED SENT      the answer to ping N, and when by the page's clock it came and went
//   press TIME                the button went down then, by the page's clock
// Times are milliseconds with up to three decimals. What is anything else says nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace pawnfield {

inline constexpr std::size_t kPageMessageBytes = 1024;

enum class PageWord { Nothing, Hello, Seat, Leave, Pong, Press };
enum class PageKind { None, Phone, Host, Scores, Events };

struct PageMessage {
  PageWord Word = PageWord::Nothing;
  // Of Hello: who says it, the PIN or the token it knows, and the token of the seat a phone had.
  PageKind Kind = PageKind::None;
  std::string Secret{}, SeatToken{};
  // Of Seat, the seat; of Pong, the ping's number.
  int Number = 0;
  // Microseconds of the page's clock: Pong's two times, and Press's as the first.
  std::int64_t FirstUs = 0, SecondUs = 0;
  bool operator==(const PageMessage&) const = default;
};

PageMessage DecodePageMessage(std::string_view text);

// One flat object of JSON, written member by member. Texts are the core's: Windows-1252 with escapes.
class JsonObject {
 public:
  JsonObject& Text(std::string_view name, std::string_view value);
  JsonObject& Number(std::string_view name, std::int64_t value);
  JsonObject& Truth(std::string_view name, bool value);
  // A value that is JSON already.
  JsonObject& Json(std::string_view name, std::string_view value);
  std::string Done() const { return "{" + members_ + "}"; }

 private:
  void Name(std::string_view name);
  std::string members_;
};

// The text in quotation marks, in ASCII: whatever has no letter there is written by its code.
std::string JsonText(std::string_view text);

}  // namespace pawnfield
