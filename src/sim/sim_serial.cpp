#include "sim/sim_serial.h"

#include <utility>

namespace pawnfield {

void SimSerial::Open(int number, const SerialSettings&) {
  if (const int error = std::exchange(FailNextOpen, 0); error != 0) throw RuntimeError(error, "Invalid port number");
  arrived_.clear();
  Number = number;
}

std::string SimSerial::Input() {
  taken_ = {};
  if (arrived_.empty()) return {};
  taken_ = std::move(arrived_.front());
  arrived_.pop_front();
  return taken_.Bytes;
}

std::size_t SimSerial::InBufferCount() const {
  std::size_t count = 0;
  for (const Piece& piece : arrived_) count += piece.Bytes.size();
  return count;
}

void SimSerial::Plug(const std::string& caption) {
  Devices.push_back({"USB\\VID_1A86&PID_7523\\5&1", "USB-SERIAL", caption});
}

void SimSerial::Feed(const std::string& bytes) {
  if (!PortOpen()) return;
  Arrive(bytes, 0);
  if (OnComm) OnComm(SerialEvent::Received);
}

void SimSerial::Arrive(const std::string& bytes, std::int64_t atUs) { arrived_.push_back({bytes, atUs}); }

void SimSerial::Pull() {
  constexpr int kManyErrors = 100;
  Devices.clear();
  for (int i = 0; i < kManyErrors && PortOpen() && OnComm; ++i) OnComm(SerialEvent::Lost);
}

}  // namespace pawnfield
