// frmFSMain's window: full-screen on the second monitor, never taking the focus from the console.
#pragma once

#include "platform/desktop/canvas.h"
#include "platform/desktop/form_window.h"

namespace pawnfield {

class FSMainForm;

class AudienceWindow : public FormWindow {
 public:
  AudienceWindow(FSMainForm& form, FormWindows& windows, PictureCache& pictures);
  Canvas& Screen() { return *screen_; }

 protected:
  void ShowForm() override;

 private:
  void Fill(FSMainForm& form);
  void FillPanels(FSMainForm& form);

  Canvas* screen_ = nullptr;
};

}  // namespace pawnfield
