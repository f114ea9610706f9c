// What the show's record costs: taking an event down on the main thread, a step back until both screens are painted,
// the file of a long show, and a start that finds a show that was interrupted.
#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QEventLoop>
#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <functional>
#include <optional>

#include "desktop/desktop_program.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "figures.h"
#include "forms/main_form.h"
#include "program/detection.h"
#include "program/handlers.h"
#include "program/program.h"
#include "record/history.h"
#include "show/show_record.h"

namespace pawnfield {

namespace {

using Ticks = std::chrono::steady_clock;

constexpr std::size_t kEvents = 1000;
constexpr int kSteps = 100;
constexpr int kStarts = 5;
// A question each 20 seconds: asked, rung in for, judged and claimed.
constexpr double kEventsOfEightHours = 8 * 3600 / 20 * 4;

double Ms(Ticks::time_point from) { return std::chrono::duration<double, std::milli>(Ticks::now() - from).count(); }

// When both windows have painted what was done.
class Painted : public QObject {
 public:
  explicit Painted(DesktopProgram& program) : program_(program) { qApp->installEventFilter(this); }

  // Does that, and gives the milliseconds until both screens show it; none within half a second.
  std::optional<double> After(const std::function<void()>& done) {
    console_ = false;
    audience_ = !program_.TheShow().state.DualScreen;
    QEventLoop loop;
    loop_ = &loop;
    QTimer::singleShot(500, &loop, &QEventLoop::quit);
    painted_.reset();
    const auto begun = Ticks::now();
    done();
    loop.exec();
    loop_ = nullptr;
    if (!painted_) return std::nullopt;
    return std::chrono::duration<double, std::milli>(*painted_ - begun).count();
  }

 private:
  bool eventFilter(QObject* part, QEvent* event) override {
    if (event->type() != QEvent::UpdateRequest || loop_ == nullptr || painted_) return false;
    console_ = console_ || part == &program_.Console();
    audience_ = audience_ || part == &program_.Audience();
    if (!console_ || !audience_) return false;
    // This event paints the second of them; what is posted now runs behind it.
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (!painted_) painted_ = Ticks::now();
          if (loop_ != nullptr) loop_->quit();
        },
        Qt::QueuedConnection);
    return false;
  }

  DesktopProgram& program_;
  QEventLoop* loop_ = nullptr;
  bool console_ = false, audience_ = false;
  std::optional<Ticks::time_point> painted_;
};

void StartGame(Show& show) {
  AttachHandlers(show);
  tmrSplash_Timer(show);
  show.frmMain.cboList.DropDown();
  show.frmMain.cboList.Select(1);
  show.frmMain.btnStart.Click();
  QTest::qWait(500);
}

// All squares but the last, so that the game goes on.
void FillBoard(Show& show) {
  MainForm& form = show.frmMain;
  for (int square = 0; square < 24; ++square) {
    form.btnSelectPlayer[static_cast<std::size_t>(square % 3)].Click();
    form.btnQuestionCorrect.Click();
    form.img.At(square / 5, square % 5)->Click();
    QTest::qWait(1200);
    if (form.btnContinue.Enabled) form.btnContinue.Click();
    if (!QTest::qWaitFor([&] { return form.picQuestion.Visible.Get(); }, 8000)) return;
  }
}

std::vector<double> TakeEvents(Show& show) {
  std::vector<double> times;
  for (std::size_t i = 0; i < kEvents; ++i) {
    show.frmMain.ScoreUp(1 + static_cast<int>(i % 3))[i % 5].Click();
    const auto begun = Ticks::now();
    TakeSnapshot(show);
    times.push_back(Ms(begun));
    if (i % 50 == 0) QTest::qWait(1);
  }
  return times;
}

struct Steps {
  // Until the controls have their values, and until both screens show them.
  std::vector<double> Restored, Screens;
};

// Claims, verdicts and questions, back and forward again.
Steps TakeSteps(DesktopProgram& program) {
  MainForm& form = program.TheShow().frmMain;
  Painted painted(program);
  Steps times;
  for (int i = 0; i < kSteps; ++i) {
    QTest::qWait(20);
    double restored = 0;
    const auto screens = painted.After([&] {
      const auto begun = Ticks::now();
      i < kSteps / 2 ? form.btnUndo.Click() : form.KeyPress('Y' - '@');
      restored = Ms(begun);
    });
    if (!screens) continue;
    times.Restored.push_back(restored);
    times.Screens.push_back(*screens);
  }
  return times;
}

double FileSize(const QString& folder) {
  double bytes = 0;
  for (const QFileInfo& file : QDir(folder + "/data/Pawnfield/Shows").entryInfoList(QDir::Files))
    bytes += static_cast<double>(file.size());
  return bytes;
}

// Milliseconds from a start over that folder to the question about the show, and from its answer to the game.
bool StartOverInterrupted(const QString& folder, std::vector<double>& toQuestion, std::vector<double>& toGame) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  const auto now = std::chrono::duration_cast<std::chrono::nanoseconds>(Ticks::now().time_since_epoch()).count();
  process.start(QCoreApplication::applicationFilePath(), {QString::number(now), "interrupted", folder});
  if (!process.waitForFinished(30000)) {
    process.kill();
    process.waitForFinished();
    return false;
  }
  double question = 0, game = 0;
  if (std::sscanf(process.readAllStandardOutput().constData(), "%lf %lf", &question, &game) != 2) return false;
  toQuestion.push_back(question);
  toGame.push_back(game);
  return true;
}

}  // namespace

int RunInterrupted(long long startedNs, const QString& folder) {
  DesktopProgram program(PlacesIn(folder));
  Show& show = program.TheShow();
  show.platform.settings.SaveSetting("Pawnfield", "Settings", "NoHardwareTold", "True");
  const Ticks::time_point started{std::chrono::nanoseconds(startedNs)};
  Ticks::time_point answered;
  bool asked = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!asked && box != nullptr && box->text().startsWith("A show was interrupted")) {
      asked = true;
      std::printf("%f ", Ms(started));
      answered = Ticks::now();
      box->button(QMessageBox::Yes)->click();
    } else if (asked && program.Console().isVisible() && show.state.GameStarted) {
      std::printf("%f\n", Ms(answered));
      // The game is left open for the next start.
      std::fflush(stdout);
      std::_Exit(0);
    }
  });
  look.start(2);
  Main(show);
  return QApplication::exec();
}

bool MeasureRecord() {
  const QTemporaryDir folder;
  {
    DesktopProgram program(PlacesIn(folder.path()));
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, &answer, [] {
      if (QWidget* box = QApplication::activeModalWidget()) box->close();
    });
    answer.start(50);
    Show& show = program.TheShow();
    StartGame(show);
    FillBoard(show);
    const Steps steps = TakeSteps(program);
    if (steps.Screens.size() < kSteps / 2) return false;
    PrintPercentiles("Record/step_restored", steps.Restored);
    PrintPercentiles("Record/step_painted", steps.Screens);
    show.platform.records.Flush();
    const double before = FileSize(folder.path());
    PrintPercentile("Record/taken_down_95", TakeEvents(show), 95);
    show.platform.records.Flush();
    const double bytes = (FileSize(folder.path()) - before) / static_cast<double>(kEvents);
    PrintMedian("Record/eight_hours_megabytes", {bytes * kEventsOfEightHours / 1e6});
  }
  std::vector<double> toQuestion, toGame;
  for (int i = 0; i < kStarts; ++i) {
    if (!StartOverInterrupted(folder.path(), toQuestion, toGame)) return false;
  }
  PrintMedian("Record/start_to_question", toQuestion);
  PrintMedian("Record/answer_to_game", toGame);
  return true;
}

}  // namespace pawnfield
