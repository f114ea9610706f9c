#include "desktop/devices/qt_serial_port.h"

#include <QSerialPortInfo>

#include "controllers/zr610.h"
#include "desktop/files/windows_1252.h"

namespace pawnfield {

namespace {

// What waits while nobody reads; the line's driver keeps or drops what is beyond it.
constexpr qint64 kReadBuffer = 65536;

std::string Text(const QString& text) { return Escape(text); }

QSerialPort::Parity ParityOf(char letter) {
  if (letter == 'e') return QSerialPort::EvenParity;
  return letter == 'o' ? QSerialPort::OddParity : QSerialPort::NoParity;
}

}  // namespace

std::vector<SerialAdapter> FindSerialAdapters() {
  std::vector<SerialAdapter> adapters;
  for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
    const QString id = QString("USB\\VID_%1&PID_%2")
                           .arg(info.vendorIdentifier(), 4, 16, QChar('0'))
                           .arg(info.productIdentifier(), 4, 16, QChar('0'));
    // An adapter without a name of its own is one all the same.
    const QString description = info.description().isEmpty() ? "Serial adapter" : info.description();
    adapters.push_back({{Text(id), Text(description), Text(info.portName())}, info.systemLocation()});
  }
  return adapters;
}

QtSerialPort::QtSerialPort(std::function<std::vector<SerialAdapter>()> find) : find_(std::move(find)) {
  port_.setReadBufferSize(kReadBuffer);
  QObject::connect(&port_, &QSerialPort::readyRead, &port_, [this] {
    if (OnComm) OnComm(SerialEvent::Received);
  });
  QObject::connect(&port_, &QSerialPort::errorOccurred, &port_,
                   [this](QSerialPort::SerialPortError error) { Failed(error); });
}

std::vector<SerialDevice> QtSerialPort::Enumerate() const {
  std::vector<SerialDevice> devices;
  for (const SerialAdapter& adapter : find_()) devices.push_back(adapter.Device);
  return devices;
}

QString QtSerialPort::LocationOf(int number) const {
  QString location;
  for (const SerialAdapter& adapter : find_()) {
    // Another kind of device can have the same number in its name.
    const bool ours = IsZR610Adapter(adapter.Device) && PortNumber(adapter.Device.Caption) == number;
    if (ours) location = adapter.Location;
  }
  return location;
}

void QtSerialPort::Open(int number, const SerialSettings& settings) {
  Close();
  const QString location = LocationOf(number);
  if (location.isEmpty()) throw RuntimeError(kErrorInvalidPort, "Invalid port number");
  port_.setPortName(location);
  port_.setBaudRate(settings.Baud);
  port_.setParity(ParityOf(settings.Parity));
  port_.setDataBits(static_cast<QSerialPort::DataBits>(settings.DataBits));
  port_.setStopBits(static_cast<QSerialPort::StopBits>(settings.StopBits));
  port_.setFlowControl(QSerialPort::NoFlowControl);
  if (!port_.open(QIODevice::ReadWrite)) {
    throw RuntimeError(kErrorInvalidPort,
                       "The port " + Text(location) + " can't be opened: " + Text(port_.errorString()));
  }
  port_.setRequestToSend(true);
  port_.clear();
}

void QtSerialPort::Close() {
  if (port_.isOpen()) port_.close();
}

// The port reports a far side that is gone without end until it is closed.
void QtSerialPort::Failed(QSerialPort::SerialPortError error) {
  const bool gone = error == QSerialPort::ResourceError || error == QSerialPort::ReadError;
  if (gone && port_.isOpen() && OnComm) OnComm(SerialEvent::Lost);
}

}  // namespace pawnfield
