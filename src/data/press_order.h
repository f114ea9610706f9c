// RING-IN ORDER worked out: who was how far behind the first, and where that is less than can be told. The console, the
// pages and the show's record take it from here alone.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/press.h"

namespace pawnfield {

struct PlacedPress {
  Press Of;
  // Behind the first, and how far that may be wrong; 0 for the first and for who was early. Below 0 for a press that
  // was made before the first and came too late to win.
  std::int64_t MarginUs = 0, ErrorUs = 0;
  // The margin is smaller than its error.
  bool TooClose = false;
};

// Who was early, then the first, then the later ones by their times.
void SortPresses(std::vector<Press>& presses);
// The first of them; null where nobody rang in.
const Press* FirstOf(const std::vector<Press>& presses);
// Those that are no early ones, in their order; empty while nobody was first.
std::vector<PlacedPress> PlacePresses(const std::vector<Press>& presses);
// "first", "+12 ms (+-4)", "+1 ms (+-4), too close to call", with the sign of plus or minus as one character.
std::string MarginText(const PlacedPress& placed);

// To the nearest.
std::int64_t Milliseconds(std::int64_t us);

}  // namespace pawnfield
