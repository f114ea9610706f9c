// What fitting a question of 256 characters costs, against stepping down from the first size.
#include <benchmark/benchmark.h>

#include "plain_search.h"
#include "presentation/text_fitting.h"
#include "sim/sim_devices.h"

namespace pawnfield {
namespace {

template <typename Search>
void Fit(benchmark::State& state, Search search, const FitLimits& limits) {
  const LinearTextMeasurer measurer;
  const std::string text = LongQuestion();
  const Font font{"Courier New", 28, true, true};
  int size = 0;
  for (auto _ : state) benchmark::DoNotOptimize(size = search(measurer, font, text, limits));
  if (size != PlainSearch(measurer, font, text, limits)) state.SkipWithError("another size than the plain search");
}

BENCHMARK_CAPTURE(Fit, console, FittingSize, kConsoleLimits);
BENCHMARK_CAPTURE(Fit, console_plain, PlainSearch, kConsoleLimits);
BENCHMARK_CAPTURE(Fit, audience, FittingSize, kAudienceLimits);
BENCHMARK_CAPTURE(Fit, audience_plain, PlainSearch, kAudienceLimits);

}  // namespace
}  // namespace pawnfield
