// The windows of frmMapMF and frmSetInterface.
#pragma once

#include "desktop/windows/form_window.h"

namespace pawnfield {

struct MapMFForm;
struct SetInterfaceForm;

class MapMFWindow : public FormWindow {
 public:
  MapMFWindow(MapMFForm& form, FormWindows& windows);
};

class SetInterfaceWindow : public FormWindow {
 public:
  SetInterfaceWindow(SetInterfaceForm& form, FormWindows& windows);
};

}  // namespace pawnfield
