#include "desktop/windows/press_windows.h"

#include <QHeaderView>

#include "forms/press_forms.h"
#include "ui_frm_map_mf.h"
#include "ui_frm_set_interface.h"

namespace pawnfield {

MapMFWindow::MapMFWindow(MapMFForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  SetUp<Ui::frmMapMF>(*this);
  BindForm();
  findChild<QTreeWidget*>("lstControllers")->header()->resizeSection(0, 110);
}

SetInterfaceWindow::SetInterfaceWindow(SetInterfaceForm& form, FormWindows& windows)
    : FormWindow(form, windows, kDialog) {
  SetUp<Ui::frmSetInterface>(*this);
  BindForm();
}

}  // namespace pawnfield
