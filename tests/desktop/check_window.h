// The check before the show in its real window: its parts by their rows.
#pragma once

#include <QPushButton>

#include "desktop/windows/form_window.h"
#include "forms/show_check_form.h"
#include "show_suite.h"

namespace pawnfield {

class CheckWindow : public ShowSuite {
 protected:
  FormWindow* Window() { return driver_->Form("frmShowCheck"); }
  template <typename Widget>
  Widget* Part(const char* name, CheckRow row) {
    return Window()->findChild<Widget*>(QString("%1_%2").arg(name).arg(static_cast<int>(row)));
  }
  void Push(const char* name, CheckRow row) {
    auto* button = Part<QPushButton>(name, row);
    ASSERT_TRUE(button->isVisible()) << name;
    QTest::mouseClick(button, Qt::LeftButton);
  }
  static ShowCheckForm& Form() { return TheShow().frmShowCheck; }
  static ChipState Light(CheckRow row) { return ShowCheckForm::Of(Form().chpLight, row).State; }
};

}  // namespace pawnfield
