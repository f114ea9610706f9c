// What the ways of a press remember: the debounce of the wireless remotes, the line of the wired pads and their table,
// and what was found at the start. Owned by the show.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>

#include "data/press.h"
#include "devices/frame_splitter.h"
#include "devices/pad_map_table.h"
#include "devices/self_timer.h"

namespace pawnfield {

// A press that is tried before the show. Player 0 is nobody's; the number is that of the remote, the pad, the key or
// the seat.
struct TriedPress {
  Press What;
  int Number = 0;
};

struct PressState {
  // Set while presses are tried: takes each of them, and none of them rings in.
  std::function<void(const TriedPress&)> OnTried;

  // Milliseconds of the clock at a remote's last press that passed the debounce, by remote number; 0 for none.
  std::array<std::int64_t, 51> LastPressTick{};
  // Remotes that have been reported because the show has no place for them.
  std::set<int> ReportedRemotes;

  // Numbers beyond the players whose presses have been reported in this game.
  std::set<int> ReportedPlayers;

  bool ZR610Present = false;
  // The wired pads' port, -1 for none.
  int CommPortNumber = -1;
  FrameSplitter RxBuffer;
  bool BrokenFrameReported = false;
  // Runs while frames wait behind a message box.
  std::unique_ptr<SelfTimer> HeldFrames;
  // Runs while half a frame waits for its rest.
  std::unique_ptr<SelfTimer> LateFrame;
  PadMap MFMap{};

  bool HardwareFound = false;
  // The loss of the transceiver has been reported.
  bool TransceiverLost = false;
  // The first five fields of Interface.txt, which are carried through.
  std::array<int, 5> InterfaceFields{4, 0, 0, 0, 0};
};

}  // namespace pawnfield
