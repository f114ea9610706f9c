// How often the whole program wakes up while it stands in standby and nobody touches it.

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/desktop_program.h"
#include "desktop/files/native_path.h"
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
  constexpr const char* kLine = "\nvoluntary_ctxt_switches:";
  long long waits = 0;
  for (const QString& thread : QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    QFile status("/proc/self/task/" + thread + "/status");
    if (!status.open(QIODevice::ReadOnly)) continue;
    const QByteArray text = status.readAll();
    const qsizetype line = text.indexOf(kLine);
    if (line >= 0) waits += text.mid(line + qsizetype(qstrlen(kLine))).split('\n')[0].trimmed().toLongLong();
  }
  return waits;
}

bool MeasureWakeUps() {
  const QTemporaryDir folder;
  DesktopPlaces places;
  places.folders.DataRoot = SpelledPath(folder.path() + "/data");
  places.configFolder = folder.path() + "/config";
  places.runtimeFolder = folder.path() + "/run";
  DesktopProgram program(places);
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
