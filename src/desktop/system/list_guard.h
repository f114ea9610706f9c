// Keeps lists, menus and tips off the screen while a window of the program comes up under a compositor. A window that
// comes up takes the keyboard, the compositor takes away what was open before, and it ends the session of a program
// that draws it all the same.
#pragma once

#include <QComboBox>
#include <QObject>
#include <QPointer>
#include <QTimer>

namespace pawnfield {

// Closes lists and menus; also for a window that is about to go from one screen to another.
void CloseOpenLists();

// Watches the whole application while it lives. Where windows have places of their own it does nothing.
class ListGuard : public QObject {
 public:
  ListGuard();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Await(QWidget& window);
  // Shuts what opened amid the wait. A box's list opens by itself after it.
  void PutOff(QWidget& opened);
  void Arrived();

  // Runs while a window is awaited.
  QTimer wait_;
  QPointer<QWidget> window_;
  QPointer<QComboBox> box_;
};

}  // namespace pawnfield
