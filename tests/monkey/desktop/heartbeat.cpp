#include "monkey/desktop/heartbeat.h"

#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>
#include <utility>

namespace pawnfield {

namespace {

constexpr int kBeatMs = 50;

// How long this thread, or any other of the machine, has been ready to run without a processor, in milliseconds. The
// display server that a thread waits for waits too.
qint64 WaitedForProcessor() {
  std::ifstream statistics("/proc/thread-self/schedstat");
  qint64 ran = 0;
  qint64 waited = 0;
  statistics >> ran >> waited;
  std::ifstream pressure("/proc/pressure/cpu");
  std::string line;
  std::getline(pressure, line);
  const std::size_t total = line.find("total=");
  const qint64 others = total == std::string::npos ? 0 : std::atoll(line.c_str() + total + 6) / 1000;
  return std::max(waited / 1000000, others);
}

}  // namespace

Heartbeat::Heartbeat() {
  Excuse();
  Arm();
}

// A timer whose handler still runs is not told again by a nested loop, so each beat has a timer of its own.
void Heartbeat::Arm() { QTimer::singleShot(kBeatMs, this, &Heartbeat::Beat); }

void Heartbeat::Beat() {
  Arm();
  const qint64 waited = WaitedForProcessor();
  longest_ = std::max(longest_, since_.elapsed() - kBeatMs - (waited - waited_));
  since_.start();
  waited_ = waited;
}

void Heartbeat::Excuse() {
  since_.start();
  waited_ = WaitedForProcessor();
}

qint64 Heartbeat::TakeLongest() { return std::exchange(longest_, 0); }

}  // namespace pawnfield
