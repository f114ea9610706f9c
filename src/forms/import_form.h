// frmImport: what would come into the editor's set from a sheet, row by row, before anything is taken. Owned by the
// show.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/set_ports.h"

namespace pawnfield {

struct ImportForm : Form {
  ImportForm();

  // The sheet that is looked at, and where its file is.
  Sheet Rows;
  std::string Path;
  // The operator has pressed Import.
  bool Accepted = false;

  Label lblFile{*this, "lblFile"};
  Label lblQuestionColumn{*this, "lblQuestionColumn"};
  ComboBox cboQuestion{*this, "cboQuestion"};
  Label lblAnswerColumn{*this, "lblAnswerColumn"};
  ComboBox cboAnswer{*this, "cboAnswer"};
  CheckBox chkHeading{*this, "chkHeading"};
  OptionButton optAdd{*this, "optAdd"};
  OptionButton optReplace{*this, "optReplace"};
  ListView lstRows{*this, "lstRows"};
  Label lblSummary{*this, "lblSummary"};
  Button btnTake{*this, "btnTake"};
  Button btnCancel{*this, "btnCancel"};
};

}  // namespace pawnfield
