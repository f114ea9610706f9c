#include "engine/judging.h"

#include <array>

#include "engine/board_play.h"
#include "engine/options.h"
#include "engine/question_cycle.h"
#include "engine/turn_order.h"
#include "engine/win_detection.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "outward/companion.h"
#include "outward/shared_key.h"
#include "platform/text.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "show/show.h"

namespace pawnfield {

namespace {

struct Verdict {
  int SoundRow;
  const char* Sting;
  const char* Words;
  Color WordsColor;
  const char* Picture;
};

constexpr Verdict kCorrectVerdict{kSoundCorrect, "\\Sound Effects\\Correct4swf.mp3", "Correct!", kGreen,
                                  "\\Images\\Correct.jpg"};
constexpr Verdict kIncorrectVerdict{kSoundIncorrect, "\\Sound Effects\\Incorrect4swf.mp3", "Incorrect", kRed,
                                    "\\Images\\Incorrect.jpg"};

void ShowVerdictPicture(Show& show, const Verdict& verdict) {
  MainForm& form = show.frmMain;
  PlayCorrectIncorrect(show, show.AppPath(verdict.Sting));
  form.lblRightWrong.Caption = verdict.Words;
  form.lblRightWrong.ForeColor = verdict.WordsColor;
  form.imgCorrect.Picture = PicturePath(show, verdict.Picture);
  ShowPanel(show, Panel::Correct);
  BlinkAnew(show, 0);
  form.tmrCorrectSWF.Restart();
}

void AnnounceVerdict(Show& show, const Verdict& verdict) {
  if (!show.state.Animation) {
    PlayEvent(show, SoundEntry(show, verdict.SoundRow));
  } else if (show.state.Nature().Trivia) {
    ShowVerdictPicture(show, verdict);
  }
}

void LiftCover(Show& show) {
  if (show.state.DualScreen) show.frmFSMain.picHideQuestion.Visible = false;
}

void TakePenalty(Show& show) {
  constexpr double kPenalty = 100;
  const int player = show.state.CurrentPlayer;
  if (!show.state.IncorrectPenalty || !IsPlayer(player)) return;
  SetScore(show, player, NumberText(ScoreOf(show, player) - kPenalty));
}

// Gives the turn back after an undo in the types in which a claim passes it on.
void GiveTurnBack(Show& show, int lastPlayer) {
  if (show.state.Nature().AfterClaim != NextTurn::Passes) return;
  const int steps = show.state.Players == 2 && lastPlayer != 3 ? 1 : 2;
  for (int i = 0; i < steps; ++i) AdvanceToNextPlayer(show);
}

// An undo within the flash: the piece stops where it is, and what the flash's end would have offered is offered now.
void TakeBackFlash(Show& show) {
  if (!show.frmMain.tmrAnswer.Enabled) return;
  EndFlash(show);
  ForgetClaimedSquare(show);
  show.frmMain.btnReset.Enabled = true;
  show.frmMain.btnEndGame.Enabled = true;
}

void TakeBackClaim(Show& show) {
  GameState& state = show.state;
  const int player = state.LastPlayer;
  if (!IsPlayer(player)) return;
  int& owner = state.Board[static_cast<std::size_t>(state.LastRow)][static_cast<std::size_t>(state.LastCol)];
  if (owner != player) return;
  SetScore(show, player, NumberText(ScoreOf(show, player) - state.LastPoints));
  if (player == 2) PublishScore(show, "11", player);
  ReportPlayer(show, player, state.ScreenFonts[player].ForeColor);
  owner = 0;
  TakeBackFlash(show);
  RemovePiece(show, state.LastRow, state.LastCol);
  GiveTurnBack(show, player);
}

}  // namespace

void HandleCorrect(Show& show) {
  MainForm& form = show.frmMain;
  LiftCover(show);
  EndQuestionClip(show);
  RestartBackground(show);
  if (show.state.Nature().RingIn) form.tmrExternalCtrlFlasher.Enabled = false;
  form.picQuestion.Visible = false;
  form.picSound.Visible = false;
  ShowVerdictButtons(show, false, false);
  AnnounceVerdict(show, kCorrectVerdict);
  HidePanel(show, Panel::Question);
  HidePanel(show, Panel::Sound);
  // The picture goes too: the board under it is where the hand goes next.
  HidePanel(show, Panel::QuestionPicture);
  show.state.PlacementOpen = true;
  ChangeCursor(show);
  form.txtDJCommand.Enabled = true;
  if (show.state.Nature().RingIn) {
    LightScoreBox(show, 0);
    ReportVerdict(show, show.state.CurrentPlayer, true);
  }
  EnableOptions(show);
  form.txtDJCommand.SetFocus();
}

void HandleIncorrect(Show& show) {
  MainForm& form = show.frmMain;
  LiftCover(show);
  // The verdict is heard alone; the next player has the clip again by the console's button.
  EndQuestionClip(show);
  form.tmrExternalCtrlFlasher.Enabled = false;
  AnnounceVerdict(show, kIncorrectVerdict);
  if (!show.state.Animation) SendKeyPressInRingIn(show, true);
  TakePenalty(show);
  if (show.state.Nature().AfterIncorrect == NextTurn::Passes) {
    AdvanceToNextPlayer(show);
  } else {
    form.btnCorrect.Enabled = false;
    ShowVerdictButtons(show, false, false);
    LightScoreBox(show, 0);
    ReportVerdict(show, show.state.CurrentPlayer, false);
    show.state.CurrentPlayer = 0;
  }
  SetBuzzerStates(show, true);
  form.txtDJCommand.SetFocus();
}

void ChangeScore(Show& show, int player, ScoreChange change, int index) {
  constexpr std::array<double, 6> kAmounts{100000, 10000, 1000, 100, 10, 1};
  constexpr double kLimit = 999999;
  const double amount = kAmounts.at(static_cast<std::size_t>(index));
  const double score = ScoreOf(show, player) + (change == ScoreChange::Up ? amount : -amount);
  const bool accepted = change == ScoreChange::Up ? score < kLimit + 1 : score >= -kLimit;
  if (accepted) SetScore(show, player, NumberText(score));
}

void btnSkipQuestion_Click(Show& show) {
  MainForm& form = show.frmMain;
  EndQuestionClip(show);
  PlayEvent(show, show.AppPath("\\Sound Effects\\Skip.Wav"));
  if (show.state.Nature().RingIn) {
    LightScoreBox(show, 0);
    form.tmrExternalCtrlFlasher.Enabled = false;
  }
  // The cover belongs to the question; left up it would hide the next one from the room.
  LiftCover(show);
  HidePanel(show, Panel::Question);
  HidePanel(show, Panel::QuestionPicture);
  HidePanel(show, Panel::Sound);
  ShowVerdictButtons(show, false, false);
  if (show.state.Nature().Trivia) form.btnContinue.Enabled = true;
  StartAutoContinue(show);
  ReportPlayers(show, kWhite);
  if (show.state.Nature().AfterSkip == NextTurn::Nobodys) show.state.CurrentPlayer = 0;
  EnableOptions(show);
}

void btnUndo_Click(Show& show) {
  GameState& state = show.state;
  if (state.LastPoints <= 0) return;
  state.PlacementOpen = true;
  show.frmMain.btnUndo.Enabled = false;
  TakeBackClaim(show);
  state.LastPoints = 0;
  state.LastPlayer = 0;
  SetConsoleCursor(show, state.CurrentPlayer);
}

}  // namespace pawnfield
