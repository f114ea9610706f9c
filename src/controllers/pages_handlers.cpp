#include "controllers/pages_handlers.h"

#include "controllers/pages_switch.h"
#include "controllers/phone_presses.h"
#include "controllers/phones.h"
#include "controllers/show_control.h"
#include "forms/main_form.h"
#include "forms/pages_form.h"
#include "platform/attach.h"
#include "show/show.h"

namespace pawnfield {

void AttachPages(Show& show) {
  PagesForm& form = show.frmPages;
  show.platform.webPages.OnEvent = [&show](const PageEvent& event) {
    show.frmPages.Dispatch([&] { PagesChanged(show, event); }, "OnEvent");
  };
  OnClick(show, show.frmMain.mnuFilePages, mnuFilePages_Click);
  OnClick(show, form.btnSwitch, btnSwitch_Click);
  OnClick(show, form.chkKeepOn, chkKeepOn_Click);
  OnClick(show, form.chkControl, chkControl_Click);
  OnClick(show, form.optWeighing, optWeighing_Click);
  OnClick(show, form.btnEmptySeat, btnEmptySeat_Click);
  OnClick(show, form.btnLockSeat, btnLockSeat_Click);
  form.txtControlAddresses.OnChange = [&show] { txtControlAddresses_Change(show); };
  form.btnClose.OnClick = [&form] { form.Unload(); };
  OnTimer(show, form.tmrPing, tmrPing_Timer);
  OnTimer(show, form.tmrWeigh, tmrWeigh_Timer);
  OnTimer(show, form.tmrControl, tmrControl_Timer);
}

}  // namespace pawnfield
