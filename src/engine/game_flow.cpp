#include "engine/game_flow.h"

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
#include "presentation/final_result.h"
#include "sets/set_file.h"
#include "show/note.h"
#include "show/phase.h"
#include "show/settings_table.h"
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
  show.state.GameStarted = true;
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
  state.GameStarted = true;
  state.CurrentQuestion = 0;
  form.lblQuestion[0].Caption = Trim(show.GameSet[0].QuestionText);
  ShowQuestion(show, 0);
  form.btnContinue.Enabled = false;
  form.btnSkipQuestion.Enabled = true;
  // The first square is claimed as every other, after a right answer.
  state.PlacementOpen = false;
  form.cboList.ListIndex = 0;
  if (state.Nature().RingIn) {
    form.btnCorrect.Enabled = false;
    ShowVerdictButtons(show, false, false);
  }
  GiveFirstTurn(show);
  if (!state.Nature().RingIn) ReportFirstTurn(show);
}

// The cursor that fits the moment at which the board comes back from standby.
int CursorAfterStandby(const Show& show) {
  if (!show.state.Nature().Trivia) return show.state.CurrentPlayer;
  const PhaseKind kind = Phase(show).Kind;
  const bool between = kind == PhaseKind::Pause && show.frmMain.btnContinue.Enabled;
  return between || kind == PhaseKind::Ready ? 0 : show.state.CurrentPlayer;
}

}  // namespace

void optGameType_Click(Show& show, int index) {
  MainForm& form = show.frmMain;
  const GameMode chosen = kGameTypes.at(static_cast<std::size_t>(index)).Mode;
  if (!show.state.GameInProgress) {
    EndWinner(show);
    Note(show, EventKind::Wipe);
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
  show.frmFSMain.PlacePlayers(players);
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

namespace {

// The player who leaves the game had the turn. His question opens to the others; his square stays free.
void LeaveRingIn(Show& show) {
  const PhaseKind kind = Phase(show).Kind;
  TakeTurn(show);
  show.frmMain.btnCorrect.Enabled = false;
  if (kind == PhaseKind::Answering) {
    ReopenQuestion(show);
    SendKeyPressInRingIn(show, true);
  } else if (kind == PhaseKind::Claiming) {
    show.state.PlacementOpen = false;
    StartAutoContinue(show);
  }
}

void LeaveTurn(Show& show) {
  if (show.state.Nature().RingIn) {
    LeaveRingIn(show);
  } else {
    btnNextPlayer_Click(show);
  }
}

}  // namespace

void optPlayers_Click(Show& show, int index) {
  Note(show, EventKind::Players);
  show.state.Players = index + 2;
  ApplyPlayerLayout(show, show.state.Players);
  show.presses.ReportedPlayers.clear();
  MainForm& form = show.frmMain;
  form.btnSelectPlayer[2].Enabled = index == 1 && form.btnSelectPlayer[1].Enabled;
  form.btnBuzzer[2].Enabled = index == 1 && form.btnBuzzer[1].Enabled;
  if (IsPlayer(show.state.CurrentPlayer) && !Plays(show.state, show.state.CurrentPlayer)) LeaveTurn(show);
}

void optGridControl_Click(Show& show, int index) {
  GameState& state = show.state;
  Note(show, EventKind::Grid);
  HidePanel(show, Panel::Winner);
  fileClearAllScores_Click(show);
  state.GridSize = index + 3;
  if (!state.Nature().RingIn) {
    for (int player = 1; player <= kPlayers; ++player) state.Lamp[player] = player == kPlayers ? kLampOn : kLampOff;
    AdvanceToNextPlayer(show);
  }
  BuildGrid(show, state.GridSize);
  state.LastSquareKey.clear();
}

void cboAutoContinue_Click(Show& show) {
  const int index = show.frmMain.cboAutoContinue.ListIndex;
  if (index >= 0 && kAutoContinues.Holds(index + kAutoContinues.Low))
    show.state.AutoContinue = index + kAutoContinues.Low;
}

void cboTimedResponse_Click(Show& show) {
  const auto index = static_cast<std::size_t>(show.frmMain.cboTimedResponse.ListIndex);
  if (index < kTimedResponses.size()) show.state.TimedResponse = kTimedResponses[index];
}

void cbxScore_Click(Show& show, int index) {
  (index == 0 ? show.state.Scoring : show.state.Bonus) =
      show.frmMain.cbxScore[static_cast<std::size_t>(index)].ListIndex;
}

void btnStart_Click(Show& show) {
  MainForm& form = show.frmMain;
  const bool ringIn = show.state.Nature().RingIn;
  Note(show, EventKind::Start);
  SendKeyPressInRingIn(show, true);
  form.tmrWinner.Enabled = false;
  HidePanel(show, Panel::Winner);
  DropLastResult(show);
  BringMusicBack(show);
  show.presses.ReportedPlayers.clear();
  show.state.LastPlayer = 0;
  show.state.LastPoints = 0;
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
  HidePanel(show, Panel::Standby);
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
  LightScoreBox(show, HolderOfTurn(show));
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
  if (ScreenCovered(show)) return;
  Note(show, EventKind::End);
  GameOver(show);
}

void fileClearAllScores_Click(Show& show) {
  Note(show, EventKind::ClearScores);
  ForgetClaimedSquare(show);
  ResetScores(show);
  ClearBoardPictures(show);
  ClearBoardArray(show);
  show.state.LastPlayer = 0;
  show.state.LastPoints = 0;
  // In Trivia C the turn is the ring-in's: who answers or claims keeps it, and nobody else gets it.
  if (!show.state.Nature().RingIn || HolderOfTurn(show) == 0) GiveFirstTurn(show);
  ReportFirstTurn(show);
  PublishScore(show, "10", 1);
  PublishScore(show, "11", 2);
  // The external keyboard program takes a cleared score of player 3 from a name of its own.
  PublishScore(show, "13", 3);
}

void PlaceAudienceScreen(Show& show) { show.frmFSMain.Left = show.state.FullScreenGameBoard ? 0 : show.state.FSLeft; }

}  // namespace pawnfield
