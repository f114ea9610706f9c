#include <QApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <tuple>

#include "desktop/desktop_program.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "figures.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/small_forms.h"
#include "presentation/both_screens.h"
#include "program/main_load.h"
#include "program/program.h"

namespace pawnfield {

namespace {

constexpr int kRounds = 40;
constexpr int kIdleMs = 10000;
constexpr int kSettleMs = 1500;

double NowMs() {
  using std::chrono::duration;
  return duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Counts the paints of each window's parts.
class PaintCounter : public QObject {
 public:
  PaintCounter() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* part, QEvent* event) override {
    if (event->type() == QEvent::Paint && part->isWidgetType()) ++paints_[static_cast<QWidget*>(part)->window()];
    return false;
  }
  void Reset() { paints_.clear(); }
  int Of(const QWidget& window) const {
    const auto found = paints_.find(&window);
    return found == paints_.end() ? 0 : found->second;
  }

 private:
  std::map<const QWidget*, int> paints_;
};

class PaintBench {
 public:
  PaintBench() : program_(PlacesIn(folder_.path())), show_(program_.TheShow()), form_(show_.frmMain) {
    Main(show_);
    show_.frmLoading.Visible = false;
    show_.frmAlwaysLoaded.tmrAlwaysLoaded.Enabled = false;
    LoadMainForm(show_);
  }

  bool MeasureAt(const QString& mode) {
    QProcess::execute("xrandr", {"--output", "DUMMY1", "--mode", mode, "--pos", "1280x0"});
    QTest::qWait(kSettleMs);
    if (!program_.Audience().isVisible()) return false;
    StartChallenge();
    MeasureFrames(mode);
    MeasureClaims(mode);
    MeasureFlip(mode);
    return MeasureIdle(mode);
  }

 private:
  void StartChallenge() {
    form_.optGameType[0].Click();
    form_.optGridControl[2].Click();
    form_.optGameEnds[1].Click();
    form_.btnStart.Click();
    QTest::qWait(kSettleMs);
  }

  void MeasureFrames(const QString& mode) {
    Canvas& canvas = program_.Audience().Screen();
    for (int i = 0; i < 25; ++i) SetSquarePicture(show_, i / 5, i % 5, form_.FaceA(1 + i % 3).Picture);
    const QRect square = canvas.PixelRect(*show_.frmFSMain.img.At(2, 2)).toAlignedRect().adjusted(-2, -2, 2, 2);
    std::vector<double> whole, one;
    for (int i = 0; i < kRounds; ++i) {
      double start = NowMs();
      canvas.repaint();
      whole.push_back(NowMs() - start);
      start = NowMs();
      canvas.repaint(square);
      one.push_back(NowMs() - start);
    }
    PrintMedian("Paint/" + mode.toStdString() + "/whole_board", whole);
    PrintMedian("Paint/" + mode.toStdString() + "/one_square", one);
    ClearSquares();
  }

  void ClearSquares() {
    for (int i = 0; i < 25; ++i) SetSquarePicture(show_, i / 5, i % 5, form_.imgBkgnd.Picture);
    show_.state.Board = {};
    QTest::qWait(100);
  }

  // From the press on a square to both windows painted.
  void MeasureClaims(const QString& mode) {
    std::vector<double> times;
    for (int i = 0; i < kRounds; ++i) {
      if (i % 5 == 0) ClearSquares();
      if (!QTest::qWaitFor([&] { return show_.state.PlacementOpen && !form_.tmrAnswer.Enabled; }, kSettleMs * 4)) break;
      QTest::qWait(30);
      paints_.Reset();
      const double start = NowMs();
      // Knight's moves make no line.
      form_.img.At(i % 5, 2 * i % 5)->Click();
      while (paints_.Of(program_.Console()) == 0 || paints_.Of(program_.Audience()) == 0) {
        QCoreApplication::processEvents();
        if (NowMs() - start > kSettleMs) break;
      }
      times.push_back(NowMs() - start);
    }
    if (times.empty()) return;
    PrintMedian("ClaimToPaint/" + mode.toStdString(), times);
    PrintPercentile("ClaimToPaint95/" + mode.toStdString(), times, 95);
  }

  // The ticks of one turning square after another, against the audience's paints.
  void MeasureFlip(const QString& mode) {
    int changes = 0;
    Timer& timer = show_.frmFSMain.tmrFSFlipPlayerPiece;
    const Image& square = *show_.frmFSMain.img.At(2, 2);
    const auto look = [&] { return std::make_tuple(square.Top.Get(), square.Height.Get(), square.Picture.Get()); };
    const auto plain = timer.OnTimer;
    timer.OnTimer = [&] {
      const auto before = look();
      plain();
      if (look() != before) ++changes;
    };
    int paints = 0;
    double spent = 0;
    for (int i = 0; i < 10; ++i) {
      ClearSquares();
      if (!QTest::qWaitFor([&] { return show_.state.PlacementOpen && !form_.tmrAnswer.Enabled; }, kSettleMs * 4)) break;
      form_.img.At(2, 2)->Click();
      QCoreApplication::processEvents();
      form_.tmrAnswer.Interval = 1000;
      paints_.Reset();
      const double start = NowMs();
      while (timer.Enabled) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
      spent += NowMs() - start;
      QTest::qWait(9);
      paints += paints_.Of(program_.Audience());
      form_.tmrAnswer.Interval = 150;
    }
    timer.OnTimer = plain;
    PrintMedian("FlipInterval/" + mode.toStdString(), {paints > 0 ? spent / paints : 1000});
    PrintMedian("FlipPaintsPerChange/" + mode.toStdString(), {changes > 0 ? 1.0 * paints / changes : 0});
  }

  // A question is up and nothing moves.
  bool MeasureIdle(const QString& mode) {
    form_.btnReset.Click();
    form_.optGameType[2].Click();
    form_.cboList.DropDown();
    form_.cboList.Select(1);
    form_.btnStart.Click();
    QTest::qWait(kSettleMs * 2);
    paints_.Reset();
    const std::clock_t start = std::clock();
    // The test library's wait would wake up a hundred times a second.
    QEventLoop loop;
    QTimer::singleShot(kIdleMs, &loop, &QEventLoop::quit);
    loop.exec();
    const double share = 100.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / (kIdleMs / 1000.0);
    std::printf("%s: idle at %.2f%% of one core, %d paints\n", qPrintable(mode), share,
                paints_.Of(program_.Audience()));
    const bool shown = form_.picQuestion.Visible;
    PrintMedian("IdlePercent/" + mode.toStdString(), {shown ? share : 100});
    form_.btnSkipQuestion.Click();
    form_.tmrAutoContinue.Enabled = false;
    form_.btnReset.Click();
    return shown;
  }

  QTemporaryDir folder_;
  DesktopProgram program_;
  Show& show_;
  MainForm& form_;
  PaintCounter paints_;
};

}  // namespace

bool MeasurePaints() {
  PaintBench bench;
  const bool usual = bench.MeasureAt("1920x1080");
  return bench.MeasureAt("3840x2160") && usual;
}

}  // namespace pawnfield
