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

bool KeyRelay::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
  QWidget* popup = QApplication::activePopupWidget();
  QWidget& target = popup != nullptr ? *popup : Target();
  if (&target == &console_ && event->type() == QEvent::KeyPress && OpenMenu(*static_cast<QKeyEvent*>(event)))
    return true;
  QWindow* window = target.windowHandle();
  if (window != nullptr && target.isVisible()) QCoreApplication::sendEvent(window, event);
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
