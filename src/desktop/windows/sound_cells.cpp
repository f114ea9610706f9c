#include "desktop/windows/sound_cells.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "data/house_colors.h"
#include "desktop/painting/player_card.h"
#include "desktop/windows/grid_view.h"
#include "forms/sound_effects_form.h"

namespace pawnfield {

namespace {

constexpr int kSign = 12;
constexpr int kMargin = 8;
constexpr int kLengthWidth = 46;
constexpr int kPlusReach = 16;

QRect TriangleArea(const QRect& cell) { return {cell.left(), cell.top(), kSign + 2 * kMargin, cell.height()}; }

QRect PlusArea(const QRect& cell) {
  return {cell.center().x() - kPlusReach, cell.top(), 2 * kPlusReach, cell.height()};
}

QPainterPath Triangle(const QRect& cell) {
  const QPointF left(cell.left() + kMargin, cell.center().y() + 0.5);
  QPainterPath path;
  path.moveTo(left + QPointF(0, -kSign / 2.0));
  path.lineTo(left + QPointF(kSign * 0.85, 0));
  path.lineTo(left + QPointF(0, kSign / 2.0));
  path.closeSubpath();
  return path;
}

}  // namespace

SoundCells::SoundCells(SoundEffectsForm& form, GridView& view) : QStyledItemDelegate(&view), form_(form), view_(view) {
  view_.viewport()->setAttribute(Qt::WA_Hover);
  connect(&lengths_, &MediaLengths::Found, view_.viewport(), qOverload<>(&QWidget::update));
}

bool SoundCells::IsEmpty(const QModelIndex& index) const {
  const std::string text = form_.Grid1.Cell(index.row() + 1, index.column() + 1);
  return text.empty() || text == form_.Grid1.Placeholder;
}

void SoundCells::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
  if (selected) painter->fillRect(option.rect, option.palette.highlight());
  const QColor ink = selected ? option.palette.highlightedText().color() : ToQColor(kHouseText);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (IsEmpty(index)) {
    painter->setPen(selected || hovered ? ink : QColor("#5A6784"));
    QFont font = option.font;
    font.setPixelSize(hovered ? 20 : 13);
    painter->setFont(font);
    painter->drawText(option.rect, Qt::AlignCenter, hovered ? QString("+") : QString(QChar(0x2013)));
  } else {
    painter->fillPath(Triangle(option.rect), selected ? ink : ToQColor(hovered ? kGold : kQuietText));
    const QRect name = option.rect.adjusted(kSign + 2 * kMargin, 0, -kLengthWidth, 0);
    painter->setPen(ink);
    painter->drawText(name, Qt::AlignVCenter | Qt::AlignLeft,
                      option.fontMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, name.width()));
    painter->setPen(selected ? ink : ToQColor(kQuietText));
    const std::string file = form_.FileOf ? form_.FileOf(index.row() + 1, index.column() + 1) : std::string();
    painter->drawText(option.rect.adjusted(0, 0, -kMargin, 0), Qt::AlignVCenter | Qt::AlignRight,
                      file.empty() ? QString() : ClockText(lengths_.Of(file)));
  }
  painter->restore();
}

bool SoundCells::editorEvent(QEvent* event, QAbstractItemModel*, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
  if (event->type() != QEvent::MouseButtonRelease) return false;
  const auto* mouse = static_cast<QMouseEvent*>(event);
  if (mouse->button() != Qt::LeftButton) return false;
  const QPoint at = mouse->position().toPoint();
  const int row = index.row() + 1;
  const int column = index.column() + 1;
  if (IsEmpty(index) && PlusArea(option.rect).contains(at)) {
    form_.Grid1.DblClickCell(row, column);
    return true;
  }
  if (IsEmpty(index) || !TriangleArea(option.rect).contains(at) || !form_.OnPlayCell) return false;
  form_.Dispatch([&] { form_.OnPlayCell(row, column); }, "Grid1_Play");
  return true;
}

}  // namespace pawnfield
