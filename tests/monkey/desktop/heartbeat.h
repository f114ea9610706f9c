// Whether the program's message loop answers: beats in whatever loop runs, nested ones included, and notes the longest
// time between two beats, less what the process had to wait for a processor.
#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace pawnfield {

class Heartbeat : public QObject {
 public:
  Heartbeat();
  // Milliseconds of the longest silence since the last call.
  qint64 TakeLongest();
  // What went before was not the program's doing.
  void Excuse();

 private:
  void Beat();
  void Arm();

  QElapsedTimer since_;
  qint64 waited_ = 0;
  qint64 longest_ = 0;
};

}  // namespace pawnfield
