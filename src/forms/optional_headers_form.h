// frmOptionalHeaders: up to four texts that take the header's place, each with its font and colours.
#pragma once

#include <array>
#include <string>

#include "data/game_state.h"
#include "platform/controls.h"

namespace pawnfield {

struct OptionalHeadersForm : Form {
  OptionalHeadersForm();
  Menu mnuFile{*this, "mnuFile"};
  Menu mnuFileOpen{*this, "mnuFileOpen"};
  Menu mnuFileSave{*this, "mnuFileSave"};
  Menu mnuFileSaveAs{*this, "mnuFileSaveAs"};
  Menu mnuFileExit{*this, "mnuFileExit"};
  ControlArray<TextBox, 4> txtOptionalHeader{*this, "txtOptionalHeader"};
  ControlArray<Button, 4> btnOpt1Font{*this, "btnOpt1Font"};
  ControlArray<Button, 4> btnOpt1Fg{*this, "btnOpt1Fg"};
  ControlArray<Button, 4> btnOpt1Bg{*this, "btnOpt1Bg"};
  CheckBox chkBaseImage{*this, "chkBaseImage"};
  Label lblBaseImage{*this, "lblBaseImage"};
  Button btnOpen{*this, "btnOpen"};
  Button btnSave{*this, "btnSave"};
  Button btnClearAll{*this, "btnClearAll"};
  Button btnOk{*this, "btnOk"};
  Button btnCancel{*this, "btnCancel"};

  // True until the form is unloaded; a hidden form keeps what its boxes hold.
  bool Loaded = false;
  // The boxes as they were when the dialog came up, which Cancel and the close box go back to.
  std::array<OptionalHeader, 4> Before;
  // What the file dialog chose last.
  std::string FileName;
};

}  // namespace pawnfield
