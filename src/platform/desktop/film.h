// A frame of a film in a rectangle, in its own shape with black beside it.
#pragma once

#include <QImage>
#include <QPainter>

namespace pawnfield {

inline void PaintFilm(QPainter& painter, const QRectF& area, const QImage& frame) {
  painter.fillRect(area, Qt::black);
  if (frame.isNull()) return;
  QRectF place(QPointF(), QSizeF(frame.size()).scaled(area.size(), Qt::KeepAspectRatio));
  place.moveCenter(area.center());
  painter.drawImage(place, frame);
}

}  // namespace pawnfield
