// HID devices that a test plugs in, feeds with recorded reports and pulls.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "platform/ports.h"

namespace pawnfield {

class SimHid : public HidPort {
 public:
  explicit SimHid(const Clock& clock) : clock_(clock) {}

  struct Device {
    HidDevice Id;
    HidLengths Lengths;
  };
  struct Sent {
    std::int64_t AtMs = 0;
    std::string Report;
  };

  std::vector<HidDevice> Enumerate() const override;
  std::optional<int> Open(int vendor, const std::vector<int>& products) override;
  HidLengths Lengths() const override;
  HidRead Read(std::string& report) override;
  std::int64_t ArrivedUs() const override { return Instead != nullptr ? Instead->ArrivedUs() : 0; }
  std::size_t Write(const std::string& report) override;
  void Close() override;

  // A transceiver with the report lengths of its kind: 33 bytes each way, or 3 in and 9 out for the short form.
  void PlugTransceiver(int product = 0x1003);
  // All devices are gone, with what they have reported: reads and writes of an open one fail until it is closed.
  void Pull();
  // The place of the open device in Devices, -1 for none.
  int Opened() const { return open_; }

  // Another port that answers in this one's place, null for none.
  HidPort* Instead = nullptr;
  std::vector<Device> Devices;
  // What waits to be read, oldest first.
  std::deque<std::string> Reports;
  std::vector<Sent> Writes;

 private:
  const Clock& clock_;
  int open_ = -1;
  bool pulled_ = false;
};

}  // namespace pawnfield
