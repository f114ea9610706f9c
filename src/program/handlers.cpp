#include "program/handlers.h"

#include "config/help.h"
#include "config/options_dialog.h"
#include "controllers/config_keys.h"
#include "controllers/keyboard.h"
#include "controllers/pages_handlers.h"
#include "controllers/phones.h"
#include "controllers/ring_in.h"
#include "controllers/zr610.h"
#include "engine/answer_clock.h"
#include "engine/board_play.h"
#include "engine/game_flow.h"
#include "engine/judging.h"
#include "engine/player_names.h"
#include "engine/question_cycle.h"
#include "engine/set_choice.h"
#include "engine/show_line.h"
#include "engine/turn_order.h"
#include "engine/why_not.h"
#include "engine/win_detection.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/press_forms.h"
#include "forms/small_forms.h"
#include "media/media_handlers.h"
#include "media/sound_channels.h"
#include "media/sound_panel.h"
#include "outward/companion.h"
#include "outward/shared_key.h"
#include "platform/attach.h"
#include "platform/errors.h"
#include "platform/set_ports.h"
#include "presentation/audience_screen.h"
#include "program/console_chips.h"
#include "program/detection.h"
#include "program/interface_wizard.h"
#include "program/show_check.h"
#include "program/start_up.h"
#include "program/wireless.h"
#include "record/history.h"
#include "record/record_file.h"
#include "record/results_window.h"
#include "sets/editor_handlers.h"
#include "show/settings.h"
#include "show/show.h"

namespace pawnfield {

namespace {

void AttachOptions(Show& show) {
  MainForm& form = show.frmMain;
  GameState& state = show.state;
  OnClick(show, form.optGameType, optGameType_Click);
  OnClick(show, form.optPlayers, optPlayers_Click);
  OnClick(show, form.optGridControl, optGridControl_Click);
  OnClick(show, form.cbxScore, cbxScore_Click);
  OnClick(show, form.cboAutoContinue, cboAutoContinue_Click);
  OnClick(show, form.cboTimedResponse, cboTimedResponse_Click);
  for (std::size_t i = 0; i < 2; ++i) form.optGameEnds[i].OnClick = [&state, i] { state.GameEnds = i == 0; };
  const auto follow = [](CheckBox& box, bool& option) { box.OnClick = [&box, &option] { option = box.Value == 1; }; };
  follow(form.chkAnimation, state.Animation);
  follow(form.chkHideQuestion, state.HideQuestion);
  follow(form.chkIncorrectPenalty, state.IncorrectPenalty);
  form.chkExtKeyboardCtrl.OnClick = [&form, &state] {
    state.KeyControl = form.chkExtKeyboardCtrl.Value == 1;
    form.txtDJCommand.Visible = state.KeyControl;
  };
  form.OnKeyPress = [&show](int keyAscii) { ProcessKeyPress(show, keyAscii); };
}

void AttachScoreButtons(Show& show) {
  MainForm& form = show.frmMain;
  const auto attach = [&show](MainForm::ScoreButtons& buttons, int player, ScoreChange change) {
    for (std::size_t i = 0; i < 6; ++i) {
      buttons[i].OnClick = [&show, player, change, i] { ChangeScore(show, player, change, static_cast<int>(i)); };
    }
  };
  for (int player = 1; player <= kPlayers; ++player) {
    attach(form.ScoreUp(player), player, ScoreChange::Up);
    attach(form.ScoreDown(player), player, ScoreChange::Down);
  }
}

void AttachButtons(Show& show) {
  MainForm& form = show.frmMain;
  OnClick(show, form.btnSelectGame, btnSelectGame_Click);
  OnClick(show, form.cboList, cboList_Click);
  form.cboList.OnDropDown = [&show] { cboList_DropDown(show); };
  OnClick(show, form.btnStart, btnStart_Click);
  OnClick(show, form.btnContinue, btnContinue_Click);
  OnClick(show, form.btnPlayMode, btnPlayMode_Click);
  OnClick(show, form.btnStandbyMode, btnStandbyMode_Click);
  OnClick(show, form.btnNextPlayer, btnNextPlayer_Click);
  OnClick(show, form.btnSkipQuestion, btnSkipQuestion_Click);
  OnClick(show, form.btnUndo, btnUndo_Click);
  OnClick(show, form.mnuFileBringBack, BringBackLastGame);
  AttachResults(show);
  OnClick(show, form.btnReset, btnReset_Click);
  OnClick(show, form.btnEndGame, btnEndGame_Click);
  OnClick(show, form.btnQuestionCorrect, HandleCorrect);
  OnClick(show, form.btnQuestionIncorrect, HandleIncorrect);
  OnClick(show, form.btnCorrect, HandleCorrect);
  OnClick(show, form.btnAnswerClock, btnAnswerClock_Click);
  OnClick(show, form.btnSelectPlayer, btnSelectPlayer_Click);
  OnClick(show, form.fileClearAllScores, fileClearAllScores_Click);
  AttachScoreButtons(show);
  form.btnGameTypeHelp.OnClick = [&show] { show.platform.dialogs.ShowModal(show.frmGameTypeHelp); };
  show.frmGameTypeHelp.btnOk.OnClick = [&show] { show.frmGameTypeHelp.Unload(); };
}

void AttachSquares(Show& show) {
  for (int r = 0; r < 6; ++r) {
    for (int c = 0; c < 6; ++c) {
      const std::string key = std::to_string(r) + std::to_string(c);
      const auto claim = [&show, r, c, key] { ClaimSquare(show, r, c, key); };
      show.frmMain.img.At(r, c)->OnClick = claim;
      show.frmFSMain.img.At(r, c)->OnClick = claim;
    }
  }
}

void AttachTimers(Show& show) {
  MainForm& form = show.frmMain;
  OnTimer(show, form.tmrAutoContinue, tmrAutoContinue_Timer);
  OnTimer(show, form.tmr5QuestionTimer, tmr5QuestionTimer_Timer);
  OnTimer(show, form.tmrBonus, tmrBonus_Timer);
  OnTimer(show, form.tmrCorrectSWF, tmrCorrectSWF_Timer);
  OnTimer(show, form.tmrArrowsTimer, tmrArrowsTimer_Timer);
  OnTimer(show, form.tmrGridEnable, tmrGridEnable_Timer);
  OnTimer(show, form.tmrRotate, tmrRotate_Timer);
  OnTimer(show, form.tmrAnswer, tmrAnswer_Timer);
  OnTimer(show, form.tmrFlipPlayerPiece, tmrFlipPlayerPiece_Timer);
  OnTimer(show, form.tmrAnswerClock, tmrAnswerClock_Timer);
  OnTimer(show, form.tmrWinner, tmrWinner_Timer);
  OnTimer(show, form.tmrShowLine, tmrShowLine_Timer);
  OnTimer(show, show.frmFSMain.tmrFSFlipPlayerPiece, tmrFSFlipPlayerPiece_Timer);
  OnTimer(show, show.frmAlwaysLoaded.tmrAlwaysLoaded, tmrAlwaysLoaded_Timer);
  OnTimer(show, show.frmAlwaysLoaded.tmrCompanion, tmrCompanion_Timer);
  OnTimer(show, show.frmAlwaysLoaded.tmrRecord, TakeSnapshot);
  OnTimer(show, show.frmAlwaysLoaded.tmrSharedKey, FlushSharedKey);
  OnTimer(show, show.frmSplash.tmrProgress, tmrProgress_Timer);
  OnTimer(show, show.frmSplash.tmrSplash, tmrSplash_Timer);
  show.frmSplash.OnClick = [&show] { frmSplash_Click(show); };
  for (std::size_t i = 0; i < 2; ++i) {
    form.tmrAnimate[i].OnTimer = [&show, i] { tmrAnimate_Timer(show, static_cast<int>(i)); };
  }
}

// The record takes down what an event changes; a fault of the event's must not keep it from that.
void RunEvent(Show& show, const std::function<void()>& handler, const std::string& location,
              const std::string& procedure) {
  const auto guarded = [&](const std::function<void()>& step) {
    RunGuarded(show.platform.dialogs, step, location, procedure);
  };
  guarded([&show] { BeforeEvent(show); });
  guarded(handler);
  guarded([&show] { AfterEvent(show); });
}

// What tells the operator where the show is follows each event.
void ShowWhereWeAre(Show& show) {
  WriteShowLine(show);
  show.frmMain.lblUndoNote.Caption = show.frmMain.btnUndo.Enabled ? UndoText(show) : "";
  ShowChips(show);
  FollowShowCheck(show);
  ShowSoundPanel(show);
}

void AttachWhereWeAre(Show& show) {
  AttachShowCheck(show);
  AttachChips(show);
  AttachSoundPanel(show);
  show.frmMain.WhyNot = [&show](const Control& control) { return WhyNot(show, control); };
}

void AttachExit(Show& show) {
  MainForm& form = show.frmMain;
  form.OnQueryUnload = [&show] { return Form_QueryUnload(show); };
  form.OnUnload = [&show] { fileExit(show); };
  form.mnuFileExit.OnClick = [&show] {
    if (Form_QueryUnload(show)) show.frmMain.Unload();
  };
}

}  // namespace

void AttachHandlers(Show& show) {
  show.platform.settings.OnSaveFailed = [&show](const RuntimeError& error) { ReportSettingsFailure(show, error); };
  show.platform.bundles.OnOpened = [&show](const std::string& path) {
    show.frmMain.Dispatch([&show, &path] { OpenHandedOver(show, path); }, "OpenFile");
  };
  AttachOptions(show);
  AttachButtons(show);
  AttachSquares(show);
  AttachTimers(show);
  AttachExit(show);
  AttachWhereWeAre(show);
  AttachPlayerNamesHandlers(show);
  AttachEditorHandlers(show);
  AttachHelpHandlers(show);
  AttachConfigKeysHandlers(show);
  AttachOptionsDialogHandlers(show);
  AttachPressHandlers(show);
  AttachDeviceWatch(show);
  AttachInterfaceWizard(show);
  BindSoundChannels(show);
  AttachAudienceHandlers(show);
  AttachMediaHandlers(show);
  AttachPages(show);
  AttachRecord(show);
  for (Form* form : AllForms(show)) {
    form->Guard = [&show](const std::function<void()>& handler, const std::string& location,
                          const std::string& procedure) {
      RunEvent(show, handler, location, procedure);
      UpdateAnswerClock(show);
      SaveChangedSettings(show);
      ShowWhereWeAre(show);
      TellPages(show);
    };
    show.platform.clock.Attach(*form);
  }
}

}  // namespace pawnfield
