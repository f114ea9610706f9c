#include "desktop/windows/key_button.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

#include "desktop/windows/model_widgets.h"

namespace pawnfield {

namespace {
constexpr double kSmallShare = 0.8;
constexpr int kEdge = 4;
constexpr int kKeyPadding = 4;
}  // namespace

void KeyButton::SetKey(const QString& key) {
  key_ = key;
  update();
}

void KeyButton::SetNote(const QString& note) {
  if (note == note_) return;
  note_ = note;
  update();
}

void KeyButton::SetFace(const QString& face) {
  if (face == face_) return;
  face_ = face;
  update();
}

QFont KeyButton::SmallFont() const {
  QFont small = font();
  small.setPixelSize(std::max(kSmallestPixels, static_cast<int>(QFontInfo(font()).pixelSize() * kSmallShare)));
  small.setPixelSize(std::min(small.pixelSize(), kSmallestPixels + 3));
  small.setWeight(QFont::Medium);
  return small;
}

QSize KeyButton::KeySize() const {
  if (key_.isEmpty()) return {0, 0};
  const QFontMetrics metrics(SmallFont());
  return {metrics.horizontalAdvance(key_) + 2 * kKeyPadding, metrics.height()};
}

int KeyButton::NeededWidth() const {
  const int key = key_.isEmpty() ? 0 : KeySize().width() + kEdge;
  return fontMetrics().horizontalAdvance(text()) + key + 2;
}

void KeyButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  if (!face_.isEmpty()) {
    int icon = option.icon.isNull() ? 0 : option.iconSize.width() + kEdge;
    // Words before signs where both don't fit.
    if (icon > 0 && fontMetrics().horizontalAdvance(face_) > width() - 2 * kEdge - icon) {
      option.icon = QIcon();
      icon = 0;
    }
    option.text = fontMetrics().elidedText(face_, Qt::ElideRight, width() - 2 * kEdge - icon);
  }
  // The text stays in the middle as long as the key leaves it room there.
  const int key = KeySize().width() + kEdge;
  const int text = fontMetrics().horizontalAdvance(option.text);
  if (!key_.isEmpty() && text + 2 * key + kEdge > width()) option.rect.setRight(option.rect.right() - key);
  const QRect whole = option.rect;
  if (!note_.isEmpty()) option.rect.setHeight(height() * 3 / 5);
  painter.drawControl(QStyle::CE_PushButtonLabel, option);
  if (!key_.isEmpty()) PaintKey(painter);
  if (!note_.isEmpty()) PaintNote(painter, whole);
}

void KeyButton::PaintKey(QPainter& painter) const {
  const QSize size = KeySize();
  const QRect place(QPoint(width() - size.width() - kEdge, height() - size.height() - kEdge), size);
  QColor ink = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(ink);
  painter.setBrush(Qt::NoBrush);
  painter.setOpacity(isEnabled() ? 0.55 : 0.5);
  painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  painter.setOpacity(1);
  painter.setFont(SmallFont());
  painter.drawText(place, Qt::AlignCenter, key_);
}

void KeyButton::PaintNote(QPainter& painter, const QRect& whole) const {
  const QFont small = SmallFont();
  QRect place = whole.adjusted(kEdge + 2, height() / 2, -kEdge - 2, -kEdge);
  place.setRight(std::min(place.right(), width() - KeySize().width() - 2 * kEdge));
  painter.setFont(small);
  painter.setPen(QColor(isEnabled() ? "#A7B2C8" : "#5A6784"));
  painter.drawText(place, Qt::AlignCenter, QFontMetrics(small).elidedText(note_, Qt::ElideRight, place.width()));
}

}  // namespace pawnfield
