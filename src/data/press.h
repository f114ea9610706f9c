// One press of a player's button, as plain values: who, by which way, when, and how exactly that is known.
#pragma once

#include <cstdint>

namespace pawnfield {

enum class PressWay { Hand, Key, Remote, Pad, Phone };

enum class PressPlace {
  First,  // Rang in.
  Later,  // Came within two seconds of the first.
  Early,  // Came while no question was open.
};

struct Press {
  int Player = 0;
  PressWay Way = PressWay::Hand;
  // Microseconds of the clock that never goes back, and by how much they may be wrong either way.
  std::int64_t TimeUs = 0;
  std::int64_t ErrorUs = 0;
  PressPlace Place = PressPlace::First;
  bool operator==(const Press&) const = default;
};

// How exactly a way tells the time of a press when nothing better is known of it, in microseconds.
constexpr std::int64_t ErrorOfWay(PressWay way) {
  switch (way) {
    case PressWay::Remote:
      // An interval of USB, in which the device is asked once, and its own radio's.
      return 2000;
    case PressWay::Pad:
      // The eight bytes of a frame at 9600 baud, which another's frame may hold up, and the adapter's interval.
      return 10500;
    case PressWay::Phone:
      return 30000;
    case PressWay::Key:
      // The way through the display server, and the keyboard's interval.
      return 18000;
    case PressWay::Hand:
      break;
  }
  return 8000;
}

// What a report that no thread has stamped adds to that: it is found by the poll.
inline constexpr std::int64_t kPollErrorUs = 30000;

}  // namespace pawnfield
