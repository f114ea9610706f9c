// Any bytes in the transceiver's buffer decode to a remote of the tables or to nothing, or are reported as error 9; any
// report descriptor gives lengths that a machine can hold.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "devices/transceiver_data.h"
#include "platform/hid_descriptor.h"

namespace {

using namespace pawnfield;

void Require(bool holds) {
  if (!holds) std::abort();
}

void Decode(const ReportBuffer& buffer) {
  TransceiverData data;
  try {
    data.Parse(buffer);
  } catch (const RuntimeError& error) {
    Require(error.Number() == kErrorSubscript && data.Remote == -1);
    return;
  }
  Require(data.Remote == -1 || (data.Remote >= 1 && data.Remote <= 260));
  Require((data.Remote == -1) == data.Button.empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Decode(ReportBuffer(data, data + size));
  ReportBuffer shortForm(4);
  if (size > 0) std::memcpy(shortForm.data(), data, size < 4 ? size : 4);
  Decode(shortForm);
  const HidReports reports = ReadReportDescriptor(std::string(reinterpret_cast<const char*>(data), size));
  Require(reports.Lengths.Input <= 16385 && reports.Lengths.Output <= 16385);
  return 0;
}
