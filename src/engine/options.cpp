#include "engine/options.h"

#include <initializer_list>

#include "forms/main_form.h"
#include "show/show.h"

namespace pawnfield {

namespace {

void SetEnabled(std::initializer_list<Control*> controls, bool enabled) {
  for (Control* control : controls) control->Enabled = enabled;
}

void SetCommonOptions(MainForm& form, bool enabled) {
  for (std::size_t i = 0; i < 5; ++i) form.optGameType[i].Enabled = enabled;
  SetEnabled({&form.chkHideQuestion, &form.lblHidequestionOption, &form.chkExtKeyboardCtrl, &form.lblExtKeyboardCtrl,
              &form.chkAnimation, &form.lblShowAnimation, &form.chkIncorrectPenalty, &form.lblLose100Points,
              &form.cboTimedResponse, &form.lblTimedResponse, &form.fileClearAllScores, &form.mnuFileOptions},
             enabled);
}

}  // namespace

void EnableOptions(Show& show) {
  MainForm& form = show.frmMain;
  SetCommonOptions(form, true);
  const bool challenge = form.optGameType[0].Value || form.optGameType[1].Value;
  SetEnabled({&form.cboAutoContinue, &form.lblAutoContinuePrompt, &form.btnEnableAllBuzzers, &form.btnSelectPlayer[0],
              &form.btnSelectPlayer[1]},
             !challenge);
  form.btnSelectPlayer[2].Enabled = !challenge && show.state.Players == 3;
  form.lblSelectPlayer.Visible = !challenge;
}

void DisableOptions(Show& show) {
  MainForm& form = show.frmMain;
  SetCommonOptions(form, false);
  SetEnabled({&form.cboAutoContinue, &form.lblAutoContinuePrompt}, false);
}

}  // namespace pawnfield
