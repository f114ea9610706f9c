#include "desktop/devices/qt_device_watch.h"

namespace pawnfield {

namespace {
// One device comes as a burst of changes.
constexpr int kSoonMs = 50;
}  // namespace

QtDeviceWatch::QtDeviceWatch(const std::string& folder) : folder_(folder) {
  soon_.setSingleShot(true);
  soon_.setInterval(kSoonMs);
  soon_.callOnTimeout([this] {
    if (changed_) changed_();
  });
  if (folder_.Descriptor() < 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(folder_.Descriptor(), QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, &soon_, [this] {
    if (folder_.TakeChanges() && !soon_.isActive()) soon_.start();
  });
}

}  // namespace pawnfield
