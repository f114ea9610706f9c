#include "desktop/devices/report_descriptor.h"

#include <fstream>
#include <iterator>

namespace pawnfield {

std::string ReportDescriptor(const std::filesystem::path& device) {
  std::ifstream file("/sys/class/hidraw" / device.filename() / "device/report_descriptor", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace pawnfield
