// frmResults' window: the shows on record beside the chosen one's questions and totals. It stands beside the console
// and holds nothing up.
#pragma once

#include "desktop/windows/form_window.h"
#include "forms/results_form.h"

namespace pawnfield {

class ResultsWindow : public FormWindow {
 public:
  ResultsWindow(ResultsForm& form, FormWindows& windows);
};

}  // namespace pawnfield
