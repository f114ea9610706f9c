// What the show keeps of the pages on the local network: who is connected, whose seat is whose, and the presses that
// are being weighed. Owned by the show.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "data/players.h"
#include "devices/clock_offset.h"
#include "devices/fair_order.h"
#include "devices/page_message.h"
#include "platform/pages.h"

namespace pawnfield {

class Button;

// A player's seat, which a phone holds by its token.
struct PhoneSeat {
  std::string Token;
  bool Locked = false;
  // The page that sits there now, 0 for none.
  std::uint64_t Page = 0;
  std::int64_t LastPressUs = -1;
};

struct ConnectedPage {
  std::string Address;
  // None until its hello has been taken.
  PageKind Kind = PageKind::None;
  // Of a phone, 0 before it has one.
  int Seat = 0;
  // What it was told last, so that nothing is told twice.
  std::string Told;
  // Pings on their way, by their number.
  std::map<int, std::int64_t> Pings;
  std::int64_t LastPingUs = 0;
  ClockOffset Clock;
};

// Wrong PINs from an address, and until when it is refused.
struct WrongGuesses {
  std::vector<std::int64_t> AtUs;
  std::int64_t RefusedUntilUs = 0;
};

// What control devices have been told of the game.
struct ToldGame {
  int Question = 0, Holder = 0;
  bool Over = false;
  PerPlayer<std::string> Scores;
  std::string Board;
  int Verdicts = 0;
};

struct PageState {
  bool On = false;
  PagesPlace Place;
  // Four digits, six, and a token of 32 digits.
  std::string Pin, HostPin, ControlToken;
  Weighing Weighs = Weighing::ByTimePressed;
  bool KeepOn = false;
  PerPlayer<PhoneSeat> Seats;
  std::map<std::uint64_t, ConnectedPage> Pages;
  std::map<std::string, WrongGuesses> Guesses;
  int LastPing = 0;
  // When the question opened, before which no press counts; -1 while none is open.
  std::int64_t OpenedUs = -1;
  // Presses that wait for those which may have been earlier.
  std::vector<PhonePress> Weighed;
  ToldGame Told;
  // Of the console, what a control device wants its operator to be asked for; null for nothing.
  Button* AskedFor = nullptr;
};

}  // namespace pawnfield
