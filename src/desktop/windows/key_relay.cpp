#include "desktop/windows/key_relay.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QWindow>

namespace pawnfield {

QWidget& KeyRelay::Target() const {
  QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr ? *modal : console_;
}

void KeyRelay::BringForward() {
  Target().raise();
  Target().activateWindow();
}

bool KeyRelay::eventFilter(QObject* watched, QEvent* event) {
  auto* window = qobject_cast<QWindow*>(watched);
  switch (event->type()) {
    case QEvent::WindowBlocked:
    case QEvent::Expose:
      if (window != nullptr) KeepOpen(*window);
      return false;
    case QEvent::Hide:
      // It is to come up again as nobody's.
      if (window != nullptr) window->setTransientParent(nullptr);
      return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
      return QApplication::activeModalWidget() != nullptr;
    case QEvent::Close:
      if (QApplication::activeModalWidget() == nullptr) return false;
      event->ignore();
      return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return Hand(*event);
    default:
      return false;
  }
}

// The toolkit throws the keys of a window away that a dialog blocks. A window that belongs to the dialog isn't blocked;
// the desktop isn't told so, as it asks when a window comes up.
void KeyRelay::KeepOpen(QWindow& window) {
  QWindow* dialog = QGuiApplication::modalWindow();
  if (dialog == nullptr || !window.isVisible() || !window.isExposed()) return;
  if (window.transientParent() != dialog) window.setTransientParent(dialog);
}

bool KeyRelay::Hand(QEvent& event) {
  QWidget* popup = QApplication::activePopupWidget();
  QWidget& target = popup != nullptr ? *popup : Target();
  if (&target == &console_ && event.type() == QEvent::KeyPress && OpenMenu(static_cast<QKeyEvent&>(event))) return true;
  QWindow* window = target.windowHandle();
  if (window != nullptr && target.isVisible()) QCoreApplication::sendEvent(window, &event);
  return true;
}

bool KeyRelay::OpenMenu(const QKeyEvent& key) {
  const QKeySequence pressed(key.keyCombination());
  auto* bar = console_.findChild<QMenuBar*>();
  for (QAction* menu : bar != nullptr ? bar->actions() : QList<QAction*>()) {
    if (!menu->isEnabled() || QKeySequence::mnemonic(menu->text()) != pressed) continue;
    bar->setActiveAction(menu);
    return true;
  }
  for (QAction* entry : console_.findChildren<QAction*>()) {
    if (!entry->isEnabled() || entry->shortcut().isEmpty() || entry->shortcut() != pressed) continue;
    entry->trigger();
    return true;
  }
  return false;
}

}  // namespace pawnfield
