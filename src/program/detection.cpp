#include "program/detection.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "controllers/pages_switch.h"
#include "controllers/zr610.h"
#include "engine/set_choice.h"
#include "forms/main_form.h"
#include "forms/small_forms.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "presentation/audience_screen.h"
#include "program/main_load.h"
#include "record/come_back.h"
#include "show/settings.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kAudienceInset = 60;
// The stored name of what this version calls reported; it stays so that an update asks nobody again.
constexpr const char* kNoHardwareReported = "NoHardwareTold";

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

// Once on a machine: from then on the console's bottom line says it.
void ReportManualMode(Show& show) {
  show.platform.dialogs.MessageBox("No hardware was detected so you will be loaded in manual mode.", kAppTitle,
                                   BoxKind::Plain);
  RunGuarded(
      show.platform.dialogs, [&] { SaveSetting(show, kNoHardwareReported, BooleanText(true)); }, "frmSplash",
      "tmrSplash_Timer");
}

// The hardware in the order in which it is looked for.
void ServeWhatIsFound(Show& show) {
  GameState& state = show.state;
  PressState& presses = show.presses;
  const bool reportedBefore =
      show.platform.settings.GetSetting(kAppTitle, "Settings", kNoHardwareReported, "") == BooleanText(true);
  presses.CommPortNumber = FindZR610Port(show.platform.serial);
  presses.ZR610Present = presses.CommPortNumber > -1;
  if (!presses.ZR610Present) {
    presses.HardwareFound = DetectHIDTransceiver(show);
    if (!presses.HardwareFound && !reportedBefore) ReportManualMode(show);
    state.SerialComm = presses.HardwareFound ? InterfaceCode::Wireless : InterfaceCode::Manual;
  }
  const bool manual = !presses.ZR610Present && !presses.HardwareFound;
  ShowAudienceAt(show, state.FSLeft + (manual ? 0 : kAudienceInset));
  LoadMainForm(show);
  if (presses.ZR610Present) show.frmMain.lblStatusBar.Caption = "ZR-610 System initialized";
  if (manual && reportedBefore) show.frmMain.lblStatusBar.Caption = "No hardware was detected: manual mode";
}

}  // namespace

bool IsTransceiver(const std::string& instancePath) {
  const std::string text = ToUpper(instancePath);
  const std::size_t vid = text.find("VID_");
  if (vid == std::string::npos) return false;
  const std::size_t vidEnd = text.find('&', vid);
  if (vidEnd == std::string::npos) return false;
  const std::size_t pid = text.find("PID_", vidEnd);
  if (pid == std::string::npos) return false;
  const std::string vendor = Between(text, vid + 4, vidEnd);
  const std::string product = Between(text, pid + 4, text.find_first_of("&\\", pid + 4));
  return (vendor == "04FE" || vendor == "0003") && (product == "1003" || product == "1001");
}

bool DetectHIDTransceiver(Show& show) {
  const auto present = show.platform.hid.Enumerate();
  return std::any_of(present.begin(), present.end(),
                     [](const HidDevice& device) { return IsTransceiver(InstancePath(device)); });
}

void tmrSplash_Timer(Show& show) {
  show.frmSplash.tmrSplash.Enabled = false;
  ServeWhatIsFound(show);
  show.frmLoading.Visible = false;
  show.frmSplash.Visible = false;
  if (!show.record->Interrupted) {
    OpenSetAtStart(show);
  } else if (AskForInterruptedShow(show)) {
    BringPagesBack(show);
  }
}

}  // namespace pawnfield
