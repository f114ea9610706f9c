// The window of frmImport: which column is what, and what becomes of each row of the sheet.
#pragma once

#include "desktop/windows/form_window.h"

class QTreeWidgetItem;

namespace pawnfield {

struct ImportForm;

class ImportWindow : public FormWindow {
 public:
  ImportWindow(ImportForm& form, FormWindows& windows);

 private:
  // What can't be taken stands out.
  static void Mark(QTreeWidgetItem* item, int column);
};

}  // namespace pawnfield
