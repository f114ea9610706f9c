// A serial line that a test plugs in, feeds with recorded bytes and pulls.
#pragma once

#include <deque>
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
  std::int64_t ArrivedUs() const override { return taken_.AtUs; }
  std::size_t InBufferCount() const override;

  // The system's adapter under that caption.
  void Plug(const std::string& caption = "USB-SERIAL (COM7)");
  // Bytes arrive and are announced, once for all of them.
  void Feed(const std::string& bytes);
  // Bytes arrive while the main thread is busy: stamped, and announced with what is fed next.
  void Arrive(const std::string& bytes, std::int64_t atUs);
  // The adapter is gone: an open port reports so again and again, at most a hundred times.
  void Pull();

  std::vector<SerialDevice> Devices;
  // The open port's number, -1 for none.
  int Number = -1;
  // The error that the next Open throws, 0 for none.
  int FailNextOpen = 0;

 private:
  struct Piece {
    std::string Bytes;
    std::int64_t AtUs = 0;
  };
  std::deque<Piece> arrived_;
  Piece taken_;
};

}  // namespace pawnfield
