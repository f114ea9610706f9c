// What fitting a question of 256 characters costs, against stepping down from the first size.
#include <benchmark/benchmark.h>

#include "platform/sim/sim_devices.h"
#include "presentation/text_fitting.h"

namespace pawnfield {
namespace {

// The limits of a question in the console's and in the audience's box.
constexpr FitLimits kConsole{80, 6562, 6612, 4976};
constexpr FitLimits kAudience{120, 14092, 14142, 10268};

std::string LongQuestion() {
  std::string text;
  while (text.size() < 256) text += "Which of the rivers that rise in the Black Forest reaches a sea without tides? ";
  text.resize(255);
  return text + "?";
}

int PlainSearch(const TextMeasurer& measurer, Font font, const std::string& text, const FitLimits& limits) {
  int size = limits.FirstSize;
  for (; size >= 6; --size) {
    font.Size = size;
    const TextSize measured = measurer.Measure(font, text, limits.WrapWidth);
    if (measured.Height < limits.MaxHeight && measured.Width < limits.MaxWidth) break;
  }
  return size;
}

template <typename Search>
void Fit(benchmark::State& state, Search search, const FitLimits& limits) {
  const LinearTextMeasurer measurer;
  const std::string text = LongQuestion();
  const Font font{"Courier New", 28, true, true};
  int size = 0;
  for (auto _ : state) benchmark::DoNotOptimize(size = search(measurer, font, text, limits));
  if (size != PlainSearch(measurer, font, text, limits)) state.SkipWithError("another size than the plain search");
}

BENCHMARK_CAPTURE(Fit, console, FittingSize, kConsole);
BENCHMARK_CAPTURE(Fit, console_plain, PlainSearch, kConsole);
BENCHMARK_CAPTURE(Fit, audience, FittingSize, kAudience);
BENCHMARK_CAPTURE(Fit, audience_plain, PlainSearch, kAudience);

}  // namespace
}  // namespace pawnfield
