#include "desktop/windows/focus_rules.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>

namespace pawnfield {

FocusRules::FocusRules(QWidget& console, QWidget& squareBox, QWidget& board)
    : QObject(&console), console_(console), squareBox_(squareBox), board_(board) {
  for (auto* button : console.findChildren<QAbstractButton*>()) {
    if (button->focusPolicy() != Qt::NoFocus) button->setFocusPolicy(Qt::TabFocus);
  }
  for (auto* list : console.findChildren<QComboBox*>()) {
    // A turn of the wheel over a list would choose another set or option in the middle of a game.
    list->setFocusPolicy(Qt::StrongFocus);
    list->installEventFilter(this);
  }
  console.installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Moved(now); });
}

bool FocusRules::eventFilter(QObject* watched, QEvent* event) {
  // What had the focus may have gone or greyed behind another window; the toolkit would give it to a neighbour now.
  if (event->type() == QEvent::WindowActivate && watched == &console_) Rescue();
  if (event->type() != QEvent::Wheel || watched == &console_) return false;
  event->ignore();
  return true;
}

void FocusRules::Moved(const QWidget* now) {
  if (now == nullptr && console_.isActiveWindow() && console_.focusWidget() == nullptr) Rest();
}

bool FocusRules::Rescue() {
  const QWidget* focus = console_.focusWidget();
  if (focus != nullptr && focus->isEnabled() && focus->isVisibleTo(&console_)) return false;
  Rest();
  return true;
}

void FocusRules::Rest() {
  const bool takes = squareBox_.isEnabled() && squareBox_.isVisibleTo(&console_);
  (takes ? squareBox_ : board_).setFocus(Qt::OtherFocusReason);
}

}  // namespace pawnfield
