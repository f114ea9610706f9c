// How often the whole program wakes up while it stands in standby and nobody touches it.

#include <sys/resource.h>

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/desktop_program.h"
#include "figures.h"
#include "forms/small_forms.h"
#include "program/main_load.h"
#include "program/program.h"

namespace pawnfield {

namespace {

constexpr int kSettleMs = 5000;
constexpr int kIdleMs = 20000;

// Nothing but the program's own timers and events runs meanwhile.
void Stand(int ms) {
  QEventLoop loop;
  QTimer::singleShot(ms, &loop, &QEventLoop::quit);
  loop.exec();
}

}  // namespace

long long Waits() {
  // The process's own count keeps those of threads that have ended.
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_nvcsw;
}

bool MeasureWakeUps() {
  const QTemporaryDir folder;
  DesktopProgram program(PlacesIn(folder.path()));
  Main(program.TheShow());
  LoadMainForm(program.TheShow());
  program.TheShow().frmLoading.Visible = false;
  program.TheShow().frmAlwaysLoaded.tmrAlwaysLoaded.Enabled = false;
  Stand(kSettleMs);
  const long long before = Waits();
  Stand(kIdleMs);
  PrintMedian("Idle/wake_ups", {static_cast<double>(Waits() - before) / (kIdleMs / 1000.0)});
  return true;
}

}  // namespace pawnfield
