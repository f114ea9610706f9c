#include "desktop/system/qt_displays.h"

#include <QPainterPath>
#include <QRegion>
#include <QWidget>
#include <QWindow>
#include <utility>

#include "desktop/files/windows_1252.h"

namespace pawnfield {

std::vector<MonitorInfo> QtDisplays::Enumerate() const {
  std::vector<MonitorInfo> monitors;
  for (const QScreen* screen : screens_.List()) {
    const QRect area = screens_.Place(*screen);
    monitors.push_back(
        {area.left(), area.top(), area.left() + area.width(), area.top() + area.height(), Escape(screen->name())});
  }
  return monitors;
}

void QtDisplays::OnChanged(std::function<void()> changed) { screens_.Subscribe(std::move(changed)); }

// The native window takes the flag without being hidden or moved, which the widget's own call would do.
void QtDisplays::SetTopMost(Form& form, bool onTop) {
  QWidget* window = windowOf_(form);
  if (window == nullptr) return;
  window->winId();
  window->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, onTop);
}

void QtDisplays::RoundWindow(Form& form, int radius) {
  QWidget* window = windowOf_(form);
  if (window == nullptr) return;
  QPainterPath outline;
  outline.addRoundedRect(window->rect(), radius, radius);
  window->setMask(QRegion(outline.toFillPolygon().toPolygon()));
}

void QtDisplays::KeepAwake(bool awake) {
  awake_ = awake;
  if (inhibitor_) {
    awake ? inhibitor_->Hold() : inhibitor_->Release();
  } else {
    FindBuses();
  }
}

void QtDisplays::TryAwake(std::function<void(const AwakeAnswer& answer)> then) {
  trial_ = std::move(then);
  inhibitor_ ? Try() : FindBuses();
}

void QtDisplays::Try() {
  if (!trial_) return;
  inhibitor_->Try([then = std::exchange(trial_, {})](bool saver, bool sleep) { then({saver, sleep}); });
}

void QtDisplays::FindBuses() {
  if (buses_) return;
  buses_ = std::make_unique<BusFinder>([this](const QDBusConnection& session, const QDBusConnection& system) {
    inhibitor_.emplace(session, system);
    if (awake_) inhibitor_->Hold();
    Try();
  });
}

}  // namespace pawnfield
