// The folder of the system's devices, watched by the kernel: says when a HID device or a serial adapter has come, gone
// or changed its rights. Knows no toolkit.
#pragma once

#include <string>

namespace pawnfield {

class DeviceFolder {
 public:
  // Without a watch, where the system gives none, nothing is ever reported.
  explicit DeviceFolder(const std::string& folder = "/dev");
  ~DeviceFolder();
  DeviceFolder(const DeviceFolder&) = delete;
  DeviceFolder& operator=(const DeviceFolder&) = delete;

  // Readable when something has happened in the folder; -1 without a watch.
  int Descriptor() const { return descriptor_; }
  // Takes what has happened, without waiting. True when it concerned a device that the program could use.
  bool TakeChanges();

 private:
  int descriptor_ = -1;
};

}  // namespace pawnfield
