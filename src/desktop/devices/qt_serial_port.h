// The serial lines of this machine. A line is read on a thread of its own, so that what arrives is stamped then,
// whatever the main thread is at.
#pragma once

#include <QSerialPort>
#include <QThread>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
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
  ~QtSerialPort() override;
  QtSerialPort(const QtSerialPort&) = delete;
  QtSerialPort& operator=(const QtSerialPort&) = delete;

  std::vector<SerialDevice> Enumerate() const override;
  void Open(int number, const SerialSettings& settings) override;
  bool PortOpen() const override { return open_; }
  void Close() override;
  std::string Input() override;
  std::int64_t ArrivedUs() const override { return takenUs_; }
  std::size_t InBufferCount() const override;

 private:
  struct Piece {
    std::string Bytes;
    std::int64_t AtUs = 0;
  };

  // The device of the port with that number; empty when there is none.
  QString LocationOf(int number) const;
  // Runs it on the reading thread and waits.
  void OnLine(const std::function<void()>& work);
  // On the reading thread.
  void Arrived();
  void Failed(QSerialPort::SerialPortError error);
  // Has the main thread told, if the line is still the one that was opened then.
  void Tell(SerialEvent event);

  std::function<std::vector<SerialAdapter>()> find_;
  bool open_ = false;
  std::int64_t takenUs_ = 0;
  // Home of what the reading thread tells the main one.
  QObject home_;
  // Guards what follows it.
  mutable std::mutex mutex_;
  std::deque<Piece> waiting_;
  std::size_t waitingBytes_ = 0;
  // Counts the lines that were opened; and the far side of this one is gone, which has been told.
  int opened_ = 0;
  bool lost_ = false;
  // Lives on the thread once that runs, which it does from the first line on.
  QSerialPort port_;
  QThread thread_;
};

}  // namespace pawnfield
