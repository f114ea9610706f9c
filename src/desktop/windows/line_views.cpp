#include "desktop/windows/line_views.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace pawnfield {

namespace {

constexpr int kChipEdge = 9;
constexpr int kLight = 8;
constexpr int kLightGap = 6;
constexpr int kLineGap = 5;

QColor LightOf(ChipState state) {
  switch (state) {
    case ChipState::Good:
      return QColor("#1E9E5A");
    case ChipState::Amber:
      return QColor("#F2B84B");
    case ChipState::Red:
      return QColor("#FF5A60");
    case ChipState::None:
      break;
  }
  return QColor("#5A6784");
}

QColor ColorOfPlayer(const QString& number) {
  if (number == "1") return QColor("#FF6B70");
  if (number == "2") return QColor("#FFD84D");
  return number == "3" ? QColor("#46E08C") : QColor("#E6EAF2");
}

}  // namespace

ChipView::ChipView(QWidget* parent) : QAbstractButton(parent) {
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ChipView::Show(const QString& text, ChipState state) {
  if (text == this->text() && state == state_) return;
  setText(text);
  state_ = state;
  updateGeometry();
  update();
}

QSize ChipView::sizeHint() const {
  ensurePolished();
  const int width = kChipEdge + kLight + kLightGap + fontMetrics().horizontalAdvance(text()) + kChipEdge;
  return {width + 2, fontMetrics().height() + 10};
}

void ChipView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF pill = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  const bool warns = state_ == ChipState::Amber || state_ == ChipState::Red;
  painter.setPen(hasFocus() ? QColor("#FFE0A0") : (warns ? LightOf(state_) : QColor("#25304A")));
  painter.setBrush(underMouse() ? QColor("#25304A") : QColor("#171F33"));
  painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
  painter.setPen(Qt::NoPen);
  painter.setBrush(LightOf(state_));
  painter.drawEllipse(QRectF(kChipEdge, (height() - kLight) / 2.0, kLight, kLight));
  painter.setPen(QColor("#E6EAF2"));
  painter.drawText(rect().adjusted(kChipEdge + kLight + kLightGap, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, text());
}

void EdgeFrame::paintEvent(QPaintEvent*) {
  constexpr double kLine = 3, kRound = 9;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor("#F2B84B"), kLine));
  painter.drawRoundedRect(QRectF(rect()).adjusted(kLine / 2, kLine / 2, -kLine / 2, -kLine / 2), kRound, kRound);
}

QSize ElidedLabel::minimumSizeHint() const { return {0, QLabel::minimumSizeHint().height()}; }

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  const QRect area = contentsRect();
  painter.drawText(area, static_cast<int>(alignment()), fontMetrics().elidedText(text(), Qt::ElideRight, area.width()));
}

CueView::CueView(QWidget* parent) : QTreeWidget(parent) {
  setColumnCount(5);
  setFocusPolicy(Qt::NoFocus);
  setSelectionMode(QAbstractItemView::NoSelection);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setMinimumHeight(80);
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  header()->setSectionResizeMode(1, QHeaderView::Stretch);
  header()->setStretchLastSection(false);
  header()->setMinimumSectionSize(20);
}

void CueView::paintEvent(QPaintEvent* event) {
  QTreeWidget::paintEvent(event);
  if (topLevelItemCount() > 0) return;
  constexpr int kEdge = 10;
  QPainter painter(viewport());
  painter.setPen(QColor("#8592AD"));
  painter.drawText(viewport()->rect().adjusted(kEdge, kEdge, -kEdge, -kEdge), Qt::AlignTop | Qt::TextWordWrap,
                   "No letter has a sound, picture or film in this bank. Press Sounds to give it one.");
}

OrderView::OrderView(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void OrderView::SetRows(const QList<QStringList>& rows) {
  if (rows == rows_) return;
  const bool grows = rows.size() != rows_.size();
  rows_ = rows;
  if (grows) updateGeometry();
  update();
}

int OrderView::LineHeight() const { return fontMetrics().height() + kLineGap; }

QSize OrderView::sizeHint() const {
  ensurePolished();
  return {120, static_cast<int>(rows_.size()) * LineHeight()};
}

void OrderView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QFont bold = font();
  bold.setBold(true);
  QRect line(0, 0, width(), LineHeight());
  for (const QStringList& row : rows_) {
    const QString when = row.value(2);
    painter.setFont(font());
    painter.setPen(row.value(3) == "amber" ? QColor("#F2B84B") : QColor("#E6EAF2"));
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, when);
    const int room = width() - fontMetrics().horizontalAdvance(when) - kLineGap;
    painter.setFont(bold);
    painter.setPen(ColorOfPlayer(row.value(4)));
    const QString who = painter.fontMetrics().elidedText(row.value(0) + ' ' + row.value(1), Qt::ElideRight, room);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, who);
    line.translate(0, LineHeight());
  }
}

}  // namespace pawnfield
