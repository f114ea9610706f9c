#include "engine/question_cycle.h"

#include <algorithm>
#include <cmath>

#include "engine/options.h"
#include "engine/turn_order.h"
#include "engine/win_detection.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/question_pictures.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "outward/shared_key.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "presentation/audience_screen.h"
#include "presentation/both_screens.h"
#include "presentation/picture_question.h"
#include "presentation/text_fitting.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/note.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

bool IsBlank(const std::string& field) { return field.empty() || field == " "; }

// Both screens take the question's colour. False for one that is no number; the fit's white stays.
bool ColorQuestion(Show& show, const TriviaQuestion& question) {
  if (IsBlank(question.FontColor)) return true;
  const auto number = ParseNumber(question.FontColor);
  if (number) SetQuestionColor(show.frmMain.lblQuestion, static_cast<Color>(std::fmod(*number, 16777216.0)));
  return number.has_value();
}

void ColorQuestionOrReport(Show& show, const TriviaQuestion& question) {
  if (ColorQuestion(show, question)) return;
  ReportError(show.platform.dialogs, RuntimeError(kErrorTypeMismatch, "Type mismatch"), "frmMain", "ShowQuestion");
}

// Offers the verdict, opens the ring-in where players ring in, and locks the options.
void OpenQuestion(Show& show) {
  if (show.state.Nature().Trivia) ShowVerdictButtons(show, true, true);
  if (show.state.Nature().RingIn) SetBuzzerStates(show, true);
  DisableOptions(show);
}

void ShowPictureQuestion(Show& show) {
  ShowPic(show);
  OpenQuestion(show);
}

void ShowSoundQuestion(Show& show, const std::string& path) {
  ShowPanel(show, Panel::Sound);
  PlayQuestionClip(show, path);
  OpenQuestion(show);
}

void ShowTextQuestion(Show& show) {
  const TriviaQuestion& question = RecordAt(show.GameSet, show.state.CurrentQuestion + 1);
  const std::string text = Trim(question.QuestionText);
  show.frmMain.lblQuestion[0].Font = QuestionFont(question);
  if (show.state.DualScreen) show.frmFSMain.lblQuestion[0].Font = QuestionFont(question);
  SetQuestion(show, text, show.frmMain.lblQuestion);
  RandomQuestionBackground(show);
  ShowPanel(show, Panel::Question);
  if (show.state.DualScreen) SetQuestion(show, text, show.frmFSMain.lblQuestion);
  OpenQuestion(show);
  if (show.state.Nature().RingIn) show.frmMain.btnCorrect.Enabled = false;
  ColorQuestionOrReport(show, question);
}

// The text as it stood, without another draw of its background.
void WriteTextQuestion(Show& show, const TriviaQuestion& question, const std::string& text) {
  show.frmMain.lblQuestion[0].Font = QuestionFont(question);
  SetQuestion(show, text, show.frmMain.lblQuestion);
  ShowPanel(show, Panel::Question);
  if (show.state.DualScreen) {
    show.frmFSMain.lblQuestion[0].Font = QuestionFont(question);
    SetQuestion(show, text, show.frmFSMain.lblQuestion);
  }
  ColorQuestion(show, question);
}

void WriteNotice(Show& show, ControlArray<Label, 5>& labels) {
  constexpr double kAnySize = 28;
  labels[0].Font = {"Courier New", kAnySize, true, true};
  SetQuestion(show, "5 Questions Left!", labels);
}

// False when the set holds no further question; the board stays as it is.
bool Advance(Show& show) {
  show.frmMain.tmrAutoContinue.Enabled = false;
  // The next question replaces the notice, which must not take the question down when its own time is up.
  if (show.frmMain.tmr5QuestionTimer.Enabled) tmr5QuestionTimer_Timer(show);
  show.frmMain.btnContinue.Enabled = false;
  if (show.state.CurrentQuestion + 1 >= show.NumGameQuestions) {
    show.frmMain.lblStatusBar.Caption = "No questions left";
    return false;
  }
  Note(show, EventKind::Question);
  ++show.state.CurrentQuestion;
  const std::string text = Trim(RecordAt(show.GameSet, show.state.CurrentQuestion + 1).QuestionText);
  show.frmMain.lblQuestion[0].Caption = text;
  // What the last question left open ends with the next one: a placement that nobody took, a ring-in.
  show.state.PlacementOpen = false;
  if (show.state.Nature().RingIn) TakeTurn(show);
  ShowQuestion(show, show.state.CurrentQuestion);
  if (show.state.Nature().RingIn) ShowVerdictButtons(show, false, false);
  return true;
}

}  // namespace

void ShowVerdictButtons(Show& show, bool correct, bool incorrect) {
  show.frmMain.btnQuestionCorrect.Visible = correct;
  show.frmMain.btnQuestionIncorrect.Visible = incorrect;
}

void CloseQuestion(Show& show) {
  show.state.QuestionUp = false;
  for (const Panel panel : {Panel::Question, Panel::QuestionPicture, Panel::Sound}) HidePanel(show, panel);
  // The cover belongs to the question; left up it would hide the next one from the room.
  if (show.state.DualScreen) show.frmFSMain.picHideQuestion.Visible = false;
  ShowVerdictButtons(show, false, false);
}

void ReopenQuestion(Show& show) {
  if (show.state.DualScreen) show.frmFSMain.picHideQuestion.Visible = false;
  ShowVerdictButtons(show, false, false);
  SetBuzzerStates(show, true);
}

void ShowQuestion(Show& show, int index) {
  const TriviaQuestion& question = show.Asked = RecordAt(show.GameSet, index + 1);
  show.state.QuestionUp = true;
  const std::string text = Trim(question.QuestionText);
  SetQuestion(show, text, show.frmMain.lblQuestion);
  SetAnswer(show, Trim(question.AnswerText));
  PlayEvent(show, SoundEntry(show, kSoundQuestionReveal));
  switch (KindOfQuestion(text)) {
    case QuestionKind::Picture:
      ShowPictureQuestion(show);
      break;
    case QuestionKind::Sound:
      ShowSoundQuestion(show, text);
      break;
    case QuestionKind::Text:
      ShowTextQuestion(show);
      break;
  }
  SendKeyPressInRingIn(show, true);
  HoldPicture(show, index + 2);
}

void ShowQuestionAgain(Show& show) {
  const TriviaQuestion& question = show.Asked;
  const std::string text = Trim(question.QuestionText);
  show.state.QuestionUp = true;
  const QuestionKind kind = KindOfQuestion(text);
  if (kind == QuestionKind::Text) {
    WriteTextQuestion(show, question, text);
    return;
  }
  SetQuestion(show, text, show.frmMain.lblQuestion);
  kind == QuestionKind::Picture ? ShowPic(show) : ShowPanel(show, Panel::Sound);
}

void HoldPicture(Show& show, int number) {
  if (number < 1 || number > kSetCapacity) return;
  const std::string text = Trim(RecordAt(show.GameSet, number).QuestionText);
  if (KindOfQuestion(text) == QuestionKind::Picture) show.platform.pictures.Hold(text);
}

void CheckQuestionsLeft(Show& show) {
  constexpr int kNoticeAt = 6;
  if (show.NumGameQuestions - show.state.CurrentQuestion != kNoticeAt) return;
  RandomQuestionBackground(show);
  WriteNotice(show, show.frmMain.lblQuestion);
  if (show.state.DualScreen) WriteNotice(show, show.frmFSMain.lblQuestion);
  ShowPanel(show, Panel::Question);
  show.frmMain.btnContinue.Enabled = false;
  show.frmMain.btnNextPlayer.Enabled = false;
  show.frmMain.tmr5QuestionTimer.Restart();
  ShowVerdictButtons(show, false, false);
}

void ShowBonus(Show& show) {
  PlayEvent(show, SoundEntry(show, kSoundCongratulations));
  ShowPanel(show, Panel::Bonus);
  show.frmMain.tmrBonus.Restart();
}

void StartAutoContinue(Show& show) {
  MainForm& form = show.frmMain;
  if (show.state.AutoContinue == kUserAdvances) {
    form.btnContinue.Enabled = true;
    return;
  }
  form.tmrAutoContinue.Interval = show.state.AutoContinue * 1000;
  form.tmrAutoContinue.Restart();
  show.state.ContinueAtMs = show.platform.clock.NowMs() + form.tmrAutoContinue.Interval;
  form.btnContinue.Enabled = false;
}

void btnContinue_Click(Show& show) {
  const PhaseKind kind = Phase(show).Kind;
  const bool between = kind == PhaseKind::Pause || kind == PhaseKind::Claiming;
  if (show.state.Nature().Trivia && between) Advance(show);
}

void tmrAutoContinue_Timer(Show& show) {
  if (Advance(show)) SendKeyPressInRingIn(show, true);
}

void tmr5QuestionTimer_Timer(Show& show) {
  MainForm& form = show.frmMain;
  HidePanel(show, Panel::Question);
  // While the pause runs the timer continues, and not the operator too.
  form.btnContinue.Enabled = !form.tmrAutoContinue.Enabled;
  form.btnNextPlayer.Enabled = true;
  form.tmr5QuestionTimer.Enabled = false;
}

void tmrBonus_Timer(Show& show) {
  MainForm& form = show.frmMain;
  const bool trivia = show.state.Nature().Trivia;
  HidePanel(show, Panel::Bonus);
  form.tmrBonus.Enabled = false;
  if (show.WinnerDue) {
    ShowWinner(show);
    return;
  }
  if (trivia) form.btnContinue.Enabled = true;
  form.btnNextPlayer.Enabled = true;
  if (show.state.GameEnds) {
    Note(show, EventKind::End);
    GameOver(show);
    return;
  }
  if (!trivia) {
    show.state.PlacementOpen = true;
    return;
  }
  if (show.state.AutoContinue != kUserAdvances) StartAutoContinue(show);
  CheckQuestionsLeft(show);
}

void tmrCorrectSWF_Timer(Show& show) {
  HidePanel(show, Panel::Correct);
  show.frmMain.tmrCorrectSWF.Enabled = false;
}

void tmrArrowsTimer_Timer(Show& show) {
  MainForm& form = show.frmMain;
  const bool setMissing = show.state.Nature().Trivia && !show.state.GameLoaded;
  const bool pointers = setMissing && !form.lblListRightArrow.Visible;
  form.lblListRightArrow.Visible = pointers;
  form.lblListLeftArrow.Visible = pointers;
  form.shpStart.Visible = !setMissing && !form.shpStart.Visible;
}

void tmrGridEnable_Timer(Show& show) {
  MainForm& form = show.frmMain;
  const bool running = show.state.GameInProgress;
  form.fraGridControl.Enabled = !running && (form.tmrArrowsTimer.Enabled || form.btnStart.Enabled);
  KeepAwakeWhileShowing(show);
}

void tmrRotate_Timer(Show& show) {
  GameState& state = show.state;
  const int on = state.MicsOnWithBuzzer ? int{'2'} : int{'3'};
  const int off = state.MicsOnWithBuzzer ? int{'0'} : int{'1'};
  auto lit = std::find(state.Lamp.begin(), state.Lamp.end(), on);
  if (lit == state.Lamp.end()) *(lit = state.Lamp.begin()) = on;
  if (++state.RotateCount <= 11 - state.LedSpeed) return;
  // The scores go round as codes with the light: from player 1 to 2 each has the own one.
  const int last = static_cast<int>(lit - state.Lamp.begin()) + 1;
  for (int player = 1; player <= kPlayers; ++player) {
    const int source = (player - last + kPlayers) % kPlayers + 1;
    state.LampCode[player] = show.frmMain.Score(source).Caption;
    state.Lamp[player] = player == last % kPlayers + 1 ? on : off;
  }
  state.RotateCount = 1;
}

}  // namespace pawnfield
