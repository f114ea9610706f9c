#include "forms/press_forms.h"

namespace pawnfield {

MapMFForm::MapMFForm() : Form("frmMapMF") {
  Form::Caption = "Map the ZR-610 Controllers";
  lstControllers.ColumnHeaders = {"Player #", "Pad ID"};
  lblSelectA.Caption =
      "Select a player # and then 'ring in' to map. Press 'Reset' on the controller pad to continue. Note: Only the "
      "first three are relevant to this game.";
  cmdOK.Caption = "Done";
  cmdCancel.Caption = "Cancel";
  cmdOK.ToolTipText = "Click to close this window.";
  cmdCancel.ToolTipText = "Click to close this window.";
}

SetInterfaceForm::SetInterfaceForm() : Form("frmSetInterface") {
  constexpr std::array<const char*, 9> kCaptions{"ZR Series Type A",
                                                 "ZR Series Type B",
                                                 "ZR Series Type C",
                                                 "ZR Series Type C",
                                                 "ZR Series Type C",
                                                 "ZR Series Type D",
                                                 "As found: remotes, pads or manual",
                                                 "Keypads",
                                                 "Keypads and the keyboard program"};
  Form::Caption = "Interface Wizard";
  for (std::size_t i = 0; i < kCaptions.size(); ++i) {
    optInterfaceType[i].Caption = kCaptions[i];
    for (std::size_t other = 0; other < kCaptions.size(); ++other) {
      optInterfaceType[i].Group.push_back(&optInterfaceType[other]);
    }
  }
  chkZR650.Caption = "A ZR-650 is connected";
  btnOK.Caption = "OK";
  btnCancel.Caption = "Cancel";
}

}  // namespace pawnfield
