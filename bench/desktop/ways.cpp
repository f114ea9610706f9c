// How exactly each way tells when a button was pressed: what lies between a press that the bench makes and the time
// that the program has for it.
#include <fcntl.h>
#include <pty.h>
#include <unistd.h>

#include <QKeyEvent>
#include <QProcess>
#include <QTest>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <random>
#include <thread>

#include "desktop/devices/qt_serial_port.h"
#include "desktop/windows/console_window.h"
#include "devices/frame_splitter.h"
#include "figures.h"
#include "played_show.h"

namespace pawnfield {

namespace {

using Ticks = std::chrono::steady_clock;

constexpr int kPresses = 500;
constexpr int kKeys = 100;
constexpr double kMsUs = 1000;

double MsSinceBoot(Moment moment) {
  return std::chrono::duration<double, std::milli>(moment.time_since_epoch()).count();
}

// Pairs of reports while the main thread is busy with other things.
bool MeasureRemotes() {
  PlayedShow show;
  std::mt19937 chance(3);
  std::uniform_int_distribution<int> apartUs(500, 20000);
  std::vector<double> stamped, margins;
  show.Port.OnReport = {};
  for (int i = 0; i < kPresses; ++i) {
    std::array<double, 2> off{};
    for (double& error : off) {
      show.Port.Hand(1);
      const double handed = MsSinceBoot(show.Port.HandedAt);
      std::this_thread::sleep_for(std::chrono::microseconds(apartUs(chance)));
      std::string report;
      while (show.Port.Read(report) == HidRead::Nothing) std::this_thread::yield();
      error = static_cast<double>(show.Port.ArrivedUs()) / kMsUs - handed;
      stamped.push_back(error);
    }
    margins.push_back(std::abs(off[1] - off[0]));
  }
  PrintPercentiles("Ways/remote_stamped", stamped);
  PrintPercentiles("Ways/remote_margin", margins);
  return true;
}

// Nobody tells of the report, so that the poll finds it.
bool MeasurePoll() {
  PlayedShow show;
  show.Port.OnReport = {};
  std::vector<double> found;
  for (int i = 0; i < kPresses / 2; ++i) {
    PlayedShow::Stand(i * 7 % 31);
    if (!show.PressRemote(1 + i % PlayedShow::kRemotes)) return false;
    found.push_back(Milliseconds(show.Port.HandedAt, show.Port.ReadAt));
    show.JudgeIncorrect();
  }
  PrintPercentiles("Ways/remote_polled", found);
  return true;
}

// The far side of a serial line, which sends a byte for each ten bits of 9600 baud.
class PacedLine {
 public:
  PacedLine() {
    std::array<char, 64> name{};
    if (openpty(&far_, &near_, name.data(), nullptr, nullptr) == 0) location_ = name.data();
  }
  ~PacedLine() {
    for (const int side : {near_, far_}) close(side);
  }
  PacedLine(const PacedLine&) = delete;
  PacedLine& operator=(const PacedLine&) = delete;
  SerialAdapter Adapter() const { return {{"USB\\VID_1a86&PID_7523", "USB Serial", "ttyUSB0"}, location_}; }

  // Two pads' frames, the second pressed so much later; it waits where the line is still taken.
  void Send(int first, int second, Ticks::time_point pressed, std::chrono::microseconds later) const {
    const auto free = SendFrame(first, pressed);
    SendFrame(second, std::max(free, pressed + later));
  }

 private:
  Ticks::time_point SendFrame(int pad, Ticks::time_point begun) const {
    constexpr std::chrono::nanoseconds kByte(10 * 1000000000LL / 9600);
    const std::string frame = std::string("MF\0\4\xFD\0\0", 7) + static_cast<char>(pad);
    for (const char byte : frame) {
      // A byte is there when its last bit is.
      begun += kByte;
      std::this_thread::sleep_until(begun);
      if (write(far_, &byte, 1) < 0) std::abort();
    }
    return begun;
  }

  int near_ = -1, far_ = -1;
  QString location_;
};

bool MeasurePads() {
  constexpr int kFirst = 101, kSecond = 102;
  const PacedLine line;
  QtSerialPort port([&line] { return std::vector{line.Adapter()}; });
  FrameSplitter frames;
  std::vector<std::int64_t> came;
  port.OnComm = [&](SerialEvent) {
    do {
      frames.Add(port.Input());
      const std::int64_t at = port.ArrivedUs();
      while (frames.Next(0)) came.push_back(at);
    } while (port.InBufferCount() > 0);
  };
  port.Open(0, SerialSettings{});
  std::mt19937 chance(5);
  std::uniform_int_distribution<int> apartUs(0, 25000);
  std::vector<double> margins;
  for (int i = 0; i < kPresses; ++i) {
    came.clear();
    const std::chrono::microseconds later(apartUs(chance));
    std::thread sender([&] { line.Send(kFirst, kSecond, Ticks::now(), later); });
    const bool both = QTest::qWaitFor([&] { return came.size() == 2; }, 2000);
    sender.join();
    if (!both) return false;
    margins.push_back(std::abs(static_cast<double>(came[1] - came[0] - later.count())) / kMsUs);
  }
  PrintPercentiles("Ways/pad_margin", margins);
  return true;
}

// When each key reached the program, and when the display server had it, by the same clock.
class KeyWatch : public QObject {
 public:
  KeyWatch() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* part, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !part->isWindowType()) return false;
    Late.push_back(MsSinceBoot(Ticks::now()) - static_cast<double>(static_cast<QKeyEvent*>(event)->timestamp()));
    return false;
  }
  std::vector<double> Late;
};

bool MeasureKeys() {
  PlayedShow show;
  KeyWatch keys;
  QProcess tool;
  tool.start("xdotool", {"key", "--delay", "25", "--repeat", QString::number(kKeys), "Shift_L"});
  if (!tool.waitForStarted()) return false;
  const bool ended = QTest::qWaitFor([&] { return tool.state() == QProcess::NotRunning; }, 30000);
  QTest::qWait(200);
  if (!ended || keys.Late.size() < kKeys / 2) return false;
  PrintPercentiles("Ways/key", keys.Late);
  return true;
}

}  // namespace

bool MeasureWays() {
  bool all = MeasureRemotes();
  all = MeasurePoll() && all;
  all = MeasurePads() && all;
  return MeasureKeys() && all;
}

}  // namespace pawnfield
