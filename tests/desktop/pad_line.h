// The serial line of wired pads: a pseudo-terminal whose far side a test works.
#pragma once

#include <fcntl.h>
#include <pty.h>
#include <unistd.h>

#include <QTest>
#include <array>
#include <string>

#include "desktop/devices/qt_serial_port.h"

namespace pawnfield {

// The near side has a name, as an adapter has; closing the far side is pulling it out.
class PadLine {
 public:
  PadLine() {
    std::array<char, 64> name{};
    if (openpty(&far_, &near_, name.data(), nullptr, nullptr) == 0) location_ = name.data();
    fcntl(far_, F_SETFL, O_NONBLOCK);
  }
  ~PadLine() { Pull(); }
  PadLine(const PadLine&) = delete;
  PadLine& operator=(const PadLine&) = delete;

  // Writes all of it, with the program running meanwhile.
  void Write(const std::string& bytes) {
    for (std::size_t done = 0; done < bytes.size();) {
      const ssize_t count = write(far_, bytes.data() + done, bytes.size() - done);
      if (count > 0) done += static_cast<std::size_t>(count);
      if (count <= 0) QTest::qWait(1);
    }
  }
  void Pull() {
    for (int* side : {&near_, &far_}) {
      if (*side >= 0) close(*side);
      *side = -1;
    }
  }
  SerialAdapter Adapter() const { return {{"USB\\VID_1a86&PID_7523", "USB Serial", "ttyUSB0"}, location_}; }

 private:
  int near_ = -1, far_ = -1;
  QString location_;
};

// A press of that pad, 1 to 255, as the wire has it.
inline std::string Pad(int id) {
  using std::string_literals::operator""s;
  return "MF\0\4\xFD\0\0"s + static_cast<char>(id);
}

}  // namespace pawnfield
