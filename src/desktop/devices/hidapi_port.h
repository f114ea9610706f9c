// The HID devices of this machine by hidapi's hidraw back end.
#pragma once

#include <hidapi.h>

#include "platform/ports.h"

namespace pawnfield {

class HidapiPort : public HidPort {
 public:
  HidapiPort();
  ~HidapiPort() override;
  HidapiPort(const HidapiPort&) = delete;
  HidapiPort& operator=(const HidapiPort&) = delete;

  std::vector<HidDevice> Enumerate() const override;
  std::optional<int> Open(int vendor, const std::vector<int>& products) override;
  HidLengths Lengths() const override { return lengths_; }
  HidRead Read(std::string& report) override;
  std::size_t Write(const std::string& report) override;
  void Close() override;

 private:
  bool OpenPath(const char* path);

  hid_device* device_ = nullptr;
  HidLengths lengths_;
  bool numbered_ = false;
  std::string received_;
};

}  // namespace pawnfield
