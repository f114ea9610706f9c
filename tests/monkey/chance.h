// Chance that a seed decides.
#pragma once

#include <cstdint>
#include <random>

namespace pawnfield {

// Reads the same on every machine, unlike the distributions of the standard library.
class Chance {
 public:
  explicit Chance(std::uint32_t seed) : engine_(seed) {}
  // 0 to below count; 0 when there is nothing to choose from.
  std::size_t Below(std::size_t count) { return count == 0 ? 0 : engine_() % count; }
  bool OneIn(std::size_t count) { return Below(count) == 0; }
  std::uint32_t Next() { return static_cast<std::uint32_t>(engine_()); }

 private:
  std::mt19937 engine_;
};

}  // namespace pawnfield
