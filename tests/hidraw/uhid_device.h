// A HID device that the kernel takes for a real one: what the test feeds it is what the device reports, and what the
// program writes to it is kept with its time.
#pragma once

#include <linux/uhid.h>

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
  UhidDevice(int vendor, int product, int inputLength, int outputLength);
  // Pulls the device out.
  ~UhidDevice();
  UhidDevice(const UhidDevice&) = delete;
  UhidDevice& operator=(const UhidDevice&) = delete;

  bool IsThere() const { return file_ >= 0; }
  void Report(const std::string& bytes);
  std::vector<Received> Outputs();

 private:
  void Send(const uhid_event& event);
  void Listen();

  int file_ = -1;
  std::atomic<bool> ends_{false};
  std::mutex mutex_;
  std::vector<Received> outputs_;
  std::thread listener_;
};

}  // namespace pawnfield
