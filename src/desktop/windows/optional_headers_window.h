// frmOptionalHeaders' window: four lines, each shown in the look that it will have on the screens.
#pragma once

#include "desktop/windows/form_window.h"

namespace pawnfield {

struct OptionalHeadersForm;

class OptionalHeadersWindow : public FormWindow {
 public:
  OptionalHeadersWindow(OptionalHeadersForm& form, FormWindows& windows);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace pawnfield
