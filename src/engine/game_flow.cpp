#include "engine/game_flow.h"

#include <array>

#include "engine/options.h"
#include "engine/question_cycle.h"
#include "engine/set_choice.h"
#include "engine/turn_order.h"
#include "engine/win_detection.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/player_names_form.h"
#include "forms/small_forms.h"
#include "media/background_music.h"
#include "outward/companion.h"
#include "outward/shared_key.h"
#include "platform/text.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "sets/set_file.h"
#include "show/settings.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// The lamps chase only where the pads' lamps are the program's to drive.
void StartChaseLight(Show& show) {
  if (DrivesLamps(show.state.SerialComm)) show.frmMain.tmrRotate.Enabled = true;
}

void StopPlayTimers(Show& show) {
  show.frmMain.tmrMainTimer.Enabled = false;
  show.frmMain.tmrNonBuzzer.Enabled = false;
}

void StartNewGame(Show& show) {
  show.state.GameType = SelectedType(show).Mode;
  StartChaseLight(show);
  StopPlayTimers(show);
  btnReset_Click(show);
}

void AskGameInProgress(Show& show) {
  GameInProgressForm& form = show.frmGameInProgress;
  bool startNew = false;
  form.btnReset.OnClick = [&] {
    startNew = true;
    form.Unload();
  };
  form.btnCancel.OnClick = [&] { form.Unload(); };
  show.platform.dialogs.ShowModal(form);
  form.btnReset.OnClick = nullptr;
  form.btnCancel.OnClick = nullptr;
  if (startNew) {
    StartNewGame(show);
  } else {
    show.frmMain.optGameType[RowOf(show.state.GameType)].SelectInGroup();
  }
}

void SetListForType(ComboBox& list, const GameNature& type) {
  if (!type.Trivia) {
    if (list.Enabled && list.Visible) list.ListIndex = 0;
    list.Enabled = false;
  } else if (type.RingIn) {
    if (list.ListIndex == 0) list.Enabled = true;
    if (list.Visible) list.ListIndex = 0;
  } else {
    list.Enabled = true;
    if (list.Visible) list.ListIndex = 0;
  }
}

void StartChallenge(Show& show) {
  GiveTurnTo(show, 1);
  SetCursorOnBoth(show, 1);
  ReportFirstTurn(show);
  show.state.GameLoaded = true;
  show.state.PlacementOpen = true;
}

void WarnOfShortSet(Show& show) {
  const int squares = show.state.GridSize * show.state.GridSize;
  if (show.NumGameQuestions >= squares) return;
  show.frmMain.lblStatusBar.Caption = std::to_string(show.NumGameQuestions) + " questions for " +
                                      std::to_string(squares) + " squares: this set ends before the board is full.";
}

void StartTrivia(Show& show) {
  GameState& state = show.state;
  MainForm& form = show.frmMain;
  if (!state.GameLoaded) {
    state.PlacementOpen = false;
    return;
  }
  WarnOfShortSet(show);
  state.CurrentQuestion = 0;
  form.lblQuestion[0].Caption = Trim(show.GameSet[0].QuestionText);
  ShowQuestion(show, 0);
  form.btnContinue.Enabled = false;
  form.btnSkipQuestion.Enabled = true;
  state.PlacementOpen = true;
  form.cboList.ListIndex = 0;
  if (state.Nature().RingIn) {
    form.btnCorrect.Enabled = false;
    ShowVerdictButtons(show, false, false);
    state.CurrentPlayer = 0;
  } else {
    GiveTurnTo(show, 1);
    ReportFirstTurn(show);
  }
}

// The cursor that fits the moment at which the board comes back from standby.
int CursorAfterStandby(const Show& show) {
  const MainForm& form = show.frmMain;
  if (!show.state.Nature().Trivia) return show.state.CurrentPlayer;
  const bool between = form.btnStart.Visible && !show.state.PlacementOpen && form.btnContinue.Enabled;
  return between || form.btnStart.Enabled ? 0 : show.state.CurrentPlayer;
}

}  // namespace

void optGameType_Click(Show& show, int index) {
  MainForm& form = show.frmMain;
  const GameMode chosen = kGameTypes.at(static_cast<std::size_t>(index)).Mode;
  if (!show.state.GameInProgress) {
    EndWinner(show);
    show.state.GameType = chosen;
    btnReset_Click(show);
    // With nothing loaded the reset does nothing; the new type's options are offered all the same.
    ShowOptionsOfType(show);
  } else if (chosen != show.state.GameType) {
    AskGameInProgress(show);
  }
  // The answer decides which type the controls follow, not the click.
  const GameNature& type = show.state.Nature();
  SetListForType(form.cboList, type);
  form.lblSelectPlayer.Visible = type.RingIn;
  form.btnNextPlayer.Visible = type.Offer.NextPlayer;
  // The pointers blink for the choice of a game, and the grid is free as long as they do.
  if (!show.state.GameInProgress) form.tmrArrowsTimer.Enabled = true;
}

void ApplyPlayerLayout(Show& show, int players) {
  MainForm& form = show.frmMain;
  const bool three = players == 3;
  show.frmPlayerNames.txtPlayerName[2].Visible = three;
  show.frmPlayerNames.PenaltyBox(3).Visible = three;
  form.PlayerBox(3).Visible = three;
  form.ScoreCopy(3).Visible = three;
  form.ScoreBox(3).Visible = three;
  for (std::size_t i = 0; i < 6; ++i) {
    form.ScoreUp(3)[i].Visible = three;
    form.ScoreDown(3)[i].Visible = three;
  }
}

void optPlayers_Click(Show& show, int index) {
  show.state.Players = index + 2;
  ApplyPlayerLayout(show, show.state.Players);
  const bool focusVanished = index == 0 && !show.frmMain.MouseIcon->empty() &&
                             show.frmMain.MouseIcon == show.frmMain.imgCursor[3].Picture.Get();
  if (focusVanished) btnNextPlayer_Click(show);
}

void optGridControl_Click(Show& show, int index) {
  GameState& state = show.state;
  HidePanel(show, Panel::Winner);
  fileClearAllScores_Click(show);
  state.GridSize = index + 3;
  for (int player = 1; player <= kPlayers; ++player) state.Lamp[player] = player == kPlayers ? kLampOn : kLampOff;
  state.CurrentPlayer = kPlayers;
  AdvanceToNextPlayer(show);
  BuildGrid(show, state.GridSize);
  state.LastSquareKey.clear();
  state.LastPlayer = 0;
  state.LastPoints = 0;
}

void cboAutoContinue_Click(Show& show) {
  const int index = show.frmMain.cboAutoContinue.ListIndex;
  if (index >= 0 && index <= 3) show.state.AutoContinue = index + 3;
}

void cboTimedResponse_Click(Show& show) {
  constexpr std::array<int, 5> kSeconds{0, 3, 5, 7, 10};
  const int index = show.frmMain.cboTimedResponse.ListIndex;
  if (index >= 0 && index <= 4) show.state.TimedResponse = kSeconds[static_cast<std::size_t>(index)];
}

void cbxScore_Click(Show& show, int index) {
  const int listIndex = show.frmMain.cbxScore[static_cast<std::size_t>(index)].ListIndex;
  SaveSetting(show, index == 0 ? "Scoring" : "Bonus", std::to_string(listIndex));
}

void btnStart_Click(Show& show) {
  MainForm& form = show.frmMain;
  const bool ringIn = show.state.Nature().RingIn;
  SendKeyPressInRingIn(show, true);
  form.tmrWinner.Enabled = false;
  HidePanel(show, Panel::Winner);
  BringMusicBack(show);
  form.shpStart.Visible = false;
  form.tmrArrowsTimer.Enabled = false;
  form.lblListLeftArrow.Visible = false;
  form.lblListRightArrow.Visible = false;
  form.tmrRotate.Enabled = false;
  if (show.state.Nature().Trivia) {
    StartTrivia(show);
  } else {
    StartChallenge(show);
  }
  if (!ringIn) {
    form.tmrMainTimer.Enabled = false;
  } else {
    form.tmrNonBuzzer.Enabled = false;
    if (show.state.SerialComm != InterfaceCode::Keypads) form.tmrMainTimer.Enabled = true;
  }
  if (PanelVisible(show, Panel::Standby)) HidePanel(show, Panel::Standby);
  form.btnStandbyMode.Enabled = true;
  form.btnPlayMode.Enabled = false;
  form.btnNextPlayer.Enabled = true;
  form.btnStart.Enabled = false;
  form.fraGridControl.Enabled = false;
}

void btnPlayMode_Click(Show& show) {
  MainForm& form = show.frmMain;
  const bool ringIn = show.state.Nature().RingIn;
  form.tmrRotate.Enabled = false;
  form.tmrMainTimer.Enabled = ringIn;
  form.tmrNonBuzzer.Enabled = !ringIn;
  HidePanel(show, Panel::Standby);
  SetConsoleCursor(show, CursorAfterStandby(show));
  LightScoreBox(show, show.state.CurrentPlayer);
  form.btnStandbyMode.Enabled = true;
  form.btnPlayMode.Enabled = false;
}

void btnStandbyMode_Click(Show& show) {
  StopPlayTimers(show);
  StartChaseLight(show);
  ShowPanel(show, Panel::Standby);
  SetConsoleCursor(show, 0);
  LightScoreBox(show, 0);
  show.frmMain.btnPlayMode.Enabled = true;
  show.frmMain.btnStandbyMode.Enabled = false;
}

void btnReset_Click(Show& show) {
  if (!show.state.GameLoaded) return;
  ResetGameBoard(show);
  ResetGameSet(show);
  LightScoreBox(show, 0);
  StopShowing(show);
  EnableOptions(show);
  StopPlayTimers(show);
  StartChaseLight(show);
}

void btnEndGame_Click(Show& show) {
  if (!PanelVisible(show, Panel::Standby)) GameOver(show);
}

void fileClearAllScores_Click(Show& show) {
  ForgetClaimedSquare(show);
  ResetScores(show);
  ClearBoardPictures(show);
  ClearBoardArray(show);
  GiveTurnTo(show, 1);
  ReportFirstTurn(show);
  PublishScore(show, "10", 1);
  PublishScore(show, "11", 2);
  // The external keyboard program takes a cleared score of player 3 from a name of its own.
  PublishScore(show, "13", 3);
}

void PlaceAudienceScreen(Show& show) { show.frmFSMain.Left = show.state.FullScreenGameBoard ? 0 : show.state.FSLeft; }

}  // namespace pawnfield
