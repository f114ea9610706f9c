// frmConfigKeys, the dialog that shows the console's fixed keys and saves the letters of the two verdicts.
#pragma once

#include "platform/controls.h"

namespace pawnfield {

struct ConfigKeysForm : Form {
  ConfigKeysForm();

  Label lblHeading{*this, "lblHeading"};
  // The fixed keys: undo, skip, next player, Enter.
  ControlArray<Label, 4> lblKey{*this, "lblKey"};
  Label lblInfo{*this, "lblInfo"};
  ControlArray<Label, 2> lblKeyPrompt{*this, "lblKeyPrompt"};
  ControlArray<TextBox, 2> txtKey{*this, "txtKey"};
  Button btnKeyDefaults{*this, "btnKeyDefaults"};
  Button btnFinished{*this, "btnFinished"};
  Button btnCancel{*this, "btnCancel"};
};

}  // namespace pawnfield
