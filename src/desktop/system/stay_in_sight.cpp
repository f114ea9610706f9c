#include "desktop/system/stay_in_sight.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace pawnfield {

void StayInSight(QWidget& window, const QEvent& event) {
  if (event.type() != QEvent::WindowStateChange || !window.isMinimized()) return;
  QTimer::singleShot(0, &window, [&window] {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
  });
}

}  // namespace pawnfield
