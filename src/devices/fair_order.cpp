#include "devices/fair_order.h"

#include <algorithm>

#include "devices/clock_offset.h"

namespace pawnfield {

std::int64_t CountedTime(std::int64_t claimedUs, std::int64_t arrivedUs, std::int64_t longestWayUs) {
  const std::int64_t way = std::clamp<std::int64_t>(longestWayUs, 0, kLongestWayUs);
  return std::clamp(claimedUs, arrivedUs - way, arrivedUs);
}

std::vector<PlacedPress> PlacePresses(std::vector<PhonePress> presses, Weighing weighing) {
  const bool byArrival = weighing == Weighing::ByArrival;
  const auto time = [byArrival](const PhonePress& press) { return byArrival ? press.ArrivedUs : press.CountsUs; };
  std::sort(presses.begin(), presses.end(), [&](const PhonePress& one, const PhonePress& other) {
    return time(one) != time(other) ? time(one) < time(other) : one.ArrivedUs < other.ArrivedUs;
  });
  std::vector<PlacedPress> placed;
  for (const PhonePress& press : presses) {
    PlacedPress place{.Player = press.Player, .MarginUs = time(press) - time(presses.front())};
    if (!placed.empty() && !byArrival) place.ErrorUs = press.ErrorUs + presses.front().ErrorUs;
    place.TooClose = place.ErrorUs > place.MarginUs;
    placed.push_back(place);
  }
  return placed;
}

}  // namespace pawnfield
