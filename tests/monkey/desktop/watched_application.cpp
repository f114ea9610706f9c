#include "monkey/desktop/watched_application.h"

#include <QEvent>
#include <QThread>
#include <utility>

namespace pawnfield {

void WatchedApplication::Watch(std::function<void()> before, std::function<void()> after) {
  before_ = std::move(before);
  after_ = std::move(after);
}

void WatchedApplication::EachInside(const std::function<void()>& work) {
  const int floor = std::exchange(floor_, depth_);
  work();
  floor_ = floor;
  loop_ = true;
}

bool WatchedApplication::notify(QObject* receiver, QEvent* event) {
  // The other threads' events come this way too.
  if (QThread::currentThread() != thread()) return QApplication::notify(receiver, event);
  const bool watched = depth_ == floor_ && before_;
  if (watched) {
    loop_ = false;
    before_();
  } else if (event->type() == QEvent::Timer) {
    // Timers come from a loop and from nowhere else.
    loop_ = true;
  }
  ++depth_;
  const bool taken = QApplication::notify(receiver, event);
  --depth_;
  if (watched && !loop_ && after_) after_();
  return taken;
}

}  // namespace pawnfield
