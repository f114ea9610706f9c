// What the ways of a press remember: the debounce of the wireless remotes. Owned by the show.
#pragma once

#include <array>
#include <cstdint>
#include <set>

namespace pawnfield {

struct PressState {
  // Milliseconds of the clock at a remote's last press that passed the debounce, by remote number; 0 for none.
  std::array<std::int64_t, 51> LastPressTick{};
  // Remotes that the operator has been told of because the show has no place for them.
  std::set<int> ToldRemotes;
};

}  // namespace pawnfield
