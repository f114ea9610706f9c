// What a HID device says of its reports, for a library that gives no report lengths.
#pragma once

#include <filesystem>
#include <string>

namespace pawnfield {

// The bytes of its report descriptor, empty where the system doesn't show it.
std::string ReportDescriptor(const std::filesystem::path& device);

}  // namespace pawnfield
