// A second show on a machine of its own, into which the first is restored from its record after each action.
#pragma once

#include <string>

#include "show/show.h"
#include "show/show_record.h"
#include "sim/sim_platform.h"

namespace pawnfield {

class SecondShow {
 public:
  // On the screens of the first show's machine.
  explicit SecondShow(const std::vector<MonitorInfo>& monitors);

  // Writes the first show's record as lines, reads them, restores them here and compares. Empty when both are alike.
  std::string Compare(Show& played, const SimPlatform& machine);

 private:
  // Into read_, by way of the record's text; what it was read from last is not written once more. Empty when all is
  // well.
  std::string ReadRecordOf(const Show& played);

  SimPlatform sim_;
  Show show_;
  Snapshot written_;
  RecordedSet writtenSet_;
  GameHistory read_;
};

// Takes back every event to the game's beginning and brings all of them again, and holds each step against its
// snapshot. Empty when all is well.
std::string WalkHistory(Show& show);

}  // namespace pawnfield
