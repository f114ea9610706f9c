#include <cstdio>
#include <ctime>

#include "../plain_search.h"
#include "desktop/system/qt_readers.h"
#include "figures.h"

namespace pawnfield {

namespace {

constexpr int kRounds = 15;

template <typename Search>
int Measure(const std::string& name, Search search, const FitLimits& limits) {
  const QtTextMeasurer measurer;
  const std::string text = LongQuestion();
  const Font font{"Courier New", 28, true, true};
  std::vector<double> times;
  int size = 0;
  for (int i = 0; i < kRounds; ++i) {
    const std::clock_t start = std::clock();
    size = search(measurer, font, text, limits);
    times.push_back(static_cast<double>(std::clock() - start) * 1000 / CLOCKS_PER_SEC);
  }
  PrintMedian("DesktopFit/" + name, times);
  return size;
}

// Without the quick figure the comparison counts as failed.
void Compare(const std::string& screen, const FitLimits& limits) {
  const int plain = Measure(screen + "_plain", PlainSearch, limits);
  const int quick = FittingSize(QtTextMeasurer(), {"Courier New", 28, true, true}, LongQuestion(), limits);
  if (quick == plain) {
    Measure(screen, FittingSize, limits);
  } else {
    std::fprintf(stderr, "%s: the plain search finds %d, the quick one %d\n", screen.c_str(), plain, quick);
  }
}

}  // namespace

void MeasureFits() {
  Compare("console", kConsoleLimits);
  Compare("audience", kAudienceLimits);
}

}  // namespace pawnfield
