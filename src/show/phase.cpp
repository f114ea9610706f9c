#include "show/phase.h"

#include "forms/main_form.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// What runs over the board, which a game that has just ended may still do.
PhaseKind RunningPhase(const MainForm& form) {
  if (form.tmrWinner.Enabled) return PhaseKind::Winner;
  if (form.tmrAnswer.Enabled) return PhaseKind::Flashing;
  if (form.tmrBonus.Enabled) return PhaseKind::Bonus;
  if (form.tmr5QuestionTimer.Enabled) return PhaseKind::Notice;
  return PhaseKind::Idle;
}

}  // namespace

GamePhase Phase(const Show& show) {
  const GameState& state = show.state;
  const PhaseKind running = RunningPhase(show.frmMain);
  if (running != PhaseKind::Idle) return {running, running == PhaseKind::Flashing ? state.FlipPlayer : 0};
  if (!state.GameLoaded) return {PhaseKind::Idle, 0};
  if (!state.GameStarted) return {PhaseKind::Ready, 0};
  const bool taken = IsPlayer(state.CurrentPlayer);
  if (state.QuestionUp)
    return taken ? GamePhase{PhaseKind::Answering, state.CurrentPlayer} : GamePhase{PhaseKind::QuestionOpen, 0};
  if (state.PlacementOpen && taken) return {PhaseKind::Claiming, state.CurrentPlayer};
  return {PhaseKind::Pause, 0};
}

bool IsPhase(const Show& show, PhaseKind kind) { return Phase(show).Kind == kind; }

bool QuestionIsUp(const Show& show) {
  return IsPhase(show, PhaseKind::QuestionOpen) || IsPhase(show, PhaseKind::Answering);
}

int HolderOfTurn(const Show& show) {
  if (!show.state.Nature().RingIn) return show.state.CurrentPlayer;
  const GamePhase phase = Phase(show);
  return phase.Kind == PhaseKind::Flashing ? 0 : phase.Player;
}

AnswerClock RunningAnswerClock(const Show& show) {
  const AnswerClock& clock = show.state.Clock;
  const GamePhase phase = Phase(show);
  return phase.Kind == PhaseKind::Answering && phase.Player == clock.Player ? clock : AnswerClock{};
}

bool ScreenCovered(const Show& show) { return show.frmMain.picStandby.Visible; }

}  // namespace pawnfield
