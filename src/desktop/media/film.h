// A frame of a film in a rectangle, in its own shape with black beside it.
#pragma once

#include <QImage>
#include <QPainter>

namespace pawnfield {

// Where a film of that size stands in the area.
inline QRectF FilmPlace(const QRectF& area, const QSizeF& frame) {
  QRectF place(QPointF(), frame.scaled(area.size(), Qt::KeepAspectRatio));
  place.moveCenter(area.center());
  return place;
}

inline void PaintFilm(QPainter& painter, const QRectF& area, const QImage& frame) {
  const QRectF place = FilmPlace(area, frame.size());
  if (frame.isNull() || !place.contains(area)) painter.fillRect(area, Qt::black);
  if (!frame.isNull()) painter.drawImage(place, frame);
}

}  // namespace pawnfield
