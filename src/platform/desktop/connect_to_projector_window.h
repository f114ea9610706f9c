// frmConnectToProjector's window: the picture and what closes it.
#pragma once

#include "platform/desktop/canvas.h"
#include "platform/desktop/form_window.h"

namespace pawnfield {

struct ConnectToProjectorForm;

class ConnectToProjectorWindow : public FormWindow {
 public:
  ConnectToProjectorWindow(ConnectToProjectorForm& form, FormWindows& windows, PictureCache& pictures);
};

}  // namespace pawnfield
