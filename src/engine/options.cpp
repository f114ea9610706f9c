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
  for (std::size_t i = 0; i < kGameTypes.size(); ++i) form.optGameType[i].Enabled = enabled;
  SetEnabled({&form.chkHideQuestion, &form.lblHidequestionOption, &form.chkExtKeyboardCtrl, &form.lblExtKeyboardCtrl,
              &form.chkAnimation, &form.lblShowAnimation, &form.chkIncorrectPenalty, &form.lblLose100Points,
              &form.cboTimedResponse, &form.lblTimedResponse, &form.fileClearAllScores, &form.mnuFileOptions},
             enabled);
}

}  // namespace

const GameNature& SelectedType(const Show& show) {
  for (const GameNature& type : kGameTypes) {
    if (show.frmMain.optGameType[RowOf(type.Mode)].Value) return type;
  }
  return show.state.Nature();
}

void EnableOptions(Show& show) {
  MainForm& form = show.frmMain;
  SetCommonOptions(form, true);
  const Offers& offer = SelectedType(show).Offer;
  SetEnabled({&form.cboAutoContinue, &form.lblAutoContinuePrompt}, offer.AutoContinue);
  form.btnEnableAllBuzzers.Enabled = offer.SelectPlayer;
  for (int player = 1; player <= kPlayers; ++player) {
    form.btnSelectPlayer[PlayerIndex(player)].Enabled = offer.SelectPlayer && player <= show.state.Players;
  }
  form.lblSelectPlayer.Visible = offer.SelectPlayer;
}

void DisableOptions(Show& show) {
  MainForm& form = show.frmMain;
  SetCommonOptions(form, false);
  SetEnabled({&form.cboAutoContinue, &form.lblAutoContinuePrompt}, false);
}

}  // namespace pawnfield
