// Measures the real program on the present display.

#include <QApplication>
#include <algorithm>
#include <cstdio>

#include "desktop/desktop_program.h"
#include "desktop/files/native_path.h"
#include "figures.h"

namespace pawnfield {

DesktopPlaces PlacesIn(const QString& folder) {
  DesktopPlaces places;
  places.folders.DataRoot = SpelledPath(folder + "/data");
  places.configFolder = folder + "/config";
  places.runtimeFolder = folder + "/run";
  return places;
}

void PrintMedian(const std::string& name, std::vector<double> milliseconds) {
  std::sort(milliseconds.begin(), milliseconds.end());
  const double median = milliseconds[milliseconds.size() / 2];
  std::printf("\"%s_median\",%zu,%f,%f,ms\n", name.c_str(), milliseconds.size(), median, median);
  // A run of minutes is followed, and one that is cut off keeps what it has.
  std::fflush(stdout);
}

void PrintPercentile(const std::string& name, std::vector<double> milliseconds, std::size_t percent) {
  std::sort(milliseconds.begin(), milliseconds.end());
  PrintMedian(name, {milliseconds[milliseconds.size() * percent / 100]});
}

void PrintPercentiles(const std::string& name, const std::vector<double>& milliseconds) {
  for (const std::size_t percent : {50, 95, 99}) {
    PrintPercentile(name + "_" + std::to_string(percent), milliseconds, percent);
  }
}

}  // namespace pawnfield

// Usage: pawnfield_desktop_bench [MEASURE...], each of fits, paints, presses, ways, touches, pairs,
// idle, attack, record, sound, film, standby and start; all without one.
int main(int argc, char** argv) {
  // A figure is seen when it is measured, and is there when a later one fails.
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  QApplication application(argc, argv);
  pawnfield::PrepareApplication();
  const QStringList words = QApplication::arguments().mid(1);
  if (words.size() == 3 && words[0].toLongLong() > 0) {
    const long long started = words[0].toLongLong();
    if (words[1] == "interrupted") return pawnfield::RunInterrupted(started, words[2]);
    return words[1] == "plain" ? pawnfield::RunPlain(started) : pawnfield::RunStartUp(started, words[2]);
  }
  using Measure = std::pair<const char*, bool (*)()>;
  bool all = true;
  for (const auto& [name, measure] : {Measure{"fits",
                                              [] {
                                                pawnfield::MeasureFits();
                                                return true;
                                              }},
                                      {"paints", pawnfield::MeasurePaints},
                                      {"presses", pawnfield::MeasurePresses},
                                      {"ways", pawnfield::MeasureWays},
                                      {"touches", pawnfield::MeasureTouches},
                                      {"pairs", pawnfield::MeasurePairs},
                                      {"idle", pawnfield::MeasureIdlePages},
                                      {"attack", pawnfield::MeasureAttack},
                                      {"record", pawnfield::MeasureRecord},
                                      {"sound", pawnfield::MeasureSoundStart},
                                      {"film", pawnfield::MeasureFilm},
                                      {"standby", pawnfield::MeasureWakeUps},
                                      {"start", pawnfield::MeasureStartUp}}) {
    if (!words.isEmpty() && !words.contains(name)) continue;
    if (measure()) continue;
    std::fprintf(stderr, "%s: failed\n", name);
    all = false;
  }
  return all ? 0 : 1;
}
