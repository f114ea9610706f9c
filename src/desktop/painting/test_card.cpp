#include "desktop/painting/test_card.h"

#include <algorithm>
#include <array>

#include "data/house_colors.h"
#include "desktop/painting/player_card.h"

namespace pawnfield {

namespace {

constexpr int kGreys = 8;

// A frame so far inside the area, as shares of its height.
void PaintFrame(QPainter& painter, const QRectF& area, double inside, double line, const QColor& color) {
  const double pen = std::max(1.0, area.height() * line);
  const double in = area.height() * inside + pen / 2;
  painter.setPen(QPen(color, pen, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter.drawRect(area.adjusted(in, in, -in, -in));
}

void PaintCorners(QPainter& painter, const QRectF& area) {
  const double length = area.height() * 0.09, pen = area.height() * 0.012;
  for (const QPointF& corner : {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()}) {
    const double across = corner.x() > area.center().x() ? -length : length;
    const double down = corner.y() > area.center().y() ? -length : length;
    painter.fillRect(QRectF(corner, QSizeF(across, down > 0 ? pen : -pen)).normalized(), ToQColor(kGold));
    painter.fillRect(QRectF(corner, QSizeF(across > 0 ? pen : -pen, down)).normalized(), ToQColor(kGold));
  }
}

void PaintBars(QPainter& painter, const QRectF& area) {
  const std::array<Color, 5> colors{kPlayerColors[1], kPlayerColors[2], kPlayerColors[3], kRightWords, kWrongWords};
  const double height = area.height() * 0.055, left = area.left() + area.width() * 0.15, width = area.width() * 0.7;
  const double top = area.bottom() - area.height() * 0.21;
  const auto bar = [&](double y, int count, int place, const QColor& color) {
    painter.fillRect(QRectF(left + width * place / count, y, width / count, height), color);
  };
  for (int i = 0; i < static_cast<int>(colors.size()); ++i)
    bar(top, static_cast<int>(colors.size()), i, ToQColor(colors[static_cast<std::size_t>(i)]));
  for (int i = 0; i < kGreys; ++i) {
    const int grey = 255 * i / (kGreys - 1);
    bar(top + height, kGreys, i, QColor(grey, grey, grey));
  }
}

}  // namespace

void PaintTestCard(QPainter& painter, const QRectF& area) {
  painter.save();
  painter.fillRect(area, ToQColor(kBoardShade));
  painter.setBrush(Qt::NoBrush);
  PaintFrame(painter, area, 0.03, 0.001, ToQColor(kQuietText));
  PaintFrame(painter, area, 0, 0.003, Qt::white);
  PaintCorners(painter, area);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ToQColor(kBoardLight), std::max(1.0, area.height() * 0.004)));
  painter.drawEllipse(area.center(), area.height() * 0.46, area.height() * 0.46);
  PaintBars(painter, area);
  painter.restore();
}

}  // namespace pawnfield
