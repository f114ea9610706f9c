#include "engine/set_choice.h"

#include <optional>
#include <utility>

#include "engine/game_flow.h"
#include "engine/options.h"
#include "engine/question_cycle.h"
#include "engine/turn_order.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/background_music.h"
#include "media/sound_channels.h"
#include "outward/companion.h"
#include "outward/shared_key.h"
#include "platform/text.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "sets/editor.h"
#include "sets/editor_import.h"
#include "sets/file_dialogs.h"
#include "sets/media_check.h"
#include "sets/missing_media.h"
#include "sets/set_bundles.h"
#include "sets/set_file.h"
#include "sets/sheet_names.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr const char* kFirstListItem = "Select Game Set";

void ClearForNewSet(Show& show) {
  StopShowing(show);
  LightScoreBox(show, 0);
  ResetGameBoard(show);
}

void ReadySet(Show& show) {
  MainForm& form = show.frmMain;
  GameState& state = show.state;
  form.tmrWinner.Enabled = false;
  form.tmrAutoContinue.Enabled = false;
  // With its timer goes the winner, which would cover the board of the next game.
  HidePanel(show, Panel::Winner);
  state.GameLoaded = true;
  state.GameInProgress = false;
  form.btnStart.Enabled = true;
  form.btnCorrect.Enabled = false;
  SetBuzzerStates(show, false);
  form.picStandby.Visible = false;
  GiveFirstTurn(show);
  SetConsoleCursor(show, 0);
  state.CurrentQuestion = 0;
  if (state.DualScreen) PlaceAudienceScreen(show);
  ScanSetForMissingMedia(show);
  EnableOptions(show);
  StartMusic(show);
  ReportPlayers(show, kWhite);
  HoldPicture(show, 1);
}

// The external keyboard program knows the scores from the choice of a file on.
void PublishScores(Show& show) {
  PublishScore(show, "10", 1);
  PublishScore(show, "11", 2);
  PublishScore(show, "12", 3);
}

void ShowReadyBoard(Show& show) {
  MainForm& form = show.frmMain;
  form.btnPlayMode.Enabled = false;
  form.btnStandbyMode.Enabled = true;
  CloseQuestion(show);
  form.btnContinue.Visible = true;
  form.btnStart.Visible = true;
}

// Loads the file that the console's dialog names, and makes the board ready for it.
void LoadChosenSet(Show& show) {
  const std::string path = show.consoleDialog.FileName;
  if (Trim(path).empty() || !LoadGameSet(show, path)) return;
  ClearForNewSet(show);
  ApplyPlayerLayout(show, show.state.Players);
  BuildFSGrid(show, show.state.GridSize);
  ReadySet(show);
  PublishScores(show);
  ShowReadyBoard(show);
  if (show.state.GameLoaded) CheckSetMedia(show);
}

// A set that came while a game is open waits in the list.
void OfferSet(Show& show, const std::string& path) {
  const std::string name = SetName(ExtractFileName(path));
  const bool open = show.state.GameLoaded && show.state.GameStarted;
  if (open || !show.state.Nature().Trivia) {
    show.frmMain.lblStatusBar.Caption =
        "\"" + name + "\" was not loaded: " + (open ? "a game is open." : "the game type plays without questions.");
    return;
  }
  if (show.platform.dialogs.Ask(
          {"Would you like to load the set \"" + name + "\"?", BoxKind::YesNo, BoxAnswer::No, "Load", "Don't Load"},
          kAppTitle) != BoxAnswer::Yes) {
    return;
  }
  show.consoleDialog.FileName = path;
  LoadChosenSet(show);
}

}  // namespace

void StopShowing(Show& show) {
  MainForm& form = show.frmMain;
  EndQuestionClip(show);
  for (Timer* timer : {&form.tmrAutoContinue, &form.tmr5QuestionTimer, &form.tmrBonus}) timer->Enabled = false;
  HidePanel(show, Panel::Bonus);
  CloseQuestion(show);
}

void btnSelectGame_Click(Show& show) {
  show.consoleDialog = {"", "Game Sets(*.txt)|*.txt", show.state.SetsFolder};
  ShowOpen(show, show.consoleDialog);
  LoadChosenSet(show);
}

void OpenSetAtStart(Show& show) {
  if (show.consoleDialog.FileName.empty()) return;
  if (!show.state.Nature().Trivia) {
    show.platform.dialogs.MessageBox("The set was not loaded: the game type that is selected plays without questions.",
                                     kAppTitle, BoxKind::Plain);
    return;
  }
  if (IsBundleName(show.consoleDialog.FileName)) {
    const auto set = OfferBundle(show, std::exchange(show.consoleDialog.FileName, ""));
    if (!set) return;
    show.consoleDialog.FileName = *set;
  }
  LoadChosenSet(show);
}

void OpenHandedOver(Show& show, const std::string& path) {
  const std::string name = ExtractFileName(path);
  // A question over a question would be lost behind it.
  if (show.platform.dialogs.Modal() != ModalKind::None || !show.frmMain.Visible) {
    show.frmMain.lblStatusBar.Caption = "Close the window that is open, then open \"" + name + "\" again.";
    return;
  }
  if (IsSheetName(path)) {
    show.EditCurrentSet = false;
    editor::ShowEditor(show, [&show, &path] { editor::ImportSheet(show, path); });
    return;
  }
  const auto set = IsBundleName(path) ? OfferBundle(show, path) : std::optional(path);
  if (set) OfferSet(show, *set);
}

void cboList_DropDown(Show& show) {
  show.frmMain.cboList.Clear();
  FillSetList(show);
}

void cboList_Click(Show& show) {
  const std::string name = show.frmMain.cboList.Text();
  if (name == kFirstListItem || name.empty()) return;
  if (!LoadGameSet(show, show.AppPath("\\Trivia Sets\\" + name + ".txt"))) return;
  // A repair must not go to the file that was loaded before.
  show.consoleDialog.FileName.clear();
  ClearForNewSet(show);
  ResetPlayerNames(show);
  ReadySet(show);
  ShowReadyBoard(show);
  CheckSetMedia(show);
}

}  // namespace pawnfield
