// Measures the real program on the present display.

#include <QApplication>
#include <algorithm>
#include <cstdio>

#include "figures.h"
#include "platform/desktop/desktop_program.h"

namespace pawnfield {

void PrintMedian(const std::string& name, std::vector<double> milliseconds) {
  std::sort(milliseconds.begin(), milliseconds.end());
  const double median = milliseconds[milliseconds.size() / 2];
  std::printf("\"%s_median\",%zu,%f,%f,ms\n", name.c_str(), milliseconds.size(), median, median);
}

}  // namespace pawnfield

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  pawnfield::PrepareApplication();
  if (argc == 3) return pawnfield::RunStartUp(std::stoll(argv[1]), QString::fromLocal8Bit(argv[2]));
  pawnfield::MeasureFits();
  const bool painted = pawnfield::MeasurePaints();
  const bool pressed = pawnfield::MeasurePresses();
  return pawnfield::MeasureStartUp() && painted && pressed ? 0 : 1;
}
