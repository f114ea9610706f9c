#include "desktop/devices/hid_reader.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <utility>

namespace pawnfield {

namespace {

// A device that floods is cut off here; nobody presses that fast.
constexpr std::size_t kMostWaiting = 4096;

std::int64_t NowUs() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}

}  // namespace

// The kernel gives each open file of a device its own copy of every report, so that this one and the one that is
// written to don't get into each other's way.
HidReader::HidReader(const char* path, std::size_t longest, std::function<void()> onArrived)
    : device_(::open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC)),
      end_(::eventfd(0, EFD_CLOEXEC)),
      longest_(longest),
      onArrived_(std::move(onArrived)) {
  failed_ = device_ < 0 || end_ < 0;
  if (!failed_) thread_ = std::thread([this] { Run(); });
}

HidReader::~HidReader() {
  if (thread_.joinable()) {
    const std::uint64_t one = 1;
    while (::write(end_, &one, sizeof one) < 0 && errno == EINTR) {
    }
    thread_.join();
  }
  if (device_ >= 0) ::close(device_);
  if (end_ >= 0) ::close(end_);
}

std::optional<StampedReport> HidReader::Take() {
  const std::lock_guard lock(mutex_);
  if (waiting_.empty()) return std::nullopt;
  StampedReport report = std::move(waiting_.front());
  waiting_.pop_front();
  return report;
}

bool HidReader::Failed() const {
  const std::lock_guard lock(mutex_);
  return failed_;
}

bool HidReader::ReadAll() {
  std::string buffer(longest_, '\0');
  for (;;) {
    const ssize_t count = ::read(device_, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno == EAGAIN;
    if (count == 0) return false;
    const std::int64_t at = NowUs();
    {
      const std::lock_guard lock(mutex_);
      if (waiting_.size() < kMostWaiting) waiting_.push_back({buffer.substr(0, static_cast<std::size_t>(count)), at});
    }
    onArrived_();
  }
}

void HidReader::Run() {
  for (;;) {
    pollfd both[2] = {{device_, POLLIN, 0}, {end_, POLLIN, 0}};
    if (::poll(both, 2, -1) < 0 && errno != EINTR) break;
    if ((both[1].revents & POLLIN) != 0) return;
    if ((both[0].revents & POLLIN) != 0 && !ReadAll()) break;
    if ((both[0].revents & (POLLERR | POLLHUP | POLLNVAL)) != 0 && (both[0].revents & POLLIN) == 0) break;
  }
  {
    const std::lock_guard lock(mutex_);
    failed_ = true;
  }
  onArrived_();
}

}  // namespace pawnfield
