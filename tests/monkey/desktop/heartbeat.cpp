#include "monkey/desktop/heartbeat.h"

#include <QTimer>
#include <algorithm>
#include <fstream>
#include <utility>

namespace pawnfield {

namespace {

constexpr int kBeatMs = 50;

// How long this thread has been ready to run without a processor, in milliseconds.
qint64 WaitedForProcessor() {
  std::ifstream statistics("/proc/thread-self/schedstat");
  qint64 ran = 0;
  qint64 waited = 0;
  statistics >> ran >> waited;
  return waited / 1000000;
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
