// The world of the real windows: a folder with sets and media that come and go, a serial line, a transceiver, a second
// monitor that is switched.
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <memory>

#include "desktop/desktop_program.h"
#include "handed_transceiver.h"
#include "monkey/chance.h"

namespace pawnfield {

// A pseudo-terminal; closing its far side is pulling the adapter out.
class SerialLine {
 public:
  SerialLine();
  ~SerialLine();
  SerialLine(const SerialLine&) = delete;
  SerialLine& operator=(const SerialLine&) = delete;

  void Feed(const std::string& bytes);
  SerialAdapter Adapter() const { return {{"USB\\VID_1a86&PID_7523", "USB Serial", "ttyUSB0"}, location_}; }

 private:
  int near_ = -1, far_ = -1;
  QString location_;
};

class World {
 public:
  // Writes sets and media below a folder of its own and makes that the current one.
  explicit World(Chance& chance);

  // What was written stays for who looks at it behind this process.
  void Keep() { folder_.setAutoRemove(false); }
  DesktopPlaces Places();
  // Once the console is up: the transceiver, and media behind the letter keys.
  void Join(Show& show);
  void Leave() { transceiver_.reset(); }

  // Each changes something and tells what.
  QString ChangeFiles(Chance& chance);
  QString UseDevice(Chance& chance);
  QString ChangeMonitors(Chance& chance);
  // A path to answer a file dialog with.
  QString AnyFile(Chance& chance) const;
  QString Sets() const { return folder_.path() + "/app/Trivia Sets/"; }

 private:
  void PutMedia();

  QTemporaryDir folder_;
  DesktopPlaces places_;
  std::unique_ptr<SerialLine> line_;
  std::unique_ptr<HandedTransceiver> transceiver_;
};

}  // namespace pawnfield
