#include "devices/fair_order.h"

#include <algorithm>
#include <tuple>

#include "devices/clock_offset.h"

namespace pawnfield {

std::int64_t CountedTime(std::int64_t claimedUs, std::int64_t arrivedUs, std::int64_t longestWayUs) {
  const std::int64_t way = std::clamp<std::int64_t>(longestWayUs, 0, kLongestWayUs);
  return std::clamp(claimedUs, arrivedUs - way, arrivedUs);
}

void Weigh(std::vector<PhonePress>& presses, Weighing weighing) {
  for (PhonePress& press : presses) {
    if (weighing != Weighing::ByArrival) break;
    press.CountsUs = press.ArrivedUs;
    press.ErrorUs = 0;
  }
  std::sort(presses.begin(), presses.end(), [](const PhonePress& one, const PhonePress& other) {
    return std::tie(one.CountsUs, one.ArrivedUs) < std::tie(other.CountsUs, other.ArrivedUs);
  });
}

}  // namespace pawnfield
