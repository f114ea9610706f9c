#include "desktop/devices/hidapi_port.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "desktop/devices/report_descriptor.h"
#include "platform/hid_descriptor.h"

namespace pawnfield {

namespace {

using DeviceList = std::unique_ptr<hid_device_info, decltype(&hid_free_enumeration)>;

DeviceList ListDevices(int vendor) {
  return {hid_enumerate(static_cast<unsigned short>(vendor), 0), &hid_free_enumeration};
}

}  // namespace

HidapiPort::HidapiPort(Post post) : post_(std::move(post)) { hid_init(); }

HidapiPort::~HidapiPort() {
  Close();
  hid_exit();
}

std::vector<HidDevice> HidapiPort::Enumerate() const {
  std::vector<HidDevice> present;
  const DeviceList list = ListDevices(0);
  for (const hid_device_info* info = list.get(); info != nullptr; info = info->next) {
    present.push_back({info->vendor_id, info->product_id});
  }
  return present;
}

std::optional<int> HidapiPort::Open(int vendor, const std::vector<int>& products) {
  Close();
  const DeviceList list = ListDevices(vendor);
  for (const hid_device_info* info = list.get(); info != nullptr; info = info->next) {
    const int product = info->product_id;
    const bool wanted = std::find(products.begin(), products.end(), product) != products.end();
    if (wanted && OpenPath(info->path)) return product;
  }
  return std::nullopt;
}

bool HidapiPort::OpenPath(const char* path) {
  device_ = hid_open_path(path);
  if (device_ == nullptr) return false;
  hid_set_nonblocking(device_, 1);
  const HidReports reports = ReadReportDescriptor(ReportDescriptor(path));
  lengths_ = reports.Lengths;
  numbered_ = reports.Numbered;
  const std::size_t longest = std::max<std::size_t>(lengths_.Input, 64) + 1;
  reader_ = std::make_unique<HidReader>(path, longest, [this] {
    if (!post_) return;
    post_([this] {
      if (OnReport) OnReport();
    });
  });
  return true;
}

// A device that numbers its reports sends the number itself; for any other the 0 that stands for it is put in front.
HidRead HidapiPort::Read(std::string& report) {
  if (reader_ == nullptr) return HidRead::Failed;
  const bool failed = reader_->Failed();
  const auto next = reader_->Take();
  if (!next) return failed ? HidRead::Failed : HidRead::Nothing;
  arrivedUs_ = next->AtUs;
  report = (numbered_ ? "" : std::string(1, '\0')) + next->Bytes;
  return HidRead::Report;
}

std::size_t HidapiPort::Write(const std::string& report) {
  if (device_ == nullptr) return 0;
  const int count = hid_write(device_, reinterpret_cast<const unsigned char*>(report.data()), report.size());
  return static_cast<std::size_t>(std::max(count, 0));
}

void HidapiPort::Close() {
  reader_.reset();
  if (device_ != nullptr) hid_close(device_);
  device_ = nullptr;
  lengths_ = {};
}

}  // namespace pawnfield
