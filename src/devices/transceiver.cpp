#include "devices/transceiver.h"

#include <algorithm>
#include <utility>

#include "devices/packing.h"

namespace pawnfield {

namespace {

constexpr int kPollMs = 30;
// The receivers lose packets that follow each other faster.
constexpr int kPacketPauseMs = 60;
constexpr std::size_t kPieceLength = 21;
constexpr int kCommandLight = 1;
constexpr int kCommandText = 2;

char Byte(std::size_t value) { return static_cast<char>(value & 255); }

// Remote 10 is 0 on the wire, 20 is 10 and so on; 80 stands for all that are no remote.
int WireNumber(int number) {
  if (number < 1) return 80;
  return number % 10 == 0 ? number - 10 : number;
}

// Starts the timer anew when a poll is over, however it ends.
class Restart {
 public:
  explicit Restart(SelfTimer& timer) : timer_(timer) {}
  ~Restart() { timer_.SetEnabled(true); }
  Restart(const Restart&) = delete;
  Restart& operator=(const Restart&) = delete;

 private:
  SelfTimer& timer_;
};

}  // namespace

std::string BuildPacket(const std::string& message, int command) {
  std::string packet{'\0', Byte(0xFA), Byte(message.size() + 5), Byte(static_cast<std::size_t>(command))};
  packet += message;
  char check = 0;
  for (const char byte : packet) check = static_cast<char>(check ^ byte);
  return packet + check + Byte(0xAF);
}

Transceiver::Transceiver(HidPort& port, Clock& clock, std::function<void(const TransceiverData&)> onButtonPressed,
                         const SelfTimer::GuardFunction& guard, std::function<void()> onLost)
    : port_(port),
      clock_(clock),
      onButtonPressed_(std::move(onButtonPressed)),
      onLost_(std::move(onLost)),
      timer_(
          clock, [this] { Timer_Timer(); }, guard) {
  // A report that the port tells of is taken at once; the poll finds those of a port that can't.
  port_.OnReport = [this, guard] { guard ? guard([this] { Timer_Timer(); }, "SelfTimer", "Timer") : Timer_Timer(); };
  Open();
}

bool Transceiver::Open() {
  if (ready_) return false;
  const auto product = port_.Open(kTransceiverVendor, {kTransceiverLong, kTransceiverShort});
  if (!product) return false;
  shortCommand_ = *product == kTransceiverShort;
  lengths_ = port_.Lengths();
  timer_.SetInterval(kPollMs);
  timer_.SetEnabled(true);
  ready_ = true;
  return true;
}

Transceiver::~Transceiver() {
  port_.OnReport = {};
  timer_.SetEnabled(false);
  port_.Close();
}

void Transceiver::Timer_Timer() {
  if (!ready_) return;
  timer_.SetEnabled(false);
  std::string report;
  const HidRead result = port_.Read(report);
  if (result == HidRead::Failed) {
    Stop();
    return;
  }
  const Restart restart(timer_);
  if (result == HidRead::Report) ProcessReport(report);
}

// The device is gone: nothing is read any more, and what is sent goes nowhere.
void Transceiver::Stop() {
  ready_ = false;
  lengths_ = {};
  port_.Close();
  if (onLost_) onLost_();
}

void Transceiver::ProcessReport(const std::string& report) {
  ReportBuffer buffer(lengths_.Input + 1);
  std::copy_n(report.begin(), std::min(report.size(), lengths_.Input), buffer.begin());
  TransceiverData data;
  try {
    data.Parse(buffer);
  } catch (const RuntimeError&) {
    // A device that sends one broken report sends many; the first is enough to know of it.
    if (std::exchange(malformedReported_, true)) return;
    throw;
  }
  if (data.Remote != -1 && onButtonPressed_) onButtonPressed_(data);
}

void Transceiver::LED_Set(int number, int color) {
  if (!ready_) return;
  if (!shortCommand_) {
    const std::string message{Byte(static_cast<std::size_t>(WireNumber(number))), '\0',
                              Byte(static_cast<std::size_t>(color))};
    WritePacket(BuildPacket(message, kCommandLight));
  } else if (number >= 0) {
    const int code = number < 21 ? number : number + 6;
    WriteReport({'\0', 'c', 'm', 'd', Byte(static_cast<std::size_t>(code)), '\0'});
  }
}

void Transceiver::SendData(const std::string& text) {
  const std::string id = PackLong(static_cast<std::int32_t>(clock_.NowMs()), ByteOrder::Machine) + "^";
  const std::string size = PackLongPadded(static_cast<std::int32_t>(text.size()), ByteOrder::Machine);
  WritePacket(BuildPacket(id + MyEncode(size), kCommandText));
  for (std::size_t pos = 0; pos < text.size(); pos += kPieceLength) {
    WritePacket(BuildPacket(id + text.substr(pos, kPieceLength), kCommandText));
  }
}

void Transceiver::WriteReport(const std::string& bytes) {
  std::string report = bytes;
  report.resize(lengths_.Output);
  if (!report.empty()) port_.Write(report);
}

std::size_t Transceiver::WritePacket(const std::string& packet) {
  if (lengths_.Output == 0) return 0;
  if (packet.size() > lengths_.Output) throw RuntimeError(kErrorInvalidArgument, "Invalid procedure call or argument");
  std::string report = packet;
  report.resize(lengths_.Output);
  // What led to the packet is seen before it goes out.
  clock_.Pause(0);
  const std::size_t written = port_.Write(report);
  clock_.Pause(kPacketPauseMs);
  return written;
}

}  // namespace pawnfield
