#include "desktop/windows/model_widgets.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include "desktop/painting/player_card.h"

namespace pawnfield {

void ModelComboBox::showPopup() {
  emit AboutToOpen();
  QComboBox::showPopup();
}

bool ModelLabel::hasHeightForWidth() const { return !property("shrinks").toBool() && QLabel::hasHeightForWidth(); }

void ModelLabel::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit Clicked();
}

void ModelLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit DoubleClicked();
}

void ModelLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
  QFont fitted = font();
  const int flags = static_cast<int>(alignment()) | (wordWrap() ? Qt::TextWordWrap : 0);
  const QRect area = contentsRect();
  while (fitted.pixelSize() > kSmallestPixels) {
    const QRect needed = QFontMetrics(fitted).boundingRect(area, flags, text());
    if (needed.width() <= area.width() && needed.height() <= area.height()) break;
    fitted.setPixelSize(fitted.pixelSize() - 1);
  }
  painter.setFont(fitted);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter.drawText(area, flags, text());
}

void PictureFrame::SetPicture(const QPixmap& picture) {
  picture_ = picture;
  update();
}

void PictureFrame::SetCard(int player, bool sign) {
  player_ = player;
  sign_ = sign;
  setProperty("lit", lit_);
  update();
}

void PictureFrame::SetLit(bool lit) {
  if (lit == lit_) return;
  lit_ = lit;
  setProperty("lit", lit);
  for (QLabel* text : findChildren<QLabel*>()) {
    style()->unpolish(text);
    style()->polish(text);
  }
  update();
}

void PictureFrame::paintEvent(QPaintEvent* event) {
  if (player_ != 0) {
    QPainter painter(this);
    PaintPlayerCard(painter, rect(), player_, lit_);
    const double side = height() * kCardSign;
    const QRectF place(height() * kCardSignLeft + 2, (height() - side) / 2, side, side);
    if (sign_) PaintPlayerSign(painter, player_, place, lit_);
    return;
  }
  if (picture_.isNull()) {
    QFrame::paintEvent(event);
    return;
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  // Fills the frame in its own shape; what reaches over is cut at both sides alike.
  const QSizeF part = QSizeF(size()).scaled(picture_.size(), Qt::KeepAspectRatio);
  const QPointF corner((picture_.width() - part.width()) / 2, (picture_.height() - part.height()) / 2);
  painter.drawPixmap(QRectF(rect()), picture_, QRectF(corner, part));
}

void PictureFrame::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit Clicked();
}

void LeavePlace(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(false);
  widget.setSizePolicy(policy);
}

}  // namespace pawnfield
