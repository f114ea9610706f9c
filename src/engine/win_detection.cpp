#include "engine/win_detection.h"

#include <cmath>
#include <utility>
#include <vector>

#include "engine/lines.h"
#include "engine/options.h"
#include "engine/question_cycle.h"
#include "engine/set_choice.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/background_music.h"
#include "media/sound_channels.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "presentation/final_result.h"
#include "presentation/text_fitting.h"
#include "sets/set_file.h"
#include "show/show.h"

namespace pawnfield {

namespace {

std::string FinalText(Show& show) {
  std::vector<Standing> standings;
  for (int player = 1; player <= show.state.Players; ++player) {
    const Label& name = show.frmMain.lblPlayer1[PlayerIndex(player)];
    standings.push_back({std::llround(ScoreOf(show, player)), name.Caption});
  }
  return WinnerText(std::move(standings));
}

}  // namespace

bool IsGameOver(const Show& show, LineMade lineMade) {
  if (show.state.GameEnds) return lineMade == LineMade::Yes;
  return IsBoardFull(show.state.Board, show.state.GridSize);
}

void EndGame(Show& show) {
  MainForm& form = show.frmMain;
  EndMusic(show);
  EndQuestionClip(show);
  show.state.GameInProgress = false;
  show.state.GameLoaded = false;
  show.state.GameStarted = false;
  show.state.PlacementOpen = false;
  // Nothing of the game comes after its end: no next question, no notice, no bonus.
  for (Timer* timer : {&form.tmrAutoContinue, &form.tmr5QuestionTimer, &form.tmrBonus}) timer->Enabled = false;
  HidePanel(show, Panel::Bonus);
  form.btnEndGame.Enabled = false;
  form.btnReset.Enabled = false;
  CloseQuestion(show);
  SetCursorOnBoth(show, 0);
  form.btnContinue.Enabled = false;
  form.btnNextPlayer.Enabled = false;
  form.btnSkipQuestion.Enabled = false;
  show.WinnerDue = true;
}

void ShowWinner(Show& show) {
  MainForm& form = show.frmMain;
  show.WinnerDue = false;
  const std::string text = FinalText(show);
  SetWinner(show, text, form.lblWinner);
  if (show.state.DualScreen) SetWinner(show, text, show.frmFSMain.lblWinner);
  ShowResult(show);
  ShowPanel(show, Panel::Winner);
  if (show.state.Animation) BlinkAnew(show, 1);
  form.tmrWinner.Restart();
}

void GameOver(Show& show) {
  EndGame(show);
  ShowWinner(show);
}

void BlinkAnew(Show& show, std::size_t index) {
  show.AnimateCount[index] = 0;
  (index == 1 ? show.frmMain.lblWinner : show.frmMain.lblRightWrong).Visible = true;
  show.frmMain.tmrAnimate[index].Restart();
}

void EndWinner(Show& show) {
  if (show.WinnerDue || show.frmMain.tmrWinner.Enabled) tmrWinner_Timer(show);
}

void tmrWinner_Timer(Show& show) {
  MainForm& form = show.frmMain;
  // Before the scores and names go. The operator may still have to say it.
  KeepLastResult(show);
  // Before the winner goes, so that the room sees no board between.
  ShowPanel(show, Panel::Standby);
  HidePanel(show, Panel::Winner);
  ResetGameBoard(show);
  ResetGameSet(show);
  form.tmrWinner.Enabled = false;
  // What a line win's last flash started must not reach into standby: no next question, no verdict, options free.
  StopShowing(show);
  EnableOptions(show);
}

void tmrAnimate_Timer(Show& show, int index) {
  constexpr int kLastTick = 6;
  const bool winner = index == 1;
  Label& label = winner ? show.frmMain.lblWinner : show.frmMain.lblRightWrong;
  int& count = show.AnimateCount[static_cast<std::size_t>(index)];
  ++count;
  label.Visible = !label.Visible;
  if (count > kLastTick) {
    count = 0;
    show.frmMain.tmrAnimate[static_cast<std::size_t>(index)].Enabled = false;
    label.Visible = true;
  }
}

}  // namespace pawnfield
