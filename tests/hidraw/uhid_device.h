// A HID device that the kernel takes for a real one: what the test feeds it is what the device reports, and what the
// program writes to it is kept with its time.
#pragma once

#include <fcntl.h>
#include <linux/uhid.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace pawnfield {

class UhidDevice {
 public:
  struct Received {
    std::chrono::steady_clock::time_point At;
    std::string Bytes;
  };

  // Lengths are the bytes of a report without its number, which these devices don't have.
  UhidDevice(int vendor, int product, char inputLength, char outputLength)
      : file_(open("/dev/uhid", O_RDWR | O_CLOEXEC)) {
    if (file_ < 0) return;
    // One vendor-defined collection with plain bytes each way.
    std::string descriptor{"\x06\x00\xFF\x09\x01\xA1\x01\x15\x00\x26\xFF\x00\x75\x08\x09\x01", 16};
    descriptor += {'\x95', inputLength, '\x81', '\x02', '\x09', '\x02', '\x95', outputLength, '\x91', '\x02', '\xC0'};
    uhid_event event{};
    event.type = UHID_CREATE2;
    std::copy(descriptor.begin(), descriptor.end(), event.u.create2.rd_data);
    event.u.create2.rd_size = static_cast<unsigned short>(descriptor.size());
    constexpr unsigned kUsb = 3;
    event.u.create2.bus = kUsb;
    event.u.create2.vendor = static_cast<unsigned>(vendor);
    event.u.create2.product = static_cast<unsigned>(product);
    Send(event);
    listener_ = std::thread([this] { Listen(); });
  }
  // Pulls the device out.
  ~UhidDevice() {
    ends_ = true;
    if (listener_.joinable()) listener_.join();
    if (file_ >= 0) close(file_);
  }
  UhidDevice(const UhidDevice&) = delete;
  UhidDevice& operator=(const UhidDevice&) = delete;

  void Report(const std::string& bytes) {
    uhid_event event{};
    event.type = UHID_INPUT2;
    event.u.input2.size = static_cast<unsigned short>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), event.u.input2.data);
    Send(event);
  }
  std::vector<Received> Outputs() {
    const std::lock_guard lock(mutex_);
    return outputs_;
  }

 private:
  void Send(const uhid_event& event) {
    if (write(file_, &event, sizeof event) < 0) std::perror("uhid");
  }
  void Listen() {
    constexpr int kLookMs = 10;
    while (!ends_) {
      pollfd state{file_, POLLIN, 0};
      if (poll(&state, 1, kLookMs) <= 0) continue;
      uhid_event event{};
      if (read(file_, &event, sizeof event) <= 0 || event.type != UHID_OUTPUT) continue;
      const std::lock_guard lock(mutex_);
      const auto* bytes = reinterpret_cast<const char*>(event.u.output.data);
      outputs_.push_back({std::chrono::steady_clock::now(), std::string(bytes, event.u.output.size)});
    }
  }

  int file_;
  std::atomic<bool> ends_{false};
  std::mutex mutex_;
  std::vector<Received> outputs_;
  std::thread listener_;
};

}  // namespace pawnfield
