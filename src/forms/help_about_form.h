// frmHelpAbout: what the program is, its version, and the licences of what it is built with.
#pragma once

#include "platform/controls.h"

namespace pawnfield {

struct HelpAboutForm : Form {
  HelpAboutForm();
  Label lblTitle{*this, "lblTitle"};
  Label lblVersion{*this, "lblVersion"};
  Label lblDescription{*this, "lblDescription"};
  Label lblLicence{*this, "lblLicence"};
  Label lblUsedHeading{*this, "lblUsedHeading"};
  Label lblUsed{*this, "lblUsed"};
  Label lblUsedLicence{*this, "lblUsedLicence"};
  Button btnLicence{*this, "btnLicence"};
  Button btnOK{*this, "btnOK"};
};

}  // namespace pawnfield
