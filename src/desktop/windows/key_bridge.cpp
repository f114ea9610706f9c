#include "desktop/windows/key_bridge.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include "desktop/files/windows_1252.h"
#include "forms/main_form.h"

namespace pawnfield {

KeyBridge::KeyBridge(MainForm& form, QWidget& console) : QObject(&console), form_(form), console_(console) {
  qApp->installEventFilter(this);
}

bool KeyBridge::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || QApplication::activeModalWidget() != nullptr) return false;
  if (QApplication::activePopupWidget() != nullptr) return false;
  // A key travels from the focus up through its parents; it counts once, where it starts.
  QWidget* focus = console_.focusWidget() != nullptr ? console_.focusWidget() : &console_;
  return watched == focus && Hand(focus, *static_cast<QKeyEvent*>(event));
}

bool KeyBridge::Hand(QWidget* focus, const QKeyEvent& key) {
  const auto* edit = qobject_cast<QLineEdit*>(focus);
  if (edit != nullptr && !edit->isReadOnly()) return false;
  if (key.key() == Qt::Key_F9) {
    if (!key.isAutoRepeat()) form_.btnAnswerClock.Click();
    return true;
  }
  if ((key.modifiers() & Qt::AltModifier) != 0 || key.text().isEmpty()) return false;
  const auto bytes = ToWindows1252(key.text());
  if (!bytes || bytes->size() != 1) return false;
  form_.KeyPress(static_cast<unsigned char>(bytes->front()));
  // A list would jump to the entry that begins with the letter; it keeps Tab, Enter and the blank that opens it.
  return qobject_cast<QComboBox*>(focus) != nullptr && static_cast<unsigned char>(bytes->front()) > ' ';
}

}  // namespace pawnfield
