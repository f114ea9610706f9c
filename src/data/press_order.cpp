#include "data/press_order.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace pawnfield {

namespace {

constexpr std::int64_t kMsUs = 1000;

// Whether a comes before b. The first leads whatever its time: a wired press is final when it comes, also where a
// phone's turns out to have been made before it.
bool ComesBefore(const Press& a, const Press& b) {
  const auto rank = [](const Press& press) {
    if (press.Place == PressPlace::Early) return 0;
    return press.Place == PressPlace::First ? 1 : 2;
  };
  return std::make_tuple(rank(a), a.TimeUs) < std::make_tuple(rank(b), b.TimeUs);
}

}  // namespace

std::int64_t Milliseconds(std::int64_t us) { return (us + (us < 0 ? -kMsUs / 2 : kMsUs / 2)) / kMsUs; }

void SortPresses(std::vector<Press>& presses) { std::stable_sort(presses.begin(), presses.end(), ComesBefore); }

const Press* FirstOf(const std::vector<Press>& presses) {
  const auto first =
      std::find_if(presses.begin(), presses.end(), [](const Press& p) { return p.Place == PressPlace::First; });
  return first == presses.end() ? nullptr : &*first;
}

std::vector<PlacedPress> PlacePresses(const std::vector<Press>& presses) {
  const Press* first = FirstOf(presses);
  std::vector<PlacedPress> placed;
  if (first == nullptr) return placed;
  for (const Press& press : presses) {
    if (press.Place == PressPlace::Early) continue;
    PlacedPress place{press};
    if (&press != first) {
      place.MarginUs = press.TimeUs - first->TimeUs;
      place.ErrorUs = press.ErrorUs + first->ErrorUs;
      place.TooClose = std::abs(place.MarginUs) < place.ErrorUs;
    }
    placed.push_back(place);
  }
  return placed;
}

std::string MarginText(const PlacedPress& placed) {
  if (placed.Of.Place == PressPlace::First) return "first";
  std::string text =
      (placed.MarginUs < 0 ? "-" : "+") + std::to_string(std::abs(Milliseconds(placed.MarginUs))) + " ms";
  // An error that rounds to nothing isn't worth its room.
  const std::int64_t error = Milliseconds(placed.ErrorUs);
  if (error > 0) text += " (\xB1" + std::to_string(error) + ")";
  return placed.TooClose ? text + ", too close to call" : text;
}

}  // namespace pawnfield
