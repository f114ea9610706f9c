#include "desktop/windows/help_key.h"

#include <QApplication>
#include <QKeyEvent>

#include "config/help.h"
#include "desktop/windows/console_window.h"
#include "desktop/windows/manual_window.h"

namespace pawnfield {

HelpKey::HelpKey(Show& show) : show_(show) { qApp->installEventFilter(this); }

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1) return false;
  // A key travels from the focus up through its parents; it counts once, where it starts.
  const auto* widget = qobject_cast<const QWidget*>(watched);
  if (widget == nullptr || QApplication::activePopupWidget() != nullptr) return false;
  const QWidget* window = widget->window();
  if (dynamic_cast<const ConsoleWindow*>(window) != nullptr || dynamic_cast<const ManualWindow*>(window) != nullptr) {
    return false;
  }
  const bool isForm = dynamic_cast<const FormWindow*>(window) != nullptr;
  OpenHelpPage(show_, {"", HelpPageOf(isForm ? window->objectName().toStdString() : "")});
  return true;
}

}  // namespace pawnfield
