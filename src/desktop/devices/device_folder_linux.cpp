#include "desktop/devices/device_folder.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace pawnfield {

namespace {

bool IsUsable(std::string_view name) {
  return name.starts_with("hidraw") || name.starts_with("ttyUSB") || name.starts_with("ttyACM");
}

}  // namespace

// A device's rights are given to the user a moment after its coming, which changes its attributes.
DeviceFolder::DeviceFolder(const std::string& folder) : descriptor_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
  if (descriptor_ >= 0 && inotify_add_watch(descriptor_, folder.c_str(), IN_CREATE | IN_DELETE | IN_ATTRIB) < 0) {
    close(descriptor_);
    descriptor_ = -1;
  }
}

DeviceFolder::~DeviceFolder() {
  if (descriptor_ >= 0) close(descriptor_);
}

bool DeviceFolder::TakeChanges() {
  bool concerns = false;
  alignas(inotify_event) std::array<char, 4096> events{};
  for (ssize_t count = 0; (count = read(descriptor_, events.data(), events.size())) > 0;) {
    for (std::size_t at = 0; at + sizeof(inotify_event) <= static_cast<std::size_t>(count);) {
      inotify_event event{};
      std::memcpy(&event, events.data() + at, sizeof event);
      // The name is filled up with zeros. One that got lost in a flood of events could have been ours.
      const char* name = events.data() + at + sizeof event;
      concerns = concerns || (event.mask & IN_Q_OVERFLOW) != 0 || (event.len > 0 && IsUsable(name));
      at += sizeof event + event.len;
    }
  }
  return concerns;
}

}  // namespace pawnfield
