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
#include "show/note.h"
#include "show/phase.h"
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

// A verdict belongs to a player. While nobody has the turn everything stays as it is.
bool MayJudge(Show& show) {
  if (IsPhase(show, PhaseKind::QuestionOpen)) SayNobodyHasTurn(show);
  return IsPhase(show, PhaseKind::Answering);
}

// While a piece flashes, a bonus or the notice stands, there is no question to skip, and what comes next has its time.
bool MaySkip(const Show& show) {
  const PhaseKind kind = Phase(show).Kind;
  return show.state.Nature().Trivia && (QuestionIsUp(show) || kind == PhaseKind::Claiming || kind == PhaseKind::Pause);
}

void TakePenalty(Show& show) {
  constexpr double kPenalty = 100;
  const int player = show.state.CurrentPlayer;
  if (!show.state.IncorrectPenalty || !IsPlayer(player)) return;
  SetScore(show, player, NumberText(ScoreOf(show, player) - kPenalty));
}

}  // namespace

void HandleCorrect(Show& show) {
  if (!MayJudge(show)) return;
  show.lastVerdict = {show.lastVerdict.Count + 1, show.state.CurrentPlayer, true};
  Note(show, EventKind::Correct, show.state.CurrentPlayer);
  MainForm& form = show.frmMain;
  EndQuestionClip(show);
  RestartBackground(show);
  if (show.state.Nature().RingIn) form.tmrExternalCtrlFlasher.Enabled = false;
  // A picture goes too: the board under it is where the hand goes next.
  CloseQuestion(show);
  AnnounceVerdict(show, kCorrectVerdict);
  show.state.PlacementOpen = true;
  ChangeCursor(show);
  form.txtDJCommand.Enabled = true;
  if (show.state.Nature().RingIn) ReportVerdict(show, show.state.CurrentPlayer, true);
  EnableOptions(show);
  form.txtDJCommand.SetFocus();
}

void HandleIncorrect(Show& show) {
  if (!MayJudge(show)) return;
  show.lastVerdict = {show.lastVerdict.Count + 1, show.state.CurrentPlayer, false};
  Note(show, EventKind::Incorrect, show.state.CurrentPlayer);
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
    ReportVerdict(show, show.state.CurrentPlayer, false);
    TakeTurn(show);
    ReopenQuestion(show);
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
  if (!accepted) return;
  Note(show, EventKind::Score, player);
  SetScore(show, player, NumberText(score));
}

void btnSkipQuestion_Click(Show& show) {
  if (!MaySkip(show)) return;
  Note(show, EventKind::Skip);
  MainForm& form = show.frmMain;
  EndQuestionClip(show);
  PlayEvent(show, show.AppPath("\\Sound Effects\\Skip.Wav"));
  if (show.state.Nature().RingIn) form.tmrExternalCtrlFlasher.Enabled = false;
  CloseQuestion(show);
  StartAutoContinue(show);
  ReportPlayers(show, kWhite);
  if (show.state.Nature().AfterSkip == NextTurn::Nobodys) TakeTurn(show);
  EnableOptions(show);
}

}  // namespace pawnfield
