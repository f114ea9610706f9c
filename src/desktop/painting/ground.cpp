#include "desktop/painting/ground.h"

#include <QRadialGradient>

namespace pawnfield {

void PaintGround(QPainter& painter, const QRect& area) {
  QRadialGradient light(QPointF(area.center().x(), area.top() + area.height() * 0.2), area.width() * 0.75);
  light.setColorAt(0, QColor("#2A4A8F"));
  light.setColorAt(0.45, QColor("#182C5C"));
  light.setColorAt(1, QColor("#0A1128"));
  painter.fillRect(area, light);
}

}  // namespace pawnfield
