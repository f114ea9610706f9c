// The players: how many there are, and one of something for each of them, asked for by the player's number.
#pragma once

#include <array>
#include <cstddef>

#include "platform/ports.h"

namespace pawnfield {

inline constexpr int kPlayers = 3;

// The numbers of players, whether or not all of them play.
constexpr bool IsPlayer(int number) { return number >= 1 && number <= kPlayers; }

// The place of a player's part in an array of controls. Any other number is error 9, and never a neighbour's part.
inline std::size_t PlayerIndex(int player) {
  if (!IsPlayer(player)) throw SubscriptError();
  return static_cast<std::size_t>(player - 1);
}

template <typename T>
class PerPlayer {
 public:
  PerPlayer() = default;
  // NOLINTNEXTLINE(google-explicit-constructor): a list of values is one.
  template <typename... Each>
  PerPlayer(const Each&... each) : values_{each...} {
    static_assert(sizeof...(Each) == kPlayers, "a value for each player");
  }

  T& operator[](int player) { return values_[PlayerIndex(player)]; }
  const T& operator[](int player) const { return values_[PlayerIndex(player)]; }

  auto begin() { return values_.begin(); }
  auto end() { return values_.end(); }
  auto begin() const { return values_.begin(); }
  auto end() const { return values_.end(); }

 private:
  std::array<T, kPlayers> values_{};
};

}  // namespace pawnfield
