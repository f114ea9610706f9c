// The serial lines of this machine.
#pragma once

#include <QSerialPort>
#include <functional>
#include <vector>

#include "platform/ports.h"

namespace pawnfield {

// An adapter that is present: what is shown of it, and what it is opened by.
struct SerialAdapter {
  SerialDevice Device;
  QString Location;
};

// Those of this machine, by their names.
std::vector<SerialAdapter> FindSerialAdapters();

class QtSerialPort : public SerialPort {
 public:
  explicit QtSerialPort(std::function<std::vector<SerialAdapter>()> find);

  std::vector<SerialDevice> Enumerate() const override;
  void Open(int number, const SerialSettings& settings) override;
  bool PortOpen() const override { return port_.isOpen(); }
  void Close() override;
  std::string Input() override { return port_.readAll().toStdString(); }
  std::size_t InBufferCount() const override { return static_cast<std::size_t>(port_.bytesAvailable()); }

 private:
  // The device of the port with that number; empty when there is none.
  QString LocationOf(int number) const;
  void Failed(QSerialPort::SerialPortError error);

  std::function<std::vector<SerialAdapter>()> find_;
  QSerialPort port_;
};

}  // namespace pawnfield
