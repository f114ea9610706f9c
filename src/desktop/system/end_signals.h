// The system's wish that the program end: SIGTERM, SIGINT and SIGHUP, as a call between two events.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>

#include "platform/controls.h"

namespace pawnfield {

// A write to a reader that has gone, as to a closed standard error, fails from now on and ends nothing.
void IgnoreBrokenPipes();

// What is done when the process ends behind the program's back, as the toolkit ends it when the display's server dies.
// No window may be touched then.
class LastWords : public Observer {
 public:
  // One at a time. In force from the moment that the console is shown: what was made until then is still there when the
  // process ends.
  LastWords(Form& console, std::function<void()> say);
  // The program has ended in order.
  ~LastWords() override;
  LastWords(const LastWords&) = delete;
  LastWords& operator=(const LastWords&) = delete;
  void Changed(Control& console, PropertyId id) override;

 private:
  std::function<void()> say_;
};

class EndSignals : public QObject {
 public:
  // One at a time. The call comes on the thread that made it, also while a box waits for an answer.
  explicit EndSignals(std::function<void()> onEnd);
  ~EndSignals() override;
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  void Read();

  std::function<void()> onEnd_;
  QSocketNotifier notifier_{QSocketNotifier::Read};
  int readEnd_ = -1;
};

}  // namespace pawnfield
