#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <array>
#include <chrono>
#include <cstdio>
#include <optional>

#include "desktop/desktop_program.h"
#include "desktop/windows/console_window.h"
#include "desktop/windows/form_window.h"
#include "figures.h"
#include "forms/small_forms.h"
#include "program/program.h"

namespace pawnfield {

namespace {

constexpr int kStarts = 7;
constexpr int kLongestStartMs = 30000;
// To come to rest, and to count in.
constexpr int kRestMs = 5000;

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

// What one start took, and what the program holds when it has come to rest.
struct StartFigures {
  double firstPaint = 0, console = 0, megabytes = 0, threads = 0, wakeUps = 0;
};

// The value of that line of a file of the kernel's about this process, in the line's own unit; 0 without one.
double OfThisProcess(const char* file, const char* line) {
  QFile status(QString("/proc/self/") + file);
  if (!status.open(QFile::ReadOnly)) return 0;
  const QByteArray text = status.readAll();
  const qsizetype at = text.indexOf(line);
  return at < 0 ? 0
                : text.mid(at + static_cast<qsizetype>(qstrlen(line)))
                      .trimmed()
                      .split(' ')
                      .first()
                      .split('\n')
                      .first()
                      .toDouble();
}

// Reports what is held after a while of rest, and ends. Memory that is shared with others counts by its share.
void ReportAtRest() {
  QTimer::singleShot(kRestMs, [] {
    const long long before = Waits();
    QTimer::singleShot(kRestMs, [before] {
      constexpr double kKilobytes = 1024;
      const double wakeUps = static_cast<double>(Waits() - before) * 1000 / kRestMs;
      std::printf("%f %f %f\n", OfThisProcess("smaps_rollup", "\nPss:") / kKilobytes,
                  OfThisProcess("status", "Threads:"), wakeUps);
      // Quitting would ask the windows, and the console would ask the operator.
      QApplication::exit();
    });
  });
}

std::optional<StartFigures> StartOnce(const char* mode) {
  const QTemporaryDir folder;
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(QCoreApplication::applicationFilePath(), {QString::number(NowNs()), mode, folder.path()});
  if (!process.waitForFinished(kLongestStartMs)) {
    process.kill();
    process.waitForFinished();
    return std::nullopt;
  }
  StartFigures figures;
  const QByteArray output = process.readAllStandardOutput();
  const int read = std::sscanf(output.constData(), "%lf %lf %lf %lf %lf", &figures.firstPaint, &figures.console,
                               &figures.megabytes, &figures.threads, &figures.wakeUps);
  if (read != 5) return std::nullopt;
  return figures;
}

}  // namespace

int RunPlain(long long startedNs) {
  QLabel window("A window of the toolkit's, and nothing else");
  const FirstPaint painted(window, [&] {
    const double ms = static_cast<double>(NowNs() - startedNs) / 1e6;
    std::printf("%f %f ", ms, ms);
    ReportAtRest();
  });
  window.showMaximized();
  return QApplication::exec();
}

int RunStartUp(long long startedNs, const QString& folder) {
  DesktopProgram program(PlacesIn(folder));
  Show& show = program.TheShow();
  // Missing hardware has been told before; the operator clicks on the splash as soon as it is seen.
  show.platform.settings.SaveSetting("Pawnfield", "Settings", "NoHardwareTold", "True");
  const FirstPaint console(program.Console(), [&] {
    std::printf("%f ", static_cast<double>(NowNs() - startedNs) / 1e6);
    ReportAtRest();
  });
  const FirstPaint loading(WindowOf(program, show.frmLoading),
                           [&] { std::printf("%f ", static_cast<double>(NowNs() - startedNs) / 1e6); });
  const FirstPaint splash(WindowOf(program, show.frmSplash), [&] { show.frmSplash.Click(); });
  Main(show);
  return QApplication::exec();
}

bool MeasureStartUp() {
  // By turns, so that both see the same machine.
  const std::array modes{"program", "plain"};
  std::array<std::vector<StartFigures>, modes.size()> all;
  for (int i = 0; i < kStarts; ++i) {
    for (std::size_t mode = 0; mode < modes.size(); ++mode) {
      const std::optional<StartFigures> figures = StartOnce(modes[mode]);
      if (!figures) return false;
      all[mode].push_back(*figures);
    }
  }
  for (std::size_t mode = 0; mode < modes.size(); ++mode) {
    for (const auto& [name, figure] : {std::pair{"first_paint", &StartFigures::firstPaint},
                                       {"console", &StartFigures::console},
                                       {"megabytes", &StartFigures::megabytes},
                                       {"threads", &StartFigures::threads},
                                       {"wake_ups", &StartFigures::wakeUps}}) {
      std::vector<double> values;
      for (const StartFigures& figures : all[mode]) values.push_back(figures.*figure);
      PrintMedian(std::string(mode == 0 ? "Start/" : "PlainStart/") + name, values);
    }
  }
  return true;
}

}  // namespace pawnfield
