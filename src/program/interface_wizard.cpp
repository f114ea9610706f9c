#include "program/interface_wizard.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "controllers/ring_in.h"
#include "forms/main_form.h"
#include "forms/press_forms.h"
#include "outward/shared_key.h"
#include "platform/attach.h"
#include "show/settings.h"
#include "show/settings_table.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// An option of the dialog and the interface that it stands for, none for what was found on the machine. The other
// options stand for nothing.
struct Choice {
  std::size_t Option;
  std::optional<InterfaceCode> SerialComm;
};
constexpr std::array<Choice, 5> kChoices{{{0, InterfaceCode::LampPads},
                                          {2, InterfaceCode::FurtherLampPads},
                                          {6, std::nullopt},
                                          {7, InterfaceCode::Keypads},
                                          {8, InterfaceCode::PublishingKeypads}}};

InterfaceCode FoundInterface(const Show& show) {
  if (show.presses.ZR610Present) return InterfaceCode::OutOfRange;
  return show.presses.HardwareFound ? InterfaceCode::Wireless : InterfaceCode::Manual;
}

InterfaceCode ChosenInterface(const Show& show) {
  for (const auto& [option, serialComm] : kChoices) {
    if (show.frmSetInterface.optInterfaceType[option].Value) return serialComm.value_or(FoundInterface(show));
  }
  return FoundInterface(show);
}

// What hangs on the interface and is already under way follows it.
void TakeUp(Show& show, InterfaceCode serialComm) {
  const bool typedForUs = IsKeypadMode(show);
  show.state.SerialComm = serialComm;
  if (IsKeypadMode(show)) {
    SendKeyPressInRingIn(show, MayRingIn(show));
  } else if (typedForUs) {
    SendKeyPress(show, false);
  }
  const bool chases = serialComm == InterfaceCode::LampPads || serialComm == InterfaceCode::FurtherLampPads;
  show.frmMain.tmrRotate.Enabled = chases && !show.state.GameInProgress;
}

}  // namespace

void frmSetInterface_Load(Show& show) {
  SetInterfaceForm& form = show.frmSetInterface;
  for (std::size_t i = 0; i < form.optInterfaceType.Size(); ++i) form.optInterfaceType[i].Enabled = false;
  std::size_t begin = kChoices.back().Option;
  for (const auto& [option, serialComm] : kChoices) {
    form.optInterfaceType[option].Enabled = true;
    if (serialComm == show.state.SerialComm) begin = option;
  }
  form.optInterfaceType[begin].SelectInGroup();
  // What hangs behind a ZR-650 is not the program's to say any more.
  form.chkZR650.Enabled = false;
}

void frmSetInterface_btnOK_Click(Show& show) {
  show.state.ZR650 = false;
  TakeUp(show, ChosenInterface(show));
  // A choice that can't be saved is reported, and holds for this evening all the same.
  SaveSettingOrReport(show, kSerialCommKey, show.frmSetInterface, "btnOK_Click");
  show.frmSetInterface.Unload();
}

void frmSetInterface_btnCancel_Click(Show& show) { show.frmSetInterface.Unload(); }

void mnuFileInterface_Click(Show& show) {
  frmSetInterface_Load(show);
  show.platform.dialogs.ShowModal(show.frmSetInterface);
}

void AttachInterfaceWizard(Show& show) {
  OnClick(show, show.frmMain.mnuFileInterface, mnuFileInterface_Click);
  OnClick(show, show.frmSetInterface.btnOK, frmSetInterface_btnOK_Click);
  OnClick(show, show.frmSetInterface.btnCancel, frmSetInterface_btnCancel_Click);
}

}  // namespace pawnfield
