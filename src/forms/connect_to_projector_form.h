// frmConnectToProjector: a picture that shows how to connect a projector.
#pragma once

#include "platform/controls.h"

namespace pawnfield {

struct ConnectToProjectorForm : Form {
  ConnectToProjectorForm() : Form("frmConnectToProjector") {
    Form::Caption = "Connect to Projector";
    Width = 10800;
    Height = 6750;
    imgProjector.MoveTo(0, 0, Width, Height);
    imgExit.MoveTo(Width - 780, 180, 600, 600);
    imgExit.ToolTipText = "Close";
  }
  Image imgProjector{*this, "imgProjector"};
  Image imgExit{*this, "imgExit"};
};

}  // namespace pawnfield
