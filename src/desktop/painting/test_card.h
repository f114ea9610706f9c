// The ground of the test picture: a line along the display's very edges, its corners, a circle that must be round, and
// the colours of the players, the verdicts and the greys between black and white.
#pragma once

#include <QPainter>

namespace pawnfield {

void PaintTestCard(QPainter& painter, const QRectF& area);

}  // namespace pawnfield
