#include <QApplication>
#include <QEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <cstdio>

#include "controllers/ring_in.h"
#include "desktop/desktop_program.h"
#include "desktop/files/native_path.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "devices/transceiver.h"
#include "figures.h"
#include "forms/main_form.h"
#include "program/detection.h"
#include "program/handlers.h"

namespace pawnfield {

namespace {

using Clock = std::chrono::steady_clock;
using Moment = Clock::time_point;

constexpr std::size_t kPresses = 1000;
constexpr int kRemotes = 20;

// A transceiver that is handed one report at a time. Its light's packet is written when all else is done.
class HandedReports : public HidPort {
 public:
  std::vector<HidDevice> Enumerate() const override { return {}; }
  std::optional<int> Open(int, const std::vector<int>&) override { return kTransceiverLong; }
  HidLengths Lengths() const override { return {33, 33}; }
  HidRead Read(std::string& report) override {
    if (waiting_.empty()) return HidRead::Nothing;
    ReadAt = Clock::now();
    report = std::exchange(waiting_, {});
    return HidRead::Report;
  }
  std::size_t Write(const std::string& report) override {
    WrittenAt = Clock::now();
    Written = true;
    return report.size();
  }
  void Close() override {}

  void Hand(int remote) {
    Written = false;
    waiting_ = BuildPacket({static_cast<char>(remote % 10 == 0 ? remote - 10 : remote), '\5', '\0', '\0'}, 0);
    HandedAt = Clock::now();
  }

  Moment HandedAt, ReadAt, WrittenAt;
  bool Written = false;

 private:
  std::string waiting_;
};

// When the console's indicators went out (the player is set at once after it), when the judging buttons came up (the
// clip has been handed to its player before), and when each screen was painted last.
class Watch : public QObject {
 public:
  explicit Watch(DesktopProgram& program) : program_(program) {
    indicator_ = program.Console().findChild<QWidget*>("btnBuzzer_2");
    verdict_ = program.Console().findChild<QWidget*>("btnQuestionCorrect");
    qApp->installEventFilter(this);
  }
  bool eventFilter(QObject* part, QEvent* event) override {
    if (event->type() == QEvent::EnabledChange && part == indicator_) PlayerAt = Clock::now();
    if (event->type() == QEvent::Show && part == verdict_) ClipAt = Clock::now();
    if (event->type() == QEvent::UpdateRequest && part->isWidgetType()) Painted(static_cast<QWidget*>(part));
    return false;
  }

  Moment PlayerAt, ClipAt;
  bool ConsolePainted = false, AudiencePainted = false;

 private:
  void Painted(const QWidget* window) {
    if (window == &program_.Console()) ConsolePainted = true;
    if (window == &program_.Audience()) AudiencePainted = true;
  }

  DesktopProgram& program_;
  QWidget* indicator_ = nullptr;
  QWidget* verdict_ = nullptr;
};

struct Latencies {
  std::vector<double> Player, Screens, Clip;
};

double Milliseconds(Moment from, Moment to) { return std::chrono::duration<double, std::milli>(to - from).count(); }

void PrintPercentiles(const std::string& name, const std::vector<double>& values) {
  for (const std::size_t percent : {50, 95, 99}) PrintPercentile(name + "_" + std::to_string(percent), values, percent);
}

void Print(const std::string& from, const Latencies& times) {
  PrintPercentiles("Press/player_from_" + from, times.Player);
  PrintPercentiles("Press/screens_from_" + from, times.Screens);
  PrintPercentiles("Press/clip_from_" + from, times.Clip);
}

void StartGame(Show& show, HandedReports& port) {
  AttachHandlers(show);
  tmrSplash_Timer(show);
  for (int remote = 1; remote <= kRemotes; ++remote) {
    show.state.Routing[static_cast<std::size_t>(remote)] = 1 + remote % 3;
  }
  show.dgTransceiver = std::make_unique<Transceiver>(
      port, show.platform.clock, [&show](const TransceiverData& data) { dgTransceiver_OnButtonPressed(show, data); },
      SelfTimer::GuardFunction());
  show.frmMain.cboList.DropDown();
  show.frmMain.cboList.Select(1);
  show.frmMain.btnStart.Click();
  QTest::qWait(500);
}

}  // namespace

bool MeasurePresses() {
  const QTemporaryDir folder;
  DesktopPlaces places;
  places.folders.DataRoot = SpelledPath(folder.path() + "/data");
  places.configFolder = folder.path() + "/config";
  places.runtimeFolder = folder.path() + "/run";
  HandedReports port;
  DesktopProgram program(places);
  // The manual mode's message is answered from a timer, as it holds its caller.
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, &answer, [] {
    if (QWidget* box = QApplication::activeModalWidget()) box->close();
  });
  answer.start(50);
  Show& show = program.TheShow();
  StartGame(show, port);
  Watch watch(program);
  Latencies fromHanding, fromPoll;
  for (std::size_t i = 0; i < kPresses; ++i) {
    QTest::qWait(static_cast<int>(i * 7 % 31));
    watch.ConsolePainted = watch.AudiencePainted = false;
    port.Hand(1 + static_cast<int>(i) % kRemotes);
    if (!QTest::qWaitFor([&] { return port.Written; }, 2000)) return false;
    if (!watch.ConsolePainted || (show.state.DualScreen && !watch.AudiencePainted)) return false;
    for (auto& [times, from] : {std::pair<Latencies*, Moment>{&fromHanding, port.HandedAt}, {&fromPoll, port.ReadAt}}) {
      times->Player.push_back(Milliseconds(from, watch.PlayerAt));
      times->Clip.push_back(Milliseconds(from, watch.ClipAt));
      times->Screens.push_back(Milliseconds(from, port.WrittenAt));
    }
    show.frmMain.btnQuestionIncorrect.Click();
  }
  Print("handing", fromHanding);
  Print("poll", fromPoll);
  show.dgTransceiver.reset();
  return true;
}

}  // namespace pawnfield
