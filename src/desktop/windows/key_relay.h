// Keys that reach the audience's window do at the console what they would do there: a desktop may give the keyboard to
// a window that asks for none. Under a dialog they are the dialog's.
#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;
class QWindow;

namespace pawnfield {

// To be installed as the filter of a native window that shall keep no key.
class KeyRelay : public QObject {
 public:
  explicit KeyRelay(QWidget& console) : console_(console) {}
  // Asks the desktop to give the keyboard to the window that the keys are for.
  void BringForward();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static void KeepOpen(QWindow& window);
  bool Hand(QEvent& event);
  // The dialog that the console waits for, or else the console.
  QWidget& Target() const;
  // The console's menus and their keys; the toolkit looks for them in the window in front alone.
  bool OpenMenu(const QKeyEvent& key);

  QWidget& console_;
};

}  // namespace pawnfield
