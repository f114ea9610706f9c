#include "engine/answer_clock.h"

#include "data/house_colors.h"
#include "forms/main_form.h"
#include "media/sound_channels.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

void ShowClock(Show& show) {
  const AnswerClock clock = RunningAnswerClock(show);
  Label& label = show.frmMain.lblAnswerClock;
  label.Visible = clock.Player != 0;
  if (clock.Player == 0) return;
  label.ForeColor = kPlayerColors[clock.Player];
  label.Caption = std::to_string(clock.SecondsLeft);
}

void OfferClock(Show& show) {
  const bool offered = show.state.TimedResponse != 0 && IsPhase(show, PhaseKind::Answering);
  show.frmMain.btnAnswerClock.Enabled = offered;
}

void EndTime(Show& show, int player) {
  show.frmMain.tmrAnswerClock.Enabled = false;
  PlayEvent(show, show.AppPath("\\Sound Effects\\TimeUp.Wav"));
  show.frmMain.lblStatusBar.Caption = "Time is up: " + show.frmMain.PlayerName(player);
}

}  // namespace

void StartAnswerClock(Show& show) {
  const GamePhase phase = Phase(show);
  OfferClock(show);
  if (show.state.TimedResponse == 0 || phase.Kind != PhaseKind::Answering) return;
  show.state.Clock = {phase.Player, show.state.TimedResponse};
  show.frmMain.tmrAnswerClock.Restart();
  ShowClock(show);
}

void UpdateAnswerClock(Show& show) {
  OfferClock(show);
  if (show.state.Clock.Player == 0 || RunningAnswerClock(show).Player != 0) return;
  show.state.Clock = {};
  show.frmMain.tmrAnswerClock.Enabled = false;
  ShowClock(show);
}

void btnAnswerClock_Click(Show& show) { StartAnswerClock(show); }

void tmrAnswerClock_Timer(Show& show) {
  const AnswerClock clock = RunningAnswerClock(show);
  if (clock.SecondsLeft == 0) return;
  --show.state.Clock.SecondsLeft;
  ShowClock(show);
  if (show.state.Clock.SecondsLeft == 0) EndTime(show, clock.Player);
}

}  // namespace pawnfield
