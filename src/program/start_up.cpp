#include "program/start_up.h"

#include <cmath>

#include "controllers/pages_switch.h"
#include "devices/transceiver.h"
#include "forms/main_form.h"
#include "forms/small_forms.h"
#include "outward/companion.h"
#include "outward/shared_key.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "presentation/audience_screen.h"
#include "program/detection.h"
#include "program/interface_file.h"
#include "program/main_load.h"
#include "record/history.h"
#include "record/record_file.h"
#include "show/settings.h"
#include "show/show.h"

namespace pawnfield {

bool ScanForSiblings(Show& show, ScanMode mode) {
  constexpr const char* kFamily = "OSTARA";
  Processes& processes = show.platform.processes;
  for (const ProcessInfo& process : processes.List()) {
    const bool sibling = process.Caption.size() > 5 && ToUpper(process.Caption.substr(0, 6)) == kFamily &&
                         process.Handle != processes.CurrentId();
    if (!sibling) continue;
    if (mode == ScanMode::Report) {
      show.platform.dialogs.MessageBox(process.Caption + " is already running. Please close that instance first.",
                                       kAppTitle, BoxKind::Critical);
      processes.Activate(process.Handle);
      processes.EndProgram();
    }
    return true;
  }
  return false;
}

void PrepareDataFolders(Show& show) {
  FileSystem& files = show.platform.files;
  const std::string& root = show.platform.folders.DataRoot;
  if (!files.FolderExists(root)) files.CreateFolder(root);
  for (const char* name :
       {"Ostara Panel Pro 4", "Ostara Clash", "Pawnfield", "Ostara Wheelhouse", "Ostara Bargain", "BackgroundMusic"}) {
    const std::string folder = root + "\\" + name;
    if (!files.FolderExists(folder)) files.CreateFolder(folder);
  }
}

void tmrAlwaysLoaded_Timer(Show& show) {
  show.frmAlwaysLoaded.tmrAlwaysLoaded.Enabled = false;
  show.frmLoading.Visible = false;
  // A show that was interrupted has no time for a splash.
  RunGuarded(
      show.platform.dialogs, [&] { show.record->Interrupted = FindInterruptedShow(show); }, "modMain",
      "FindInterruptedShow");
  if (show.record->Interrupted) {
    tmrSplash_Timer(show);
    return;
  }
  show.frmSplash.imgBG.Picture = show.AppPath("\\Images\\Standby.jpg");
  show.platform.displays.RoundWindow(show.frmSplash, kCornerRadius);
  show.frmSplash.Visible = true;
  show.frmSplash.tmrProgress.Enabled = true;
}

void tmrProgress_Timer(Show& show) {
  constexpr double kStep = 500;
  constexpr double kMargin = 100;
  SplashForm& form = show.frmSplash;
  ShowStandbyFirst(show);
  const double full = form.Width - kMargin;
  form.oProgress.Width = std::fmin(form.oProgress.Width + kStep, full);
  if (form.oProgress.Width < full) return;
  form.tmrProgress.Enabled = false;
  form.tmrSplash.Enabled = true;
}

void frmSplash_Click(Show& show) {
  SplashForm& form = show.frmSplash;
  if (!form.tmrProgress.Enabled && !form.tmrSplash.Enabled) return;
  form.tmrProgress.Enabled = false;
  tmrSplash_Timer(show);
}

namespace {

// A game that is open is kept for the next start unless the operator says that the show is over.
void EndOrKeepShow(Show& show) {
  const bool open = show.state.GameLoaded && show.state.GameStarted;
  const BoxAnswer over =
      open ? show.platform.dialogs.Ask({"Is the show over? A game that is kept comes back with the next start.",
                                        BoxKind::YesNo, BoxAnswer::No, "End the Show", "Keep the Game"},
                                       kAppTitle)
           : BoxAnswer::Yes;
  if (over == BoxAnswer::Yes) EndShow(show);
}

}  // namespace

bool Form_QueryUnload(Show& show) {
  Displays& displays = show.platform.displays;
  displays.SetTopMost(show.frmMain, true);
  const BoxAnswer answer = show.platform.dialogs.Ask(
      {"Are you sure you want to exit?", BoxKind::YesNoCancel, BoxAnswer::No, "Exit", "Stay"}, kAppTitle);
  if (answer == BoxAnswer::Yes) EndOrKeepShow(show);
  displays.SetTopMost(show.frmMain, false);
  return answer == BoxAnswer::Yes;
}

void EndWithoutAsking(Show& show) {
  // Before the console is up there is nothing to save yet, and its controls hold no settings.
  show.frmMain.Visible ? show.frmMain.Unload() : show.platform.processes.EndProgram();
}

void SaveSettingsAtDeath(Show& show) {
  if (!show.frmMain.Visible) return;
  show.platform.records.Flush();
  for (const auto save : {SaveAllSettings, SaveInterfaceFile}) {
    try {
      save(show);
    } catch (const RuntimeError&) {
      // There is nobody left to read it.
      continue;
    }
  }
}

void fileExit(Show& show) {
  MainForm& form = show.frmMain;
  TakeSnapshot(show);
  SendKeyPress(show, false);
  FlushSharedKey(show);
  for (Timer* timer :
       {&form.tmr5QuestionTimer, &form.tmrAnswer, &form.tmrArrowsTimer, &form.tmrAutoContinue, &form.tmrBGMusic,
        &form.tmrBonus, &form.tmrExternalCtrlFlasher, &form.tmrFlipPlayerPiece, &form.tmrMainTimer, &form.tmrNonBuzzer,
        &form.tmrOptionalHeaders, &form.tmrRotate, &form.tmrWinner}) {
    timer->Enabled = false;
  }
  // Settings that can't be saved are reported, and the program ends all the same.
  RunGuarded(
      show.platform.dialogs, [&] { SaveAllSettings(show); }, "frmMain", "fileExit");
  ReportExit(show);
  RunGuarded(
      show.platform.dialogs, [&] { SaveInterfaceFile(show); }, "frmMain", "fileExit");
  show.platform.records.Flush();
  show.dgTransceiver.reset();
  RunGuarded(
      show.platform.dialogs, [&] { UnloadAudienceScreen(show); }, "frmFSMain", "Form_Unload");
  show.platform.serial.Close();
  EndPages(show);
  for (Form* other : AllForms(show)) other->Visible = false;
  show.platform.processes.EndProgram();
}

}  // namespace pawnfield
