#include "desktop/painting/ground.h"

#include <QRadialGradient>

#include "data/color_sight.h"
#include "data/house_colors.h"
#include "desktop/painting/player_card.h"

namespace pawnfield {

namespace {

void PaintLight(QPainter& painter, const QRect& area, Color middle, double share) {
  QRadialGradient light(QPointF(area.center().x(), area.top() + area.height() * 0.2), area.width() * 0.75);
  light.setColorAt(0, ToQColor(middle));
  light.setColorAt(0.45, ToQColor(Mixed(middle, kBoardShade, share)));
  light.setColorAt(1, ToQColor(kBoardShade));
  painter.fillRect(area, light);
}

}  // namespace

void PaintGround(QPainter& painter, const QRect& area) { PaintLight(painter, area, kBoardLight, 0.45); }

void PaintResultGround(QPainter& painter, const QRect& area) { PaintLight(painter, area, kResultLight, 0.45); }

}  // namespace pawnfield
