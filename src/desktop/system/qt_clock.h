// The forms' timers on the desktop's event loop.
#pragma once

#include <QElapsedTimer>
#include <chrono>
#include <map>
#include <memory>

#include "platform/ports.h"

class QTimer;

namespace pawnfield {

class QtClock : public Clock {
 public:
  QtClock();
  ~QtClock() override;
  std::int64_t NowMs() const override { return elapsed_.elapsed(); }
  std::int64_t NowUs() const override {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
  }
  LocalTime Now() const override;
  void Attach(Form& form) override;
  void Detach(Form& form) override;
  void Pause(int ms) override;

 private:
  class RunningTimer;
  QElapsedTimer elapsed_;
  std::map<const Control*, std::unique_ptr<RunningTimer>> timers_;
};

}  // namespace pawnfield
