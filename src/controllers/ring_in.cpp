#include "controllers/ring_in.h"

#include "controllers/press_trial.h"
#include "devices/transceiver.h"
#include "engine/answer_clock.h"
#include "engine/question_cycle.h"
#include "engine/turn_order.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "outward/shared_key.h"
#include "platform/errors.h"
#include "presentation/both_screens.h"
#include "record/ring_in_order.h"
#include "show/note.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::int64_t kDebounceMs = 200;

// Takes the press's time into the remote's debounce memory; false for a press that follows another too soon.
bool PassesDebounce(PressState& presses, std::size_t remote, std::int64_t now) {
  if (remote >= presses.LastPressTick.size()) throw SubscriptError();
  std::int64_t& last = presses.LastPressTick[remote];
  if (last > 0 && now - last <= kDebounceMs) return false;
  last = now;
  return true;
}

void PlayRingIn(Show& show, int player) { PlayEvent(show, SoundEntry(show, kSoundBuzzer1 + player - 1)); }

int PlayerOfRemote(const Show& show, std::size_t remote) {
  return remote < show.state.Routing.size() ? show.state.Routing[remote] : 0;
}

void TakePress(Show& show, std::size_t remote) {
  const int player = PlayerOfRemote(show, remote);
  const std::int64_t arrivedUs = show.platform.hid.ArrivedUs();
  if (TakesForTrial(show, PressOf(show, player, PressWay::Remote, arrivedUs), static_cast<int>(remote))) return;
  if (!PassesDebounce(show.presses, remote, show.platform.clock.NowMs())) return;
  if (!ConsoleListens(show)) return;
  const bool open = MayRingIn(show);
  if (remote >= show.state.Routing.size() && open) throw SubscriptError();
  if (!IsPlayer(player)) return;
  AddPress(show, PressOf(show, player, PressWay::Remote, arrivedUs));
  if (!open || !AcceptRingIn(show, player)) return;
  // The clip starts a second time, as players of wireless remotes know it.
  PlayRingIn(show, player);
  if (show.dgTransceiver) show.dgTransceiver->LED_Set(static_cast<int>(remote), kLampColor);
}

}  // namespace

void dgTransceiver_OnButtonPressed(Show& show, const TransceiverData& data) {
  try {
    TakePress(show, static_cast<std::size_t>(data.Remote));
  } catch (const RuntimeError& error) {
    if (error.Number() != kErrorSubscript) throw;
    // The operator learns once of a remote that the show has no place for; its other presses are passed over.
    if (!show.presses.ReportedRemotes.insert(data.Remote).second) return;
    throw RuntimeError(error.Number(), std::string(error.what()) + " (remote " + std::to_string(data.Remote) + ")");
  }
}

bool ConsoleListens(const Show& show) {
  const MainForm& form = show.frmMain;
  return form.Visible && form.Enabled && show.platform.dialogs.Modal() == ModalKind::None;
}

bool MayRingIn(const Show& show) { return IsPhase(show, PhaseKind::QuestionOpen) && !ScreenCovered(show); }

bool RefuseWhoDoesNotPlay(Show& show, int player) {
  if (Plays(show.state, player)) return false;
  const bool named = player > 0 && player < 10 && show.presses.ReportedPlayers.insert(player).second;
  if (named) {
    show.frmMain.lblStatusBar.Caption = "Player " + std::to_string(player) + " isn't in this game of " +
                                        std::to_string(show.state.Players) + " players.";
  }
  return true;
}

bool AcceptRingIn(Show& show, int player) {
  if (RefuseWhoDoesNotPlay(show, player)) return false;
  // Who is given the question by hand has pressed no button of his own.
  AddPress(show, PressOf(show, player, PressWay::Hand));
  Note(show, EventKind::RingIn, player);
  MainForm& form = show.frmMain;
  SendKeyPressInRingIn(show, false);
  SetBuzzerStates(show, false);
  show.state.CurrentPlayer = player;
  // Outside Trivia C the turn goes on from the player who took it.
  if (!show.state.Nature().RingIn) GiveTurnTo(show, player);
  ShowRingIn(show, player);
  PlayRingIn(show, player);
  form.btnCorrect.Enabled = true;
  ShowVerdictButtons(show, true, true);
  StartAnswerClock(show);
  const bool cover = show.state.Nature().RingIn && show.state.HideQuestion && show.state.DualScreen;
  if (!cover) return true;
  show.frmFSMain.lblPlayerName.Caption = form.lblPlayer1[PlayerIndex(player)].Caption;
  show.frmFSMain.picHideQuestion.Visible = true;
  return true;
}

void btnSelectPlayer_Click(Show& show, int index) {
  // In Trivia C the operator may give the question that a player holds to another one.
  const bool given = show.state.Nature().RingIn && QuestionIsUp(show);
  if (given || IsPhase(show, PhaseKind::QuestionOpen)) AcceptRingIn(show, index + 1);
}

}  // namespace pawnfield
