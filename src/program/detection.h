// Which controller hardware the show serves: the order of the search, and the transceiver's.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace pawnfield {

struct Show;

// The first control set of the system's record of devices knows one vendor more than the later ones.
enum class ControlSet { First, Later };

// True when a device's instance path, as in "USB\VID_04FE&PID_1003\5&2A", is the transceiver's.
bool IsTransceiver(const std::string& instancePath, ControlSet controlSet);
// Looks for the transceiver in the record of devices: read gives the named value of a key below HKEY_LOCAL_MACHINE,
// nothing when the key or the value is not there.
using RegistryReader = std::function<std::optional<std::string>(const std::string& key, const std::string& name)>;
bool FindTransceiverInRegistry(const RegistryReader& read);
// The same question, asked of the HID devices that are present.
bool DetectHIDTransceiver(Show& show);

// The end of the splash: finds what is attached, or reports manual mode, and shows the screens.
void tmrSplash_Timer(Show& show);

}  // namespace pawnfield
