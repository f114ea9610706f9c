// frmDialog2: a medium of the loaded set is missing, and the operator may point at it. Owned by the show.
#pragma once

#include "forms/editor_form.h"
#include "platform/controls.h"

namespace pawnfield {

struct MissingMediaForm : Form {
  MissingMediaForm();
  Label lblMissingMedia{*this, "lblMissingMedia"};
  Label lblCatNum{*this, "lblCatNum"};
  Label lblQuestionNum{*this, "lblQuestionNum"};
  Label Label2{*this, "Label2"};
  TextBox txtLocation{*this, "txtLocation"};
  Button btnRepair{*this, "btnRepair"};
  Label lblRecommended{*this, "lblRecommended"};
  Button btnCancel{*this, "btnCancel"};
  Button btnFinished{*this, "btnFinished"};

  CommonDialog cdSoundPicture;
};

}  // namespace pawnfield
