// frmShowCheck's window: small enough for a corner, beside the console, holding nothing up.
#pragma once

#include <memory>
#include <vector>

#include "desktop/windows/form_window.h"
#include "forms/show_check_form.h"

namespace pawnfield {

class ShowCheckWindow : public FormWindow {
 public:
  ShowCheckWindow(ShowCheckForm& form, FormWindows& windows);

 protected:
  // Digits are presses, wherever the keyboard is.
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakeDigit(const QKeyEvent& event);
  void TieFindings(ShowCheckForm& form);

  // Paint the boxes of those who have pressed, and give room to what comes up.
  std::vector<std::unique_ptr<Observer>> follow_;
};

}  // namespace pawnfield
