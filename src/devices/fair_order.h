// Who of several phones was first: when a press counts, and in which order presses are. Times are microseconds of our
// clock.
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

// When a press counts that was made, by its phone, at that time: never after its arrival, and never earlier than the
// longest way seen of that phone allows.
std::int64_t CountedTime(std::int64_t claimedUs, std::int64_t arrivedUs, std::int64_t longestWayUs);

// Sorts them; of two equal ones the first to arrive stays before the other. By arrival a press counts when it came,
// which is known exactly.
void Weigh(std::vector<PhonePress>& presses, Weighing weighing);

}  // namespace pawnfield
