#include "program/wireless.h"

#include <utility>

#include "controllers/ring_in.h"
#include "devices/transceiver.h"
#include "forms/main_form.h"
#include "platform/errors.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr const char* kLost = "Wireless transceiver lost";
constexpr const char* kBack = "Wireless transceiver back";
constexpr const char* kFound = "Wireless transceiver found";

// Manual mode ends with the first transceiver; another interface that was chosen stays.
void ServeWireless(Show& show) {
  show.presses.HardwareFound = true;
  if (show.state.SerialComm == InterfaceCode::Manual) show.state.SerialComm = InterfaceCode::Wireless;
}

void TransceiverIsLost(Show& show) {
  show.presses.TransceiverLost = true;
  show.frmMain.lblStatusBar.Caption = kLost;
  // One that was pulled and put back faster than a poll has reported already.
  DevicesChanged(show);
}

}  // namespace

void CreateTransceiver(Show& show) {
  const auto guard = [&show](const std::function<void()>& poll, const std::string&, const std::string&) {
    show.frmMain.Dispatch(poll, "dgTransceiver_OnButtonPressed");
  };
  // One device can be open at a time, so the old object goes before the new one comes.
  show.dgTransceiver.reset();
  show.dgTransceiver = std::make_unique<Transceiver>(
      show.platform.hid, show.platform.clock,
      [&show](const TransceiverData& data) { dgTransceiver_OnButtonPressed(show, data); }, guard,
      [&show] { TransceiverIsLost(show); });
  if (show.dgTransceiver->Ready()) ServeWireless(show);
}

void DevicesChanged(Show& show) {
  if (!show.dgTransceiver || !show.dgTransceiver->Open()) return;
  ServeWireless(show);
  show.frmMain.lblStatusBar.Caption = std::exchange(show.presses.TransceiverLost, false) ? kBack : kFound;
}

void AttachDeviceWatch(Show& show) {
  show.platform.devices.OnChanged(
      [&show] { show.frmMain.Dispatch([&show] { DevicesChanged(show); }, "DevicesChanged"); });
}

}  // namespace pawnfield
