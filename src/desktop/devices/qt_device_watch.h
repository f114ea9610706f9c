// Notifies the message loop of the devices that come and go in the system's folder.
#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <memory>

#include "desktop/devices/device_folder.h"
#include "platform/ports.h"

namespace pawnfield {

class QtDeviceWatch : public DeviceWatch {
 public:
  explicit QtDeviceWatch(const std::string& folder = "/dev");
  void OnChanged(std::function<void()> changed) override { changed_ = std::move(changed); }

 private:
  DeviceFolder folder_;
  std::unique_ptr<QSocketNotifier> notifier_;
  QTimer soon_;
  std::function<void()> changed_;
};

}  // namespace pawnfield
