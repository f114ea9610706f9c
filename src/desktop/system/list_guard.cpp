#include "desktop/system/list_guard.h"

#include <QApplication>
#include <QEvent>
#include <QToolTip>
#include <QWindow>

#include "desktop/system/screens.h"

namespace pawnfield {

namespace {

// For a window that no compositor shows, and for one that is shown and isn't given the keyboard.
constexpr int kUnseenMs = 10000;
constexpr int kSeenMs = 1000;

bool OpensOver(const QWidget& window) { return window.windowType() == Qt::Popup || window.windowType() == Qt::ToolTip; }

}  // namespace

void CloseOpenLists() {
  while (QWidget* list = QApplication::activePopupWidget()) list->close();
}

ListGuard::ListGuard() {
  wait_.setSingleShot(true);
  wait_.callOnTimeout(this, [this] { Arrived(); });
  if (!WindowsHavePlaces()) qApp->installEventFilter(this);
}

bool ListGuard::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Expose) {
    const bool awaited = window_ != nullptr && watched == window_->windowHandle();
    if (wait_.isActive() && awaited && window_->windowHandle()->isExposed()) wait_.start(kSeenMs);
    return false;
  }
  if (event->type() != QEvent::Show && event->type() != QEvent::WindowActivate) return false;
  auto* window = qobject_cast<QWidget*>(watched);
  if (window == nullptr || !window->isWindow()) return false;
  if (event->type() == QEvent::WindowActivate) {
    if (window == window_) Arrived();
  } else if (!OpensOver(*window)) {
    Await(*window);
  } else if (wait_.isActive()) {
    PutOff(*window);
  }
  return false;
}

void ListGuard::Await(QWidget& window) {
  CloseOpenLists();
  QToolTip::hideText();
  window_ = &window;
  wait_.start(kUnseenMs);
}

// Before the compositor can have answered, so that nothing is drawn into it.
void ListGuard::PutOff(QWidget& opened) {
  box_ = qobject_cast<QComboBox*>(opened.parentWidget());
  QMetaObject::invokeMethod(
      &opened, [&opened] { opened.close(); }, Qt::QueuedConnection);
}

void ListGuard::Arrived() {
  wait_.stop();
  window_.clear();
  if (QComboBox* box = std::exchange(box_, nullptr); box != nullptr && box->isVisible() && box->isEnabled()) {
    box->showPopup();
  }
}

}  // namespace pawnfield
