#include "engine/show_line.h"

#include <algorithm>

#include "data/house_colors.h"
#include "forms/main_form.h"
#include "platform/escapes.h"
#include "platform/text.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::int64_t kMsPerSecond = 1000;

bool Typing(const Show& show) { return show.state.KeyControl; }

bool QuestionsAreLeft(const Show& show) { return show.state.CurrentQuestion + 1 < show.NumGameQuestions; }

std::string WaitingForStart(const Show& show) {
  if (show.frmMain.btnStart.Enabled) return "Press Start";
  return show.state.Nature().Trivia ? "Choose a set" : "Choose a game type";
}

std::string WaitingForRingIn(const Show& show) {
  if (!show.state.Nature().RingIn) return "Nobody has the turn: press Next Player, or let a player ring in";
  return std::string("Players ring in: buzzers, keys 1 to ") + (show.state.Players == 2 ? "2" : "3") +
         ", or by hand at the right";
}

std::string WaitingForVerdict(const Show& show) {
  return Typing(show) ? "answers: judge with Y or N" : "answers: press Correct or Incorrect";
}

std::string WaitingForSquare(const Show& show) {
  const std::string& typed = show.entry.DJEntry;
  if (typed.size() == 1) return "chooses a square: " + typed + " typed, now the digit";
  if (typed.size() > 1) return "chooses " + typed + ": press Enter to take it";
  const std::string way = Typing(show) ? "click it, or type letter and digit" : "click it";
  return "chooses a square: " + way + (show.state.Nature().Trivia ? "" : "; Next Player if wrong");
}

std::string WaitingInPause(const Show& show) {
  const MainForm& form = show.frmMain;
  if (!QuestionsAreLeft(show)) return "No questions left: hold End Game for the winner, hold Reset or choose a set";
  if (form.tmrAutoContinue.Enabled) return "The next question comes by itself";
  if (!form.btnContinue.Enabled) return "Press Skip for the next question";
  return Typing(show) ? "Press Continue, or C" : "Press Continue";
}

// Follows the player's name where one is meant.
std::string ExpectedIn(const Show& show, PhaseKind kind) {
  switch (kind) {
    case PhaseKind::Idle:
      return WaitingForStart(show);
    case PhaseKind::Ready:
      return "Press Start: the first question comes up";
    case PhaseKind::QuestionOpen:
      return WaitingForRingIn(show);
    case PhaseKind::Answering:
      return WaitingForVerdict(show);
    case PhaseKind::Claiming:
      return WaitingForSquare(show);
    case PhaseKind::Flashing:
      return "takes " + SquareText(show.state.LastRow, show.state.LastCol) + ", +" +
             std::to_string(show.state.LastPoints);
    case PhaseKind::Bonus:
      return "Bonus: the show goes on by itself";
    case PhaseKind::Notice:
      return "5 questions left: the notice goes by itself";
    case PhaseKind::Pause:
      return WaitingInPause(show);
    case PhaseKind::Winner:
      return "Game over: the winner stands for 5 s, then standby";
  }
  return "";
}

// Why a press doesn't count while the strips of the ring-in are lit; empty when it does.
std::string WhyClosed(const Show& show, const GamePhase& phase) {
  if (ScreenCovered(show)) return "Closed while the room sees standby";
  if (phase.Kind == PhaseKind::QuestionOpen) return "";
  if (phase.Kind == PhaseKind::Answering) return "Closed: " + show.frmMain.PlayerName(phase.Player) + " answers";
  return "Closed until the next question is up";
}

// A game that runs on beneath standby waits for the operator to uncover it.
bool WaitsBeneathStandby(const Show& show, PhaseKind kind) {
  return ScreenCovered(show) && kind != PhaseKind::Idle && kind != PhaseKind::Ready && kind != PhaseKind::Winner;
}

std::string SecondsToNext(const Show& show) {
  if (!show.frmMain.tmrAutoContinue.Enabled || !QuestionsAreLeft(show)) return "";
  const std::int64_t left = show.state.ContinueAtMs - show.platform.clock.NowMs();
  return "Continue in " + std::to_string(std::max<std::int64_t>(0, (left + kMsPerSecond - 1) / kMsPerSecond)) + " s";
}

std::string SecondsToAnswer(const Show& show) {
  const AnswerClock clock = RunningAnswerClock(show);
  if (clock.Player == 0) return "";
  if (clock.SecondsLeft == 0) return "TIME IS UP";
  return (clock.SecondsLeft < 10 ? "0:0" : "0:") + std::to_string(clock.SecondsLeft);
}

std::string QuestionInWords(const std::string& text) {
  switch (KindOfQuestion(text)) {
    case QuestionKind::Picture:
      return "picture " + ExtractFileName(text);
    case QuestionKind::Sound:
      return "sound " + ExtractFileName(text);
    case QuestionKind::Text:
      break;
  }
  return text;
}

void TellOfSet(const Show& show, ShowLine& line) {
  if (!show.state.Nature().Trivia || !show.state.GameLoaded) return;
  const std::string questions = std::to_string(show.NumGameQuestions);
  line.Set = SetName(ExtractFileName(show.state.LoadedSetPath));
  line.Count = show.state.GameStarted
                   ? "Question " + std::to_string(show.state.CurrentQuestion + 1) + " of " + questions
                   : questions + (show.NumGameQuestions == 1 ? " question" : " questions");
  const int next = show.state.GameStarted ? show.state.CurrentQuestion + 1 : 0;
  if (next >= show.NumGameQuestions) return;
  const std::string text = Trim(show.GameSet[static_cast<std::size_t>(next)].QuestionText);
  line.Next = (next == 0 ? "First: " : "Next: ") + Isolated(QuestionInWords(text));
}

}  // namespace

std::string SquareText(int row, int column) {
  return std::string(1, static_cast<char>('A' + column)) + std::to_string(row + 1);
}

ShowLine LineOf(const Show& show) {
  const GamePhase phase = Phase(show);
  ShowLine line;
  TellOfSet(show, line);
  line.Clock = SecondsToAnswer(show);
  line.Continue = SecondsToNext(show);
  if (WaitsBeneathStandby(show, phase.Kind)) {
    line.Expected = "The room sees standby: press Show to go on";
    return line;
  }
  line.Player = phase.Player;
  line.Expected = ExpectedIn(show, phase.Kind);
  return line;
}

bool StatusHolds(const Show& show, const std::string& text) {
  const GameState& state = show.state;
  if (text.starts_with("Player ") && text.ends_with(" Selected!")) return state.GameLoaded;
  if (text.starts_with("Nobody has the turn")) return state.CurrentPlayer == 0 && state.GameStarted;
  if (text == "No questions left") return IsPhase(show, PhaseKind::Pause);
  if (text.starts_with("Time is up")) return RunningAnswerClock(show).Player != 0;
  if (text.ends_with("this set ends before the board is full.")) return state.GameLoaded;
  return true;
}

void WriteShowLine(Show& show) {
  MainForm& form = show.frmMain;
  if (!StatusHolds(show, form.lblStatusBar.Caption)) form.lblStatusBar.Caption = "";
  const ShowLine line = LineOf(show);
  form.lblLineSet.Caption = line.Set;
  form.lblLineCount.Caption = line.Count;
  form.lblLineWho.Caption = IsPlayer(line.Player) ? form.PlayerName(line.Player) : "";
  if (IsPlayer(line.Player)) form.lblLineWho.ForeColor = kPlayerColors[line.Player];
  form.lblLineExpected.Caption = line.Expected;
  form.lblLineClock.Caption = line.Clock;
  form.lblLineContinue.Caption = line.Continue;
  form.lblLineNext.Caption = line.Next;
  form.lblInPlay.Caption = !show.state.GameStarted ? "" : form.optGameType[0].Enabled ? "IN PLAY" : "LOCKED IN PLAY";
  const std::string closed = WhyClosed(show, Phase(show));
  for (std::size_t i = 0; i < kPlayers; ++i) form.btnBuzzer[i].ToolTipText = form.btnBuzzer[i].Enabled ? closed : "";
  form.tmrShowLine.Enabled = !line.Continue.empty();
}

// The line itself is written after the event, as after every other.
void tmrShowLine_Timer(Show&) {}

}  // namespace pawnfield
