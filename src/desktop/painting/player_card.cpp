#include "desktop/painting/player_card.h"

#include <QPainterPathStroker>
#include <QString>
#include <cmath>

#include "data/color_sight.h"
#include "data/house_colors.h"
#include "data/players.h"

namespace pawnfield {

namespace {

// A dim card's share of the panel's colour in what is written on it, which stays readable.
constexpr double kDimmed = 0.14;
constexpr double kLight = 0.18;

QPainterPath Stroked(const QPainterPath& lines, double width) {
  QPainterPathStroker stroker;
  stroker.setWidth(width);
  stroker.setCapStyle(Qt::RoundCap);
  stroker.setJoinStyle(Qt::RoundJoin);
  return stroker.createStroke(lines).simplified();
}

QPainterPath Cross(const QPointF& middle, double arm) {
  QPainterPath lines;
  for (const double side : {1.0, -1.0}) {
    lines.moveTo(middle + QPointF(-arm, -arm * side));
    lines.lineTo(middle + QPointF(arm, arm * side));
  }
  return lines;
}

QPainterPath Triangle(const QPointF& middle, double arm) {
  QPainterPath lines;
  const double half = arm * std::sqrt(3.0) / 2;
  lines.moveTo(middle + QPointF(0, -arm));
  lines.lineTo(middle + QPointF(half, arm / 2));
  lines.lineTo(middle + QPointF(-half, arm / 2));
  lines.closeSubpath();
  return lines;
}

}  // namespace

QColor ToQColor(Color color) { return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF); }

bool IsLitBox(const std::string& picture) {
  return QString::fromStdString(picture).endsWith("scoreboxred.bmp", Qt::CaseInsensitive);
}

QPainterPath PlayerSign(int player, const QRectF& box) {
  const double reach = std::min(box.width(), box.height()) / 2;
  const double width = reach * 0.36;
  const QPointF middle = box.center();
  if (player == 1) return Stroked(Cross(middle, (reach - width / 2) * 0.86), width);
  // A triangle looks too high when its corners' circle is centred.
  if (player == 3) return Stroked(Triangle(middle + QPointF(0, reach * 0.16), reach - width / 2), width * 0.9);
  QPainterPath ring;
  ring.addEllipse(middle, reach - width / 2, reach - width / 2);
  return Stroked(ring, width);
}

void PaintPlayerSign(QPainter& painter, int player, const QRectF& box, bool lit) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(PlayerSign(player, box), ToQColor(OnCard(kPlayerColors[player], lit)));
}

Color CardGround(int player, bool lit) {
  return lit ? Mixed(kPanelGround, kPlayerColors[player], kLight) : kPanelGround;
}

Color OnCard(Color color, bool lit) { return lit ? color : Mixed(color, kPanelGround, kDimmed); }

void PaintPlayerCard(QPainter& painter, const QRectF& rect, int player, bool lit) {
  const double unit = rect.height() / 40;
  const QRectF body = rect.adjusted(2.4 * unit, 2.4 * unit, -2.4 * unit, -2.4 * unit);
  const double radius = 6 * unit;
  const QColor light = ToQColor(kPlayerColors[player]);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  for (int ring = 5; lit && ring > 0; --ring) {
    QColor glow = light;
    glow.setAlphaF(static_cast<float>(0.07 + 0.03 * (5 - ring)));
    painter.setPen(QPen(glow, ring * unit));
    painter.drawRoundedRect(body, radius, radius);
  }
  QLinearGradient ground(body.topLeft(), body.bottomLeft());
  ground.setColorAt(0, ToQColor(CardGround(player, lit)));
  ground.setColorAt(1, ToQColor(Mixed(CardGround(player, lit), kBlack, 0.25)));
  painter.setBrush(ground);
  painter.setPen(lit ? QPen(light, 1.6 * unit) : QPen(QColor("#33415F"), 0.8 * unit));
  painter.drawRoundedRect(body, radius, radius);
  painter.restore();
}

}  // namespace pawnfield
