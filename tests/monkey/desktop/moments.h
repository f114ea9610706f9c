// What a show of the real windows stood at, for who kills it and looks what comes back.
#pragma once

#include <QFile>
#include <QString>

#include "show/show.h"

namespace pawnfield {

// Writes "MOMENT milliseconds snapshot" to the log whenever the game stands at another snapshot than before.
class Moments {
 public:
  Moments(const Show& show, QFile& log) : show_(show), log_(log) {}
  void Look();

 private:
  const Show& show_;
  QFile& log_;
  QByteArray last_;
};

// Starts the program below that folder, has it bring back what it finds, and prints three lines: what its newest record
// ends with, what it held before that, and what came back; "none" for nothing.
int TellWhatComesBack(const QString& folder);

}  // namespace pawnfield
