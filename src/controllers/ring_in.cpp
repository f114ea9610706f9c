#include "controllers/ring_in.h"

#include "engine/question_cycle.h"
#include "engine/show.h"
#include "engine/turn_order.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "presentation/both_screens.h"

namespace pawnfield {

void AcceptRingIn(Show& show, int player, [[maybe_unused]] RingInSource source) {
  MainForm& form = show.frmMain;
  const bool isPlayer = player >= 1 && player <= 3;
  SetBuzzerStates(show, false, false, false);
  show.state.CurrentPlayer = player;
  LightScoreBox(show, isPlayer ? player : 0);
  if (isPlayer) PlayEvent(show, SoundEntry(show, kSoundBuzzer1 + player - 1));
  form.btnCorrect.Enabled = true;
  ShowVerdictButtons(show, true, true);
  const bool cover = show.state.GameType == kTriviaModeC && show.state.HideQuestion && show.state.DualScreen;
  if (!cover) return;
  if (isPlayer) {
    show.frmFSMain.lblPlayerName.Caption = form.lblPlayer1[static_cast<std::size_t>(player - 1)].Caption;
  }
  show.frmFSMain.picHideQuestion.Visible = true;
}

void btnSelectPlayer_Click(Show& show, int index) {
  if (index >= 0 && index <= 2) show.frmMain.imgDJEntry.Picture = show.frmMain.FaceA(index + 1).Picture;
  const bool open = PanelVisible(show, Panel::Question) || PanelVisible(show, Panel::QuestionPicture) ||
                    PanelVisible(show, Panel::Sound);
  if (show.state.GameType != kTriviaModeC || !open) return;
  AcceptRingIn(show, index + 1, RingInSource::Other);
  ShowVerdictButtons(show, true, true);
}

}  // namespace pawnfield
