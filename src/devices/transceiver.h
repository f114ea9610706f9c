// The wireless remotes' transceiver: finds its HID device, polls it for presses, lights a remote's lamp and sends text
// to the remotes' receivers.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "devices/self_timer.h"
#include "devices/transceiver_data.h"
#include "platform/ports.h"

namespace pawnfield {

// The colour code of the lamps that the program uses.
inline constexpr int kLampColor = 2;

inline constexpr int kTransceiverVendor = 0x0003;
inline constexpr int kTransceiverLong = 0x1003;
inline constexpr int kTransceiverShort = 0x1001;

class Transceiver {
 public:
  // Looks for the device; without one the object lives on and does nothing. The guard runs every poll, so that what
  // onButtonPressed throws is reported; polling has been started anew by then. A device that goes is reported to
  // onLost.
  Transceiver(HidPort& port, Clock& clock, std::function<void(const TransceiverData&)> onButtonPressed,
              const SelfTimer::GuardFunction& guard, std::function<void()> onLost = {});
  ~Transceiver();
  Transceiver(const Transceiver&) = delete;
  Transceiver& operator=(const Transceiver&) = delete;

  // Looks for the device anew, unless one is served. True when one has been opened by this call.
  bool Open();
  // Sets the light of the remote with that number.
  void LED_Set(int number, int color);
  // Sends the text in pieces, 60 ms each.
  void SendData(const std::string& text);
  // True from a complete start until the device is gone.
  bool Ready() const { return ready_; }

 private:
  void Timer_Timer();
  void ProcessReport(const std::string& report);
  void Stop();
  void WriteReport(const std::string& bytes);
  // The count of bytes written. A packet longer than the device's reports is error 5.
  std::size_t WritePacket(const std::string& packet);

  HidPort& port_;
  Clock& clock_;
  std::function<void(const TransceiverData&)> onButtonPressed_;
  std::function<void()> onLost_;
  HidLengths lengths_;
  bool shortCommand_ = false;
  bool ready_ = false;
  bool malformedReported_ = false;
  SelfTimer timer_;
};

// A packet: its frame, its length, the command, the message and the check byte.
std::string BuildPacket(const std::string& message, int command);

}  // namespace pawnfield
