// frmOptions' window with its two tabs.
#pragma once

#include "desktop/windows/form_window.h"

namespace pawnfield {

struct OptionsForm;

class OptionsWindow : public FormWindow {
 public:
  OptionsWindow(OptionsForm& form, FormWindows& windows);

 private:
  void TurnTabsByKey();
};

}  // namespace pawnfield
