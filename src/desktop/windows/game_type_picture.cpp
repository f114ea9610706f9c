#include "desktop/windows/game_type_picture.h"

#include <QPainter>
#include <QPainterPath>

#include "data/game_types.h"
#include "data/house_colors.h"
#include "data/players.h"
#include "desktop/painting/player_card.h"

namespace pawnfield {

namespace {

constexpr QSize kSize(148, 84);
constexpr QRectF kSheet(96, 7, 44, 25);
constexpr double kSign = 20;
constexpr double kSignTop = 52;
constexpr double kSignStep = 44;

QPointF SignMiddle(int player) { return {30 + (player - 1) * kSignStep, kSignTop + kSign / 2}; }

// A sheet with a question of a set, or the host's own words.
void PaintQuestion(QPainter& painter, bool fromSet) {
  painter.setPen(QPen(ToQColor(kQuietText), 1.4));
  painter.setBrush(fromSet ? QBrush(ToQColor(FromRgb(0x22304F))) : QBrush(Qt::NoBrush));
  if (fromSet) {
    painter.drawRoundedRect(kSheet, 4, 4);
  } else {
    painter.drawEllipse(kSheet.adjusted(6, 2, -6, -2));
  }
  painter.setPen(ToQColor(kGold));
  QFont font = painter.font();
  font.setPixelSize(15);
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(kSheet, Qt::AlignCenter, "?");
}

void PaintArrow(QPainter& painter, const QPointF& from, const QPointF& to, double bend) {
  painter.setPen(QPen(ToQColor(kGold), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  QPainterPath path(from);
  const QPointF middle = (from + to) / 2 + QPointF(0, -bend);
  path.quadTo(middle, to);
  painter.drawPath(path);
  const QLineF last(middle, to);
  for (const double turn : {150.0, 210.0}) {
    QLineF side = QLineF::fromPolar(6, last.angle() + turn);
    side.translate(to);
    painter.drawLine(side);
  }
}

// The turn goes from player to player, or comes back to the one who has it.
void PaintTurn(QPainter& painter, bool stays) {
  const QPointF above(0, -kSign / 2 - 4);
  if (stays) {
    PaintArrow(painter, SignMiddle(1) + above + QPointF(-6, 0), SignMiddle(1) + above + QPointF(8, 0), 22);
    return;
  }
  for (const int player : {1, 2}) {
    PaintArrow(painter, SignMiddle(player) + above + QPointF(4, 0), SignMiddle(player + 1) + above + QPointF(-4, 0),
               14);
  }
}

// All may press; one was first.
void PaintRingIn(QPainter& painter) {
  painter.setPen(QPen(ToQColor(kGold), 2, Qt::SolidLine, Qt::RoundCap));
  painter.setBrush(Qt::NoBrush);
  for (const double reach : {16.0, 21.0}) {
    const QRectF arc(SignMiddle(2) - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach));
    painter.drawArc(arc, 30 * 16, 120 * 16);
  }
}

}  // namespace

GameTypePicture::GameTypePicture(std::size_t row) : row_(row) {
  setFixedSize(kSize);
  setAccessibleName(kGameTypes.at(row).Caption);
}

void GameTypePicture::paintEvent(QPaintEvent*) {
  const GameNature& type = kGameTypes.at(row_);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor("#33415F"), 1));
  painter.setBrush(ToQColor(kDeepGround));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
  PaintQuestion(painter, type.Trivia);
  const int lit = type.RingIn ? 2 : 1;
  for (int player = 1; player <= kPlayers; ++player) {
    painter.setOpacity(player == lit ? 1 : 0.6);
    PaintPlayerSign(painter, player, QRectF(SignMiddle(player) - QPointF(kSign, kSign) / 2, QSizeF(kSign, kSign)),
                    true);
  }
  painter.setOpacity(1);
  if (type.RingIn) {
    PaintRingIn(painter);
  } else {
    PaintTurn(painter, type.AfterClaim == NextTurn::Stays);
  }
}

}  // namespace pawnfield
