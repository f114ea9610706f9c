#include "controllers/detection.h"

#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

#include "config/settings.h"
#include "controllers/zr610.h"
#include "engine/main_load.h"
#include "engine/show.h"
#include "platform/text.h"
#include "presentation/audience_screen.h"

namespace pawnfield {

namespace {

constexpr int kAudienceInset = 60;
constexpr int kSmallestPort = 0;
constexpr int kLargestPort = 15;

std::string Between(const std::string& text, std::size_t from, std::size_t end) {
  return text.substr(from, end == std::string::npos ? end : end - from);
}

std::string InstancePath(const HidDevice& device) {
  char text[40];
  std::snprintf(text, sizeof text, "HID\\VID_%04X&PID_%04X", static_cast<unsigned>(device.Vendor) & 0xFFFFU,
                static_cast<unsigned>(device.Product) & 0xFFFFU);
  return text;
}

void ShowAudienceAt(Show& show, int left) {
  if (show.state.DualScreen) ShowAudienceScreen(show, left);
}

// The hardware in the order in which it is looked for.
void ServeWhatIsFound(Show& show) {
  GameState& state = show.state;
  PressState& presses = show.presses;
  presses.CommPortNumber = FindZR610Port(show.platform.serial);
  presses.ZR610Present = presses.CommPortNumber > -1;
  if (!presses.ZR610Present) {
    presses.HardwareFound = DetectHIDTransceiver(show);
    if (!presses.HardwareFound) {
      show.platform.dialogs.MessageBox("No hardware was detected so you will be loaded in manual mode.", kAppTitle,
                                       BoxKind::Plain);
    }
    state.SerialComm = presses.HardwareFound ? kWirelessFound : kManualMode;
  }
  const bool manual = !presses.ZR610Present && !presses.HardwareFound;
  ShowAudienceAt(show, state.FSLeft + (manual ? 0 : kAudienceInset));
  LoadMainForm(show);
  if (presses.ZR610Present) show.frmMain.lblStatusBar.Caption = "ZR-610 System initialized";
}

std::vector<std::string> SplitFields(const std::string& line) {
  std::vector<std::string> fields;
  std::size_t from = 0;
  for (std::size_t end = line.find('^'); end != std::string::npos; end = line.find('^', from)) {
    fields.push_back(line.substr(from, end - from));
    from = end + 1;
  }
  fields.push_back(line.substr(from));
  return fields;
}

int FieldInRange(const std::string& text, int outside) {
  const auto number = ParseNumber(text);
  return number && *number >= kSmallestPort && *number <= kLargestPort ? static_cast<int>(RoundHalfEven(*number))
                                                                       : outside;
}

std::string InterfacePath(const Show& show) { return show.platform.folders.DataRoot + "\\Interface.txt"; }

}  // namespace

bool IsTransceiver(const std::string& instancePath, ControlSet controlSet) {
  const std::string text = ToUpper(instancePath);
  const std::size_t vid = text.find("VID_");
  if (vid == std::string::npos) return false;
  const std::size_t vidEnd = text.find('&', vid);
  if (vidEnd == std::string::npos) return false;
  const std::size_t pid = text.find("PID_", vidEnd);
  if (pid == std::string::npos) return false;
  const std::string vendor = Between(text, vid + 4, vidEnd);
  const std::string product = Between(text, pid + 4, text.find_first_of("&\\", pid + 4));
  const bool knownVendor = vendor == "04FE" || (vendor == "0003" && controlSet == ControlSet::First);
  return knownVendor && (product == "1003" || product == "1001");
}

bool FindTransceiverInRegistry(const RegistryReader& read) {
  constexpr int kLastValue = 10;
  const std::pair<const char*, ControlSet> keys[] = {
      {"System\\ControlSet001\\Services\\HidUSB\\Enum", ControlSet::First},
      {"System\\ControlSet002\\Services\\HidUsb\\Enum", ControlSet::Later},
      {"System\\ControlSet003\\Services\\HidUsb\\Enum", ControlSet::Later}};
  for (const auto& [key, controlSet] : keys) {
    for (int name = 0; name <= kLastValue; ++name) {
      if (IsTransceiver(read(key, std::to_string(name)).value_or(""), controlSet)) return true;
    }
  }
  return false;
}

bool DetectHIDTransceiver(Show& show) {
  const auto present = show.platform.hid.Enumerate();
  return std::any_of(present.begin(), present.end(),
                     [](const HidDevice& device) { return IsTransceiver(InstancePath(device), ControlSet::First); });
}

void tmrSplash_Timer(Show& show) {
  show.frmSplash.tmrSplash.Enabled = false;
  ServeWhatIsFound(show);
  show.frmLoading.Visible = false;
  show.frmSplash.Visible = false;
}

InterfaceSettings ParseInterface(const std::string& bytes) {
  constexpr int kPort = 4;
  InterfaceSettings settings;
  const auto fields = SplitFields(bytes.substr(0, bytes.find_first_of("\r\n")));
  for (std::size_t i = 0; i < std::min(fields.size(), settings.Fields.size()); ++i) {
    settings.Fields[i] = FieldInRange(fields[i], i == 0 ? kPort : 0);
  }
  settings.ZR650Present = fields.size() > settings.Fields.size() && ParseNumber(fields[5]) == 1.0;
  return settings;
}

std::string FormatInterface(const InterfaceSettings& settings) {
  std::string line;
  for (const int field : settings.Fields) line += std::to_string(field) + "^";
  return line + (settings.ZR650Present ? "1" : "0") + "\r\n";
}

void LoadInterfaceFile(Show& show) {
  InterfaceSettings settings;
  try {
    const FileSystem& files = show.platform.files;
    if (files.CanOpen(InterfacePath(show))) settings = ParseInterface(files.Read(InterfacePath(show)));
  } catch (const RuntimeError&) {
    settings = {};
  }
  show.presses.InterfaceFields = settings.Fields;
  show.state.ZR650 = settings.ZR650Present;
}

void SaveInterfaceFile(Show& show) {
  show.platform.files.Write(InterfacePath(show), FormatInterface({show.presses.InterfaceFields, show.state.ZR650}));
}

void frmSetInterface_Load(Show& show) {
  constexpr int kLastChoice = 4;
  const int stored = GetIntSetting(show, "SerialComm", kInterfaceOutOfRange);
  show.state.SerialComm = stored < 0 || stored > kLastChoice ? kInterfaceOutOfRange : stored;
  frmSetInterface_btnOK_Click(show);
}

void frmSetInterface_btnOK_Click(Show& show) {
  show.state.ZR650 = false;
  show.state.SerialComm = kKeypadSharedKey;
  // A choice that can't be kept is told, and the console comes up all the same.
  SaveSettingOrTell(show, "SerialComm", std::to_string(kKeypadSharedKey), show.frmSetInterface, "btnOK_Click");
  show.frmMain.Visible = true;
  ShowAudienceAt(show, show.state.FSLeft);
  show.frmSetInterface.Unload();
}

void frmSetInterface_btnCancel_Click(Show& show) {
  show.frmSetInterface.Unload();
  show.platform.processes.EndProgram();
}

}  // namespace pawnfield
