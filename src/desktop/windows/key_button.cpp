#include "desktop/windows/key_button.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

#include "desktop/windows/model_widgets.h"

namespace pawnfield {

namespace {
constexpr double kSmallShare = 0.8;
constexpr int kLargestSmall = kSmallestPixels + 3;
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

void KeyButton::SetGrowth(double growth) {
  if (sign_.isEmpty()) sign_ = iconSize();
  growth_ = growth;
  setIconSize(sign_ * growth);
  update();
}

QFont KeyButton::SmallFont() const {
  QFont small = font();
  const auto share = static_cast<int>(QFontInfo(font()).pixelSize() / growth_ * kSmallShare);
  small.setPixelSize(static_cast<int>(std::clamp(share, kSmallestPixels, kLargestSmall) * growth_));
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
    PaintFace(painter, option);
    return;
  }
  // The text stays in the middle as long as the key leaves it room there.
  const int key = KeySize().width() + kEdge;
  const int text = fontMetrics().horizontalAdvance(option.text);
  const bool beside = note_.isEmpty() && text + 2 * key + kEdge > width();
  if (!key_.isEmpty() && beside) option.rect.setRight(option.rect.right() - key);
  if (!note_.isEmpty()) option.rect.setHeight(height() * 3 / 5);
  painter.drawControl(QStyle::CE_PushButtonLabel, option);
  if (!key_.isEmpty()) PaintKey(painter);
  if (!note_.isEmpty()) PaintNote(painter);
}

// The sign stands beside the words in letters that may shrink for it; where both don't fit, words come first.
void KeyButton::PaintFace(QPainter& painter, const QStyleOptionButton& option) const {
  const int sign = option.icon.isNull() ? 0 : option.iconSize.width() + kEdge;
  const int room = width() - 2 * kEdge;
  QFont letters = font();
  const auto words = [&] { return QFontMetrics(letters).horizontalAdvance(face_); };
  while (words() + sign > room && letters.pixelSize() > kSmallestPixels) letters.setPixelSize(letters.pixelSize() - 1);
  const bool signFits = sign > 0 && words() + sign <= room;
  if (!signFits) letters = font();
  const QFontMetrics metrics(letters);
  const QString text = metrics.elidedText(face_, Qt::ElideRight, room);
  const int needed = metrics.horizontalAdvance(text) + (signFits ? sign : 0);
  QRect place((width() - needed) / 2, 0, needed, height());
  if (signFits) {
    const QRect square(QPoint(place.left(), (height() - option.iconSize.height()) / 2), option.iconSize);
    option.icon.paint(&painter, square, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    place.setLeft(place.left() + sign);
  }
  painter.setFont(letters);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
  painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextDontClip, text);
}

void KeyButton::PaintKey(QPainter& painter) const {
  const QSize size = KeySize();
  // A note has the foot for itself.
  const int top = note_.isEmpty() ? height() - size.height() - kEdge : kEdge;
  const QRect place(QPoint(width() - size.width() - kEdge, top), size);
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

void KeyButton::PaintNote(QPainter& painter) const {
  const QFont small = SmallFont();
  const QRect place = rect().adjusted(kEdge + 2, height() / 2, -kEdge - 2, -kEdge);
  painter.setFont(small);
  painter.setPen(QColor(isEnabled() ? "#A7B2C8" : "#5A6784"));
  painter.drawText(place, Qt::AlignCenter, QFontMetrics(small).elidedText(note_, Qt::ElideRight, place.width()));
}

}  // namespace pawnfield
