#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <optional>

#include "desktop/desktop_program.h"
#include "desktop/files/native_path.h"
#include "figures.h"
#include "forms/small_forms.h"
#include "program/main_load.h"
#include "program/program.h"

namespace pawnfield {

namespace {

constexpr int kStarts = 7;
constexpr int kLongestStartMs = 30000;

long long NowNs() {
  return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

// Calls back once, after a window's first paint has gone to the display. A part of the window that covers it whole
// takes its paint, so the parts count too.
class FirstPaint : public QObject {
 public:
  FirstPaint(QWidget& window, std::function<void()> painted) : window_(window), painted_(std::move(painted)) {
    qApp->installEventFilter(this);
  }
  bool eventFilter(QObject* part, QEvent* event) override {
    if (event->type() != QEvent::Paint || !part->isWidgetType()) return false;
    if (static_cast<QWidget*>(part)->window() != &window_) return false;
    qApp->removeEventFilter(this);
    QTimer::singleShot(0, this, painted_);
    return false;
  }

 private:
  QWidget& window_;
  std::function<void()> painted_;
};

QWidget& WindowOf(DesktopProgram& program, const Form& form) {
  for (FormWindow* window : program.Windows()) {
    if (window->objectName().toStdString() == form.Name()) return *window;
  }
  return program.Console();
}

DesktopPlaces PlacesBelow(const QString& folder) {
  DesktopPlaces places;
  places.folders.DataRoot = SpelledPath(folder + "/Ostara Show Kit Data").value_or("");
  places.configFolder = folder + "/config";
  places.runtimeFolder = folder + "/run";
  return places;
}

struct StartTimes {
  double firstPaint = 0, console = 0;
};

std::optional<StartTimes> StartOnce() {
  const QTemporaryDir folder;
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(QCoreApplication::applicationFilePath(), {QString::number(NowNs()), folder.path()});
  if (!process.waitForFinished(kLongestStartMs)) {
    process.kill();
    process.waitForFinished();
    return std::nullopt;
  }
  StartTimes times;
  const QByteArray output = process.readAllStandardOutput();
  if (std::sscanf(output.constData(), "%lf %lf", &times.firstPaint, &times.console) != 2) return std::nullopt;
  return times;
}

}  // namespace

int RunStartUp(long long startedNs, const QString& folder) {
  DesktopProgram program(PlacesBelow(folder));
  Show& show = program.TheShow();
  long long loadedNs = 0;
  const FirstPaint console(program.Console(), [&] {
    std::printf("%f\n", static_cast<double>(NowNs() - loadedNs) / 1e6);
    // Quitting would ask the windows, and the console would ask the operator.
    QApplication::exit();
  });
  // The splash stands for a fixed time, so the console's load is started here without it.
  const FirstPaint loading(WindowOf(program, show.frmLoading), [&] {
    loadedNs = NowNs();
    std::printf("%f ", static_cast<double>(loadedNs - startedNs) / 1e6);
    LoadMainForm(show);
  });
  Main(show);
  return QApplication::exec();
}

bool MeasureStartUp() {
  std::vector<double> firstPaints, consoles;
  for (int i = 0; i < kStarts; ++i) {
    const std::optional<StartTimes> times = StartOnce();
    if (!times) return false;
    firstPaints.push_back(times->firstPaint);
    consoles.push_back(times->console);
  }
  PrintMedian("Start/first_paint", firstPaints);
  PrintMedian("Start/console", consoles);
  return true;
}

}  // namespace pawnfield
