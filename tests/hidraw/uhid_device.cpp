#include "hidraw/uhid_device.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace pawnfield {

namespace {

// One vendor-defined collection with plain bytes each way.
std::string Descriptor(int inputLength, int outputLength) {
  std::string text{"\x06\x00\xFF\x09\x01\xA1\x01\x15\x00\x26\xFF\x00\x75\x08\x09\x01", 16};
  text += {'\x95', static_cast<char>(inputLength), '\x81', '\x02', '\x09', '\x02'};
  text += {'\x95', static_cast<char>(outputLength), '\x91', '\x02', '\xC0'};
  return text;
}

}  // namespace

UhidDevice::UhidDevice(int vendor, int product, int inputLength, int outputLength) {
  constexpr unsigned kUsb = 3;
  file_ = open("/dev/uhid", O_RDWR | O_CLOEXEC);
  if (file_ < 0) return;
  uhid_event event{};
  event.type = UHID_CREATE2;
  std::snprintf(reinterpret_cast<char*>(event.u.create2.name), sizeof event.u.create2.name, "device %04x", product);
  const std::string descriptor = Descriptor(inputLength, outputLength);
  std::copy(descriptor.begin(), descriptor.end(), event.u.create2.rd_data);
  event.u.create2.rd_size = static_cast<unsigned short>(descriptor.size());
  event.u.create2.bus = kUsb;
  event.u.create2.vendor = static_cast<unsigned>(vendor);
  event.u.create2.product = static_cast<unsigned>(product);
  Send(event);
  listener_ = std::thread([this] { Listen(); });
}

UhidDevice::~UhidDevice() {
  ends_ = true;
  if (listener_.joinable()) listener_.join();
  if (file_ >= 0) close(file_);
}

void UhidDevice::Send(const uhid_event& event) {
  if (write(file_, &event, sizeof event) < 0) std::perror("uhid");
}

void UhidDevice::Report(const std::string& bytes) {
  uhid_event event{};
  event.type = UHID_INPUT2;
  event.u.input2.size = static_cast<unsigned short>(bytes.size());
  std::copy(bytes.begin(), bytes.end(), event.u.input2.data);
  Send(event);
}

void UhidDevice::Listen() {
  constexpr int kLookMs = 10;
  while (!ends_) {
    pollfd state{file_, POLLIN, 0};
    if (poll(&state, 1, kLookMs) <= 0) continue;
    uhid_event event{};
    if (read(file_, &event, sizeof event) <= 0 || event.type != UHID_OUTPUT) continue;
    const std::lock_guard lock(mutex_);
    outputs_.push_back({std::chrono::steady_clock::now(),
                        std::string(reinterpret_cast<const char*>(event.u.output.data), event.u.output.size)});
  }
}

std::vector<UhidDevice::Received> UhidDevice::Outputs() {
  const std::lock_guard lock(mutex_);
  return outputs_;
}

}  // namespace pawnfield
