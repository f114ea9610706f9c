#include "engine/set_choice.h"

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
#include "sets/file_dialogs.h"
#include "sets/media_check.h"
#include "sets/missing_media.h"
#include "sets/set_file.h"
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
  LoadChosenSet(show);
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
