// A serial line that a test plugs in, feeds with recorded bytes and pulls.
#pragma once

#include <string>
#include <vector>

#include "platform/ports.h"

namespace pawnfield {

class SimSerial : public SerialPort {
 public:
  std::vector<SerialDevice> Enumerate() const override { return Devices; }
  void Open(int number, const SerialSettings& settings) override;
  bool PortOpen() const override { return Number >= 0; }
  void Close() override { Number = -1; }
  std::string Input() override;
  std::size_t InBufferCount() const override { return arrived_.size(); }

  // The system's adapter under that caption.
  void Plug(const std::string& caption = "USB-SERIAL (COM7)");
  // Bytes arrive and are announced, once for all of them.
  void Feed(const std::string& bytes);
  // The adapter is gone: an open port reports so again and again, at most a hundred times.
  void Pull();

  std::vector<SerialDevice> Devices;
  // The open port's number, -1 for none.
  int Number = -1;
  // The error that the next Open throws, 0 for none.
  int FailNextOpen = 0;

 private:
  std::string arrived_;
};

}  // namespace pawnfield
