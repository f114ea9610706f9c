// frmConnectToProjector's window: the picture and what closes it.
#pragma once

#include "desktop/painting/canvas.h"
#include "desktop/windows/form_window.h"

namespace pawnfield {

struct ConnectToProjectorForm;

class ConnectToProjectorWindow : public FormWindow {
 public:
  ConnectToProjectorWindow(ConnectToProjectorForm& form, FormWindows& windows, PictureCache& pictures);
};

}  // namespace pawnfield
