#include "desktop/windows/hold_button.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace pawnfield {

namespace {

constexpr int kTickMs = 25;
// While the loop stands still a release waits unheard, so that such time hardly counts as held.
constexpr int kLongestTickMs = 200;
constexpr double kEdge = 3;
constexpr double kCorner = 6;

bool IsHoldKey(const QKeyEvent& key) { return key.key() == Qt::Key_Space || key.key() == Qt::Key_Select; }

}  // namespace

double HoldButton::Filled() const { return std::min(1.0, static_cast<double>(heldMs_) / kHoldMs); }

void HoldButton::Begin() {
  if (!isEnabled() || tick_.isActive()) return;
  heldMs_ = 0;
  sinceTick_.start();
  tick_.start(kTickMs, Qt::PreciseTimer, this);
  setDown(true);
}

void HoldButton::End() {
  if (!tick_.isActive()) return;
  tick_.stop();
  heldMs_ = 0;
  setDown(false);
  update();
}

void HoldButton::timerEvent(QTimerEvent* event) {
  if (event->timerId() != tick_.timerId()) {
    KeyButton::timerEvent(event);
    return;
  }
  heldMs_ += std::min(static_cast<int>(sinceTick_.restart()), kLongestTickMs);
  update();
  if (heldMs_ < kHoldMs) return;
  End();
  emit Held();
}

void HoldButton::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Begin();
}

void HoldButton::mouseMoveEvent(QMouseEvent* event) {
  if (!rect().contains(event->pos())) End();
}

void HoldButton::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !tick_.isActive()) return;
  End();
  emit LetGo();
}

// A held key repeats itself as presses and releases; only its own count.
void HoldButton::keyPressEvent(QKeyEvent* event) {
  if (!IsHoldKey(*event)) {
    KeyButton::keyPressEvent(event);
  } else if (!event->isAutoRepeat()) {
    Begin();
  }
}

void HoldButton::keyReleaseEvent(QKeyEvent* event) {
  if (!IsHoldKey(*event)) {
    KeyButton::keyReleaseEvent(event);
  } else if (!event->isAutoRepeat() && tick_.isActive()) {
    End();
    emit LetGo();
  }
}

void HoldButton::focusOutEvent(QFocusEvent* event) {
  End();
  KeyButton::focusOutEvent(event);
}

void HoldButton::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange && !isEnabled()) End();
  KeyButton::changeEvent(event);
}

void HoldButton::hideEvent(QHideEvent* event) {
  End();
  KeyButton::hideEvent(event);
}

void HoldButton::paintEvent(QPaintEvent* event) {
  KeyButton::paintEvent(event);
  if (heldMs_ == 0) return;
  const double half = kEdge / 2;
  QPainterPath edge;
  edge.addRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), kCorner, kCorner);
  const double length = edge.length() / kEdge;
  QPen pen(QColor("#FF6B70"), kEdge, Qt::SolidLine, Qt::FlatCap);
  pen.setDashPattern({std::max(0.01, length * Filled()), length});
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(pen);
  painter.drawPath(edge);
}

}  // namespace pawnfield
