// The forms of the controllers' room: the map of the ZR-610's pads, and the interface dialog.
#pragma once

#include "platform/controls.h"

namespace pawnfield {

struct MapMFForm : Form {
  MapMFForm();
  ListView lstControllers{*this, "lstControllers"};
  Label lblSelectA{*this, "lblSelectA"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
};

struct SetInterfaceForm : Form {
  SetInterfaceForm();
  ControlArray<OptionButton, 9> optInterfaceType{*this, "optInterfaceType"};
  CheckBox chkZR650{*this, "chkZR650"};
  Button btnOK{*this, "btnOK"};
  Button btnCancel{*this, "btnCancel"};
};

}  // namespace pawnfield
