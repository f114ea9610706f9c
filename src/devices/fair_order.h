// Who of several phones was first: when a press counts, how long the first waits for the others, and the order with its
// margins. Times are microseconds of our clock.
#pragma once

#include <cstdint>
#include <vector>

namespace pawnfield {

enum class Weighing { ByArrival, ByTimePressed };

struct PhonePress {
  int Player = 0;
  std::int64_t ArrivedUs = 0;
  // When it counts, and how far that may be wrong.
  std::int64_t CountsUs = 0, ErrorUs = 0;
};

struct PlacedPress {
  int Player = 0;
  // Behind the first, and how far that may be wrong; 0 of the first.
  std::int64_t MarginUs = 0, ErrorUs = 0;
  // The error is larger than the margin.
  bool TooClose = false;
};

// When a press counts that was made, by its phone, at that time: never after its arrival, and never earlier than the
// longest way seen of that phone allows.
std::int64_t CountedTime(std::int64_t claimedUs, std::int64_t arrivedUs, std::int64_t longestWayUs);

// The presses in their order, which of two equal ones keeps the first to arrive before the other.
std::vector<PlacedPress> PlacePresses(std::vector<PhonePress> presses, Weighing weighing);

}  // namespace pawnfield
