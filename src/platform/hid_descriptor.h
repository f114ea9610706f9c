// What a HID device's report descriptor says of the lengths of its reports.
#pragma once

#include <string>

#include "platform/ports.h"

namespace pawnfield {

struct HidReports {
  // Of the longest report of each kind; at most 16384 bytes and the report number.
  HidLengths Lengths;
  // Whether the device puts a report number in front of each report itself.
  bool Numbered = false;
};

// Reads any bytes; what is cut off at the end counts as not there.
HidReports ReadReportDescriptor(const std::string& descriptor);

}  // namespace pawnfield
