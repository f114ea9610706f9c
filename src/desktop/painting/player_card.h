// What stands for a player on both screens: the sign of the pieces (cross, ring, triangle), the card of name and score,
// and the light on the card of the one who has the turn.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <string>

#include "platform/controls.h"

namespace pawnfield {

// A card's sign, in shares of the card's height: its size, and its place from the left.
inline constexpr double kCardSign = 0.34;
inline constexpr double kCardSignLeft = 0.16;

QColor ToQColor(Color color);
// Whether a box's told picture is the one of the player who has the turn.
bool IsLitBox(const std::string& picture);
// Of a player 1..3, as outlines within the box's middle.
QPainterPath PlayerSign(int player, const QRectF& box);
void PaintPlayerSign(QPainter& painter, int player, const QRectF& box, bool lit);
// Lit in the player's own colour, or dim.
void PaintPlayerCard(QPainter& painter, const QRectF& rect, int player, bool lit);
// The colour of a name or score on a card.
Color OnCard(Color color, bool lit);
// The colour of a card's middle.
Color CardGround(int player, bool lit);

}  // namespace pawnfield
