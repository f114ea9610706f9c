// Which controller hardware the show serves: the order of the search, and the transceiver's.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// True when a device's instance path, as in "USB\VID_04FE&PID_1003\5&2A", is the transceiver's.
bool IsTransceiver(const std::string& instancePath);
// True when one of the HID devices that are present is.
bool DetectHIDTransceiver(Show& show);

// The end of the splash: finds what is attached, or reports manual mode, and shows the screens.
void tmrSplash_Timer(Show& show);

}  // namespace pawnfield
