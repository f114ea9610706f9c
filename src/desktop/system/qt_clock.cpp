#include "desktop/system/qt_clock.h"

#include <QApplication>
#include <QDateTime>
#include <QThread>
#include <QTimer>
#include <QWidget>

namespace pawnfield {

// Runs one timer: a change of Enabled or Interval begins a new period.
class QtClock::RunningTimer : public Observer {
 public:
  explicit RunningTimer(Timer& model) : model_(model) {
    timer_.setTimerType(model.Relaxed ? Qt::VeryCoarseTimer : Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { model_.Fire(); });
    model_.AddObserver(*this);
    Arm();
  }

  void Changed(Control&, PropertyId id) override {
    if (id == PropertyId::Enabled || id == PropertyId::Interval) Arm();
  }

 private:
  // A timer that nothing listens to is state only, and wakes nobody.
  void Arm() {
    if (model_.Enabled && model_.Interval > 0 && model_.OnTimer) {
      timer_.start(model_.Interval);
    } else {
      timer_.stop();
    }
  }

  Timer& model_;
  QTimer timer_;
};

QtClock::QtClock() { elapsed_.start(); }
QtClock::~QtClock() = default;

LocalTime QtClock::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  return {now.date().year(), now.date().month(),  now.date().day(),
          now.time().hour(), now.time().minute(), now.time().second()};
}

void QtClock::Attach(Form& form) {
  for (Control* control : form.Controls()) {
    auto* timer = dynamic_cast<Timer*>(control);
    if (timer != nullptr && timers_.count(timer) == 0) timers_[timer] = std::make_unique<RunningTimer>(*timer);
  }
}

void QtClock::Detach(Form& form) {
  for (const Control* control : form.Controls()) timers_.erase(control);
}

// Nothing but the paints is delivered before the pause, so that no press overtakes another.
void QtClock::Pause(int ms) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) QCoreApplication::sendPostedEvents(window, QEvent::UpdateRequest);
  }
  QThread::msleep(static_cast<unsigned long>(ms));
}

}  // namespace pawnfield
