// frmSS, the window on the second monitor: shows what frmFSMain holds, and exists only while that monitor is there.
#pragma once

#include "platform/controls.h"

namespace pawnfield {

struct SecondScreenForm : Form {
  SecondScreenForm() : Form("frmSS") { Form::Caption = "Second Screen - Ostara Wheelhouse"; }
};

}  // namespace pawnfield
