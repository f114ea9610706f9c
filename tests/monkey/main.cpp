// Runs the random operator: pawnfield_monkey FIRST_SEED SEEDS ACTIONS. A failing run prints its seed and the shortest
// list of actions found that still fails.
#include <cstdlib>
#include <iostream>
#include <memory>

#include "monkey/monkey.h"

namespace {

using namespace pawnfield;

struct Failure {
  std::string what;
  std::vector<Action> actions;
};

// The same fault, whatever the numbers in it are.
std::string KindOf(const std::string& fault) { return fault.substr(0, fault.find_first_of("0123456789\"")); }

std::string Replay(std::uint32_t seed, const std::vector<Action>& actions) {
  MonkeyShow show(seed);
  for (const Action& action : actions) {
    const std::string fault = show.Do(action);
    if (!fault.empty()) return fault;
  }
  return {};
}

Failure Run(std::uint32_t seed, int actions) {
  MonkeyShow show(seed);
  Chance chance(seed + 1000003);
  Failure failure;
  for (int i = 0; i < actions; ++i) {
    failure.actions.push_back(show.Choose(chance));
    failure.what = show.Do(failure.actions.back());
    if (!failure.what.empty()) return failure;
  }
  return failure;
}

// Leaves out ever smaller stretches while the rest still fails in the same way.
Failure Shorten(std::uint32_t seed, Failure failure) {
  for (std::size_t length = failure.actions.size() / 2; length > 0; length /= 2) {
    for (std::size_t from = 0; from + length <= failure.actions.size();) {
      std::vector<Action> fewer = failure.actions;
      const auto first = fewer.begin() + static_cast<std::ptrdiff_t>(from);
      fewer.erase(first, first + static_cast<std::ptrdiff_t>(length));
      const std::string fault = Replay(seed, fewer);
      if (!fault.empty() && KindOf(fault) == KindOf(failure.what)) {
        failure = {fault, fewer};
      } else {
        from += length;
      }
    }
  }
  return failure;
}

void Report(std::uint32_t seed, const Failure& failure) {
  std::cout << "seed " << seed << ", " << failure.actions.size() << " actions: " << failure.what << "\n";
  for (const Action& action : failure.actions) std::cout << "  " << Describe(action) << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: pawnfield_monkey FIRST_SEED SEEDS ACTIONS\n";
    return 2;
  }
  const auto first = static_cast<std::uint32_t>(std::strtoul(argv[1], nullptr, 10));
  const auto seeds = static_cast<std::uint32_t>(std::strtoul(argv[2], nullptr, 10));
  const int actions = std::atoi(argv[3]);
  int failed = 0;
  for (std::uint32_t seed = first; seed < first + seeds; ++seed) {
    const Failure failure = Run(seed, actions);
    if (failure.what.empty()) continue;
    ++failed;
    Report(seed, Shorten(seed, failure));
  }
  std::cout << seeds << " seeds of " << actions << " actions, " << failed << " failed\n";
  return failed == 0 ? 0 : 1;
}
