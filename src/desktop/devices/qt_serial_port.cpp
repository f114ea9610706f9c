#include "desktop/devices/qt_serial_port.h"

#include <QSerialPortInfo>
#include <chrono>
#include <utility>

#include "controllers/zr610.h"
#include "desktop/files/windows_1252.h"

namespace pawnfield {

namespace {

// What waits while nobody takes it; beyond it the oldest is dropped, as a press is the newest.
constexpr std::size_t kMostWaiting = 65536;

std::int64_t NowUs() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}

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
  QObject::connect(&port_, &QSerialPort::readyRead, &port_, [this] { Arrived(); });
  QObject::connect(&port_, &QSerialPort::errorOccurred, &port_,
                   [this](QSerialPort::SerialPortError error) { Failed(error); });
}

QtSerialPort::~QtSerialPort() {
  Close();
  thread_.quit();
  thread_.wait();
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

void QtSerialPort::OnLine(const std::function<void()>& work) {
  QMetaObject::invokeMethod(&port_, work, Qt::BlockingQueuedConnection);
}

void QtSerialPort::Open(int number, const SerialSettings& settings) {
  Close();
  const QString location = LocationOf(number);
  if (location.isEmpty()) throw RuntimeError(kErrorInvalidPort, "Invalid port number");
  if (!thread_.isRunning()) {
    port_.moveToThread(&thread_);
    thread_.start();
  }
  QString error;
  OnLine([&] {
    port_.setPortName(location);
    port_.setBaudRate(settings.Baud);
    port_.setParity(ParityOf(settings.Parity));
    port_.setDataBits(static_cast<QSerialPort::DataBits>(settings.DataBits));
    port_.setStopBits(static_cast<QSerialPort::StopBits>(settings.StopBits));
    port_.setFlowControl(QSerialPort::NoFlowControl);
    open_ = port_.open(QIODevice::ReadWrite);
    error = port_.errorString();
    if (!open_) return;
    port_.setRequestToSend(true);
    port_.clear();
  });
  if (!open_) {
    throw RuntimeError(kErrorInvalidPort, "The port " + Text(location) + " can't be opened: " + Text(error));
  }
}

void QtSerialPort::Close() {
  if (!open_) return;
  open_ = false;
  OnLine([this] { port_.close(); });
  const std::lock_guard lock(mutex_);
  waiting_.clear();
  waitingBytes_ = 0;
  lost_ = false;
  ++opened_;
}

std::string QtSerialPort::Input() {
  const std::lock_guard lock(mutex_);
  takenUs_ = 0;
  if (waiting_.empty()) return {};
  const Piece piece = std::move(waiting_.front());
  waiting_.pop_front();
  waitingBytes_ -= piece.Bytes.size();
  takenUs_ = piece.AtUs;
  return piece.Bytes;
}

std::size_t QtSerialPort::InBufferCount() const {
  const std::lock_guard lock(mutex_);
  return waitingBytes_;
}

void QtSerialPort::Arrived() {
  const std::int64_t at = NowUs();
  std::string bytes = port_.readAll().toStdString();
  if (bytes.empty()) return;
  {
    const std::lock_guard lock(mutex_);
    waitingBytes_ += bytes.size();
    waiting_.push_back({std::move(bytes), at});
    while (waitingBytes_ > kMostWaiting && waiting_.size() > 1) {
      waitingBytes_ -= waiting_.front().Bytes.size();
      waiting_.pop_front();
    }
  }
  Tell(SerialEvent::Received);
}

// The port reports a far side that is gone without end until it is closed.
void QtSerialPort::Failed(QSerialPort::SerialPortError error) {
  const bool gone = error == QSerialPort::ResourceError || error == QSerialPort::ReadError;
  if (!gone || !port_.isOpen()) return;
  {
    const std::lock_guard lock(mutex_);
    if (std::exchange(lost_, true)) return;
  }
  Tell(SerialEvent::Lost);
}

void QtSerialPort::Tell(SerialEvent event) {
  const auto opened = [this] {
    const std::lock_guard lock(mutex_);
    return opened_;
  };
  QMetaObject::invokeMethod(
      &home_,
      [this, event, opened, line = opened()] {
        if (open_ && line == opened() && OnComm) OnComm(event);
      },
      Qt::QueuedConnection);
}

}  // namespace pawnfield
