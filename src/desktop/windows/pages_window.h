// frmPages' window: the address as a QR code, the seats, who is connected, and the control interface. It stands beside
// the console and holds nothing up.
#pragma once

#include "desktop/windows/form_window.h"
#include "forms/pages_form.h"

namespace pawnfield {

class PagesWindow : public FormWindow {
 public:
  PagesWindow(PagesForm& form, FormWindows& windows);

 private:
  // Keeps the code in step with the address.
  std::unique_ptr<Observer> follow_;
};

}  // namespace pawnfield
