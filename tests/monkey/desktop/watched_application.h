// The application, which lets somebody look at the show before and after each event that its loop hands on.
#pragma once

#include <QApplication>
#include <functional>

namespace pawnfield {

class WatchedApplication : public QApplication {
 public:
  using QApplication::QApplication;

  // Called around each event, but not around those that one brings with it. What a handler does that runs a loop of its
  // own, as for a dialog, is more than one event's doing, so that nothing is called after it.
  void Watch(std::function<void()> before, std::function<void()> after);
  // Takes the events within the work for ones of their own, though an event has led to it.
  void EachInside(const std::function<void()>& work);

 protected:
  bool notify(QObject* receiver, QEvent* event) override;

 private:
  std::function<void()> before_, after_;
  int depth_ = 0, floor_ = 0;
  bool loop_ = false;
};

}  // namespace pawnfield
