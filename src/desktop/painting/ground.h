// The dark blue ground that both boards stand on.
#pragma once

#include <QPainter>

namespace pawnfield {

void PaintGround(QPainter& painter, const QRect& area);
// The darker one beneath a game's result.
void PaintResultGround(QPainter& painter, const QRect& area);

}  // namespace pawnfield
