// The HID devices of this machine by hidapi's hidraw back end; reports are read and stamped by a thread of their own.
#pragma once

#include <hidapi.h>

#include <functional>
#include <memory>

#include "desktop/devices/hid_reader.h"
#include "platform/ports.h"

namespace pawnfield {

class HidapiPort : public HidPort {
 public:
  // Has something done between the main thread's events; may be called on any thread.
  using Post = std::function<void(std::function<void()>)>;
  // Without a post OnReport is never called, and the port is polled.
  explicit HidapiPort(Post post = {});
  ~HidapiPort() override;
  HidapiPort(const HidapiPort&) = delete;
  HidapiPort& operator=(const HidapiPort&) = delete;

  std::vector<HidDevice> Enumerate() const override;
  std::optional<int> Open(int vendor, const std::vector<int>& products) override;
  HidLengths Lengths() const override { return lengths_; }
  HidRead Read(std::string& report) override;
  std::int64_t ArrivedUs() const override { return arrivedUs_; }
  std::size_t Write(const std::string& report) override;
  void Close() override;

 private:
  bool OpenPath(const char* path);

  hid_device* device_ = nullptr;
  HidLengths lengths_;
  bool numbered_ = false;
  std::int64_t arrivedUs_ = 0;
  Post post_;
  std::unique_ptr<HidReader> reader_;
};

}  // namespace pawnfield
