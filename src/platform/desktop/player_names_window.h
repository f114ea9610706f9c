// frmPlayerNames' window.
#pragma once

#include "platform/desktop/form_window.h"

namespace pawnfield {

struct PlayerNamesForm;

class PlayerNamesWindow : public FormWindow {
 public:
  PlayerNamesWindow(PlayerNamesForm& form, FormWindows& windows);
};

}  // namespace pawnfield
