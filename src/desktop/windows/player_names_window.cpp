#include "desktop/windows/player_names_window.h"

#include "forms/player_names_form.h"
#include "ui_frm_player_names.h"

namespace pawnfield {

PlayerNamesWindow::PlayerNamesWindow(PlayerNamesForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  SetUp<Ui::frmPlayerNames>(*this);
  BindForm();
  Bindings()->Hold({"lblHiddenPlayerNumber"});
}

}  // namespace pawnfield
