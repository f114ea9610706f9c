// What loading a set costs, by its count of questions; every line is as long as it may be.
#include <benchmark/benchmark.h>

#include "sets/set_file.h"
#include "show/show.h"
#include "sim/sim_platform.h"

namespace pawnfield {
namespace {

std::string FullSet(int count) {
  std::string bytes;
  for (int i = 0; i < count; ++i) {
    bytes += std::string(kQuestionLength, 'q') + "\r\n" + std::string(kAnswerLength, 'a') +
             "\r\nT#Courier New#28#True#True#16777215#\r\n";
  }
  return bytes;
}

void LoadSet(benchmark::State& state) {
  SimPlatform machine;
  Show show(machine.platform);
  const int count = static_cast<int>(state.range(0));
  const std::string path = "C:\\Pawnfield\\Trivia Sets\\full.txt";
  machine.files.Put(path, FullSet(count));
  for (auto _ : state) benchmark::DoNotOptimize(LoadGameSet(show, path));
  if (show.NumGameQuestions != count) state.SkipWithError("questions are missing");
}

BENCHMARK(LoadSet)->Arg(25)->Arg(50)->Arg(101);

}  // namespace
}  // namespace pawnfield
