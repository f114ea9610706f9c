// Where the keyboard is on the console: buttons take no focus by a click, and a control that greys or goes hands it to
// the square's box and never to a neighbour, so that Space and Enter act on what the operator went to and on nothing
// else.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace pawnfield {

class FocusRules : public QObject {
 public:
  // For the console's window, once its widgets stand. Where the square's box can't take the focus, the board does.
  FocusRules(QWidget& console, QWidget& squareBox, QWidget& board);
  // True when the focus stood on what can't have it any more and has been moved; then no neighbour gets it.
  bool Rescue();
  // To the square's box.
  void Rest();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Moved(const QWidget* now);

  QWidget& console_;
  QWidget& squareBox_;
  QWidget& board_;
};

}  // namespace pawnfield
