#include "played_show.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QFile>
#include <QTest>
#include <cstdlib>

#include "controllers/ring_in.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "devices/transceiver.h"
#include "figures.h"
#include "forms/main_form.h"
#include "program/detection.h"
#include "program/handlers.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

using SteadyClock = std::chrono::steady_clock;

void StartGame(Show& show, HandedReports& port) {
  AttachHandlers(show);
  tmrSplash_Timer(show);
  for (int remote = 1; remote <= PlayedShow::kRemotes; ++remote) {
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

double Milliseconds(Moment from, Moment to) { return std::chrono::duration<double, std::milli>(to - from).count(); }

// Open for both, so that neither side waits for the other.
HandedReports::HandedReports(const QString& pipe) : pipe_(QFile::encodeName(pipe).toStdString()) {
  if (mkfifo(pipe_.c_str(), S_IRUSR | S_IWUSR) == 0) device_ = open(pipe_.c_str(), O_RDWR | O_CLOEXEC);
}

HandedReports::~HandedReports() {
  reader_.reset();
  close(device_);
}

std::optional<int> HandedReports::Open(int, const std::vector<int>&) {
  reader_ = std::make_unique<HidReader>(pipe_.c_str(), static_cast<std::size_t>(Lengths().Input), [this] {
    QMetaObject::invokeMethod(
        &home_,
        [this] {
          if (OnReport) OnReport();
        },
        Qt::QueuedConnection);
  });
  return kTransceiverLong;
}

HidRead HandedReports::Read(std::string& report) {
  if (reader_ == nullptr || reader_->Failed()) return HidRead::Failed;
  const auto next = reader_->Take();
  if (!next) return HidRead::Nothing;
  ReadAt = SteadyClock::now();
  arrivedUs_ = next->AtUs;
  report = next->Bytes;
  return HidRead::Report;
}

std::size_t HandedReports::Write(const std::string& report) {
  WrittenAt = SteadyClock::now();
  Written = true;
  if (OnWritten) OnWritten();
  return report.size();
}

void HandedReports::Hand(int remote) {
  Written = false;
  std::string report = BuildPacket({static_cast<char>(remote % 10 == 0 ? remote - 10 : remote), '\5', '\0', '\0'}, 0);
  report.resize(Lengths().Input);
  HandedAt = SteadyClock::now();
  if (write(device_, report.data(), report.size()) < 0) std::abort();
}

Watch::Watch(DesktopProgram& program) : program_(program) { qApp->installEventFilter(this); }

bool Watch::eventFilter(QObject* part, QEvent* event) {
  if (indicator_ == nullptr) {
    indicator_ = program_.Console().findChild<QWidget*>("btnBuzzer_2");
    verdict_ = program_.Console().findChild<QWidget*>("btnQuestionCorrect");
  }
  if (event->type() == QEvent::EnabledChange && part == indicator_) PlayerAt = SteadyClock::now();
  if (event->type() == QEvent::Show && part == verdict_) ClipAt = SteadyClock::now();
  if (event->type() == QEvent::UpdateRequest && part->isWidgetType()) Painted(static_cast<QWidget*>(part));
  return false;
}

void Watch::Begin() { ConsolePainted = AudiencePainted = turnOnConsole_ = turnOnAudience_ = false; }

void Watch::Painted(const QWidget* window) {
  const Show& show = program_.TheShow();
  const bool console = window == &program_.Console(), audience = window == &program_.Audience();
  if (!console && !audience) return;
  ConsolePainted = ConsolePainted || console;
  AudiencePainted = AudiencePainted || audience;
  if (!IsPhase(show, PhaseKind::Answering) || (turnOnConsole_ && turnOnAudience_)) return;
  turnOnConsole_ = turnOnConsole_ || console;
  turnOnAudience_ = turnOnAudience_ || audience || !show.state.DualScreen;
  if (!turnOnConsole_ || !turnOnAudience_) return;
  // This event paints; what is posted now runs behind it.
  QMetaObject::invokeMethod(
      this,
      [this] {
        PaintedAt = SteadyClock::now();
        if (OnPainted) OnPainted();
      },
      Qt::QueuedConnection);
}

PlayedShow::PlayedShow() : program_(PlacesIn(folder_.path())) {
  // The manual mode's message is answered from a timer, as it holds its caller.
  QObject::connect(&answer_, &QTimer::timeout, &answer_, [] {
    if (QWidget* box = QApplication::activeModalWidget()) box->close();
  });
  answer_.start(50);
  StartGame(TheShow(), Port);
}

PlayedShow::~PlayedShow() { TheShow().dgTransceiver.reset(); }

void PlayedShow::Stand(int ms) {
  QEventLoop loop;
  QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

bool PlayedShow::WaitFor(const std::function<bool()>& happened, int ms) {
  const Moment end = SteadyClock::now() + std::chrono::milliseconds(ms);
  while (!happened() && SteadyClock::now() < end) Stand(2);
  return happened();
}

bool PlayedShow::PressRemote(int remote) {
  Sees.Begin();
  QEventLoop loop;
  QTimer::singleShot(2000, &loop, &QEventLoop::quit);
  Port.OnWritten = [&loop] { loop.quit(); };
  Port.Hand(remote);
  loop.exec();
  Port.OnWritten = nullptr;
  if (!Port.Written) return false;
  return Sees.ConsolePainted && (!TheShow().state.DualScreen || Sees.AudiencePainted);
}

bool PlayedShow::AwaitPainted() {
  QEventLoop loop;
  bool painted = false;
  Sees.OnPainted = [&] {
    painted = true;
    loop.quit();
  };
  QTimer::singleShot(2000, &loop, &QEventLoop::quit);
  loop.exec();
  Sees.OnPainted = nullptr;
  return painted;
}

void PlayedShow::JudgeIncorrect() { TheShow().frmMain.btnQuestionIncorrect.Click(); }

}  // namespace pawnfield
