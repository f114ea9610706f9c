// The forms' timers on the desktop's event loop.
#pragma once

#include <QElapsedTimer>
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
