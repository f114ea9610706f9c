// Work that may take long, done on a thread while the program's own loop goes on: timers run and screens paint.
#pragma once

#include <QString>
#include <atomic>
#include <functional>

namespace pawnfield {

// What the work and its window tell one another, each from its own thread.
class WorkProgress {
 public:
  // The share of 1 that is done.
  void Tell(double done) { permille_ = static_cast<int>(done * 1000); }
  bool IsStopped() const { return stopped_; }
  void Stop() { stopped_ = true; }
  int Permille() const { return permille_; }

 private:
  std::atomic<int> permille_ = 0;
  std::atomic<bool> stopped_ = false;
};

// Returns what the work does, or throws what it throws. A window with a bar and Stop comes up when it takes longer.
bool WorkBeside(const QString& what, const std::function<bool(WorkProgress&)>& work);

}  // namespace pawnfield
