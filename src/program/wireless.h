// The wireless transceiver through an evening: made with the console, missed when it is pulled, and taken up again, or
// for the first time, when the system reports a device that has come.
#pragma once

namespace pawnfield {

struct Show;

// Makes the show's transceiver, which presses reach from then on.
void CreateTransceiver(Show& show);
// Opens a transceiver that has been connected, and reports it. Nothing while one is served and before the console's
// load.
void DevicesChanged(Show& show);
// Ties the system's word of devices to DevicesChanged.
void AttachDeviceWatch(Show& show);

}  // namespace pawnfield
