// frmPlayerNames' window.
#pragma once

#include "desktop/windows/form_window.h"

namespace pawnfield {

struct PlayerNamesForm;

class PlayerNamesWindow : public FormWindow {
 public:
  PlayerNamesWindow(PlayerNamesForm& form, FormWindows& windows);
};

}  // namespace pawnfield
