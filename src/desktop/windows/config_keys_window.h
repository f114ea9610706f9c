// frmConfigKeys' window.
#pragma once

#include "desktop/windows/form_window.h"

namespace pawnfield {

struct ConfigKeysForm;

class ConfigKeysWindow : public FormWindow {
 public:
  ConfigKeysWindow(ConfigKeysForm& form, FormWindows& windows);
};

}  // namespace pawnfield
