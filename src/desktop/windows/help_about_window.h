// frmHelpAbout's window.
#pragma once

#include "desktop/windows/form_window.h"

namespace pawnfield {

struct HelpAboutForm;

class HelpAboutWindow : public FormWindow {
 public:
  HelpAboutWindow(HelpAboutForm& form, FormWindows& windows);
};

}  // namespace pawnfield
