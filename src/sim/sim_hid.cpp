#include "sim/sim_hid.h"

#include <algorithm>

namespace pawnfield {

std::vector<HidDevice> SimHid::Enumerate() const {
  if (Instead != nullptr) return Instead->Enumerate();
  std::vector<HidDevice> present;
  for (const Device& device : Devices) present.push_back(device.Id);
  return present;
}

std::optional<int> SimHid::Open(int vendor, const std::vector<int>& products) {
  if (Instead != nullptr) return Instead->Open(vendor, products);
  Close();
  for (std::size_t i = 0; i < Devices.size(); ++i) {
    const HidDevice& id = Devices[i].Id;
    if (id.Vendor != vendor || std::find(products.begin(), products.end(), id.Product) == products.end()) continue;
    open_ = static_cast<int>(i);
    return id.Product;
  }
  return std::nullopt;
}

HidLengths SimHid::Lengths() const {
  if (Instead != nullptr) return Instead->Lengths();
  return open_ < 0 || pulled_ ? HidLengths{} : Devices[static_cast<std::size_t>(open_)].Lengths;
}

HidRead SimHid::Read(std::string& report) {
  if (Instead != nullptr) return Instead->Read(report);
  if (open_ < 0 || pulled_) return HidRead::Failed;
  if (Reports.empty()) return HidRead::Nothing;
  report = Reports.front();
  Reports.pop_front();
  return HidRead::Report;
}

std::size_t SimHid::Write(const std::string& report) {
  if (Instead != nullptr) return Instead->Write(report);
  if (open_ < 0 || pulled_) return 0;
  Writes.push_back({clock_.NowMs(), report});
  return report.size();
}

void SimHid::Close() {
  if (Instead != nullptr) Instead->Close();
  open_ = -1;
  pulled_ = false;
}

void SimHid::Pull() {
  pulled_ = open_ >= 0;
  Devices.clear();
  Reports.clear();
}

void SimHid::PlugTransceiver(int product) {
  constexpr int kVendor = 3;
  const bool shortForm = product == 0x1001;
  Devices.push_back({{kVendor, product}, shortForm ? HidLengths{3, 9} : HidLengths{33, 33}});
}

}  // namespace pawnfield
