#include "desktop/windows/help_about_window.h"

#include "forms/help_about_form.h"
#include "ui_frm_help_about.h"

namespace pawnfield {

HelpAboutWindow::HelpAboutWindow(HelpAboutForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  SetUp<Ui::frmHelpAbout>(*this);
  BindForm();
}

}  // namespace pawnfield
