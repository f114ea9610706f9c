// Reads a HID device's reports on a thread of its own, so that each is stamped when it arrives, whatever the main
// thread is at.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace pawnfield {

struct StampedReport {
  std::string Bytes;
  // Microseconds of the monotonic clock.
  std::int64_t AtUs = 0;
};

class HidReader {
 public:
  // onArrived is called on the reading thread, for each report and once when the device has gone. A path that can't be
  // read makes a reader that has failed.
  HidReader(const char* path, std::size_t longest, std::function<void()> onArrived);
  ~HidReader();
  HidReader(const HidReader&) = delete;
  HidReader& operator=(const HidReader&) = delete;

  // The oldest that waits.
  std::optional<StampedReport> Take();
  // The device has gone; what waits can still be taken.
  bool Failed() const;

 private:
  void Run();
  // False when the device has gone.
  bool ReadAll();

  int device_ = -1;
  // Written to when the reader is to end.
  int end_ = -1;
  std::size_t longest_;
  std::function<void()> onArrived_;
  mutable std::mutex mutex_;
  std::deque<StampedReport> waiting_;
  bool failed_ = false;
  std::thread thread_;
};

}  // namespace pawnfield
