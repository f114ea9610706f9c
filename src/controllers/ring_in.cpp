#include "controllers/ring_in.h"

#include "devices/transceiver.h"
#include "engine/question_cycle.h"
#include "engine/turn_order.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "outward/shared_key.h"
#include "platform/errors.h"
#include "presentation/both_screens.h"
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

bool QuestionIsOpen(Show& show) {
  const MainForm& form = show.frmMain;
  const bool dialogUp = show.platform.dialogs.Modal() != ModalKind::None;
  if (!form.Visible || !form.Enabled || dialogUp || PanelVisible(show, Panel::Standby)) return false;
  return TextOrPictureVisible(show) && !IsPlayer(show.state.CurrentPlayer);
}

void PlayRingIn(Show& show, int player) { PlayEvent(show, SoundEntry(show, kSoundBuzzer1 + player - 1)); }

void TakePress(Show& show, std::size_t remote) {
  if (!PassesDebounce(show.presses, remote, show.platform.clock.NowMs()) || !QuestionIsOpen(show)) return;
  if (remote >= show.state.Routing.size()) throw SubscriptError();
  const int player = show.state.Routing[remote];
  if (!IsPlayer(player)) return;
  AcceptRingIn(show, player, RingInSource::Wireless);
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
    if (!show.presses.ToldRemotes.insert(data.Remote).second) return;
    throw RuntimeError(error.Number(), std::string(error.what()) + " (remote " + std::to_string(data.Remote) + ")");
  }
}

void AcceptRingIn(Show& show, int player, [[maybe_unused]] RingInSource source) {
  MainForm& form = show.frmMain;
  const bool isPlayer = IsPlayer(player);
  SendKeyPressInRingIn(show, false);
  SetBuzzerStates(show, false);
  show.state.CurrentPlayer = player;
  LightScoreBox(show, isPlayer ? player : 0);
  if (isPlayer) PlayRingIn(show, player);
  form.btnCorrect.Enabled = true;
  ShowVerdictButtons(show, true, true);
  const bool cover = show.state.Nature().RingIn && show.state.HideQuestion && show.state.DualScreen;
  if (!cover) return;
  if (isPlayer) {
    show.frmFSMain.lblPlayerName.Caption = form.lblPlayer1[PlayerIndex(player)].Caption;
  }
  show.frmFSMain.picHideQuestion.Visible = true;
}

void btnSelectPlayer_Click(Show& show, int index) {
  if (IsPlayer(index + 1)) show.frmMain.imgDJEntry.Picture = show.frmMain.FaceA(index + 1).Picture;
  if (!show.state.Nature().RingIn || !QuestionVisible(show)) return;
  AcceptRingIn(show, index + 1, RingInSource::Other);
  ShowVerdictButtons(show, true, true);
}

}  // namespace pawnfield
