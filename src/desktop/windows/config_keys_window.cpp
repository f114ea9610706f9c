#include "desktop/windows/config_keys_window.h"

#include "forms/config_keys_form.h"
#include "ui_frm_config_keys.h"

namespace pawnfield {

ConfigKeysWindow::ConfigKeysWindow(ConfigKeysForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  SetUp<Ui::frmConfigKeys>(*this);
  BindForm();
}

}  // namespace pawnfield
