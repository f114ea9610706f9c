#include "desktop/windows/blinker.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QWidget>
#include <QWindow>

namespace pawnfield {

namespace {
// Longer than the slowest blink.
constexpr int kRestMs = 1600;
}  // namespace

Blinker::Blinker(QWidget& widget, bool lit) : widget_(widget), lit_(lit) {
  widget_.installEventFilter(this);
  rest_.setSingleShot(true);
  rest_.setInterval(kRestMs);
  QObject::connect(&rest_, &QTimer::timeout, this, [this] { widget_.update(); });
}

void Blinker::Show(bool lit) {
  if (lit == lit_) return;
  lit_ = lit;
  HandOver() ? rest_.start() : widget_.update();
}

bool Blinker::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &widget_) return event->type() == QEvent::Paint && !lit_;
  // What the toolkit shows again of its own may hold the other side.
  if (event->type() == QEvent::Expose) widget_.update();
  return false;
}

bool Blinker::HandOver() {
  QWidget& window = *widget_.window();
  QWindow* handle = window.windowHandle();
  // A Wayland surface takes its frames from one store only.
  if (QGuiApplication::platformName() != "xcb" || handle == nullptr || !handle->isExposed()) return false;
  if (!widget_.isVisible()) return false;
  const QRect place(widget_.mapTo(&window, QPoint()), widget_.size());
  Side& side = sides_[lit_ ? 1 : 0];
  Prepare(side, window.grab(place).toImage(), *handle);
  side.Store->flush(place, handle, -place.topLeft());
  return true;
}

// What stands around and below the widget changes seldom.
void Blinker::Prepare(Side& side, const QImage& picture, QWindow& window) {
  if (side.Store && side.Store->window() == &window && side.Picture == picture) return;
  window.installEventFilter(this);
  side.Picture = picture;
  side.Store = std::make_unique<QBackingStore>(&window);
  const QRect area(QPoint(), picture.size() / picture.devicePixelRatio());
  side.Store->resize(area.size());
  side.Store->beginPaint(area);
  QPainter(side.Store->paintDevice()).drawImage(area, picture);
  side.Store->endPaint();
}

}  // namespace pawnfield
