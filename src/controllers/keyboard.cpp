#include "controllers/keyboard.h"

#include <cctype>

#include "controllers/press_trial.h"
#include "controllers/ring_in.h"
#include "engine/board_play.h"
#include "engine/judging.h"
#include "engine/question_cycle.h"
#include "engine/turn_order.h"
#include "forms/main_form.h"
#include "media/media_on_demand.h"
#include "outward/shared_key.h"
#include "platform/text.h"
#include "presentation/both_screens.h"
#include "record/history.h"
#include "record/ring_in_order.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kBackspace = 8;
constexpr int kEnter = 13;
constexpr int kCtrlN = 14;
constexpr int kCtrlS = 19;
constexpr int kCtrlU = 21;
constexpr int kCtrlY = 25;
constexpr int kCtrlZ = 26;
constexpr int kNoColumn = 99;

bool IsDigit(int key) { return key >= '0' && key <= '9'; }

// In keypad mode a digit is a controller, and 0 the tenth.
int PlayerOfDigit(const Show& show, int digit) {
  return IsKeypadMode(show) ? show.state.Routing[digit == 0 ? 10 : static_cast<std::size_t>(digit)] : digit;
}

void RingInKey(Show& show, int key) {
  if (TriesKey(show, key)) return;
  const bool digit = IsDigit(key);
  // While a square may be named a digit is its row, and no press.
  if (digit && QuestionIsUp(show)) AddPress(show, PressOf(show, key - '0', PressWay::Key));
  if (!MayRingIn(show) || (!digit && key != '^')) return;
  if (!IsKeypadMode(show)) {
    AcceptRingIn(show, key - '0');
  } else if (key == '^') {
    SelectControllerPlayer(show, 1, 6);
  } else {
    SelectControllerPlayer(show, key == '0' ? 1 : 0, key - '0');
  }
}

void ControlKey(Show& show, int key) {
  MainForm& form = show.frmMain;
  if (!show.state.KeyControl) return;
  if (key == kCtrlN && form.btnNextPlayer.Enabled) btnNextPlayer_Click(show);
  if (key == kCtrlS && form.btnSkipQuestion.Enabled) btnSkipQuestion_Click(show);
  if (key == kCtrlU && form.btnUndo.Enabled) btnUndo_Click(show);
  if (key == kCtrlY) Redo(show);
  if (key == kCtrlZ && !ScreenCovered(show)) form.lblPlayer1[0].DblClick();
}

void JudgingKey(Show& show, int key) {
  MainForm& form = show.frmMain;
  if (!show.state.KeyControl || !show.state.Nature().Trivia) return;
  if ((key == 'Y' || key == 'y') && QuestionIsUp(show)) HandleCorrect(show);
  if ((key == 'N' || key == 'n') && QuestionIsUp(show)) HandleIncorrect(show);
  const bool typing = !Trim(form.txtDJCommand.Text).empty();
  if ((key == 'C' || key == 'c') && form.btnContinue.Enabled && !typing && !IsPhase(show, PhaseKind::Claiming)) {
    btnContinue_Click(show);
  }
}

void ShowEntry(Show& show, const std::string& entry) {
  show.entry.DJEntry = entry;
  SetTypedCommand(show, entry);
}

// An Enter that was meant for something else is seen for what it did.
void PassTurnByEnter(Show& show) {
  const int before = show.state.CurrentPlayer;
  AdvanceToNextPlayer(show);
  const int now = show.state.CurrentPlayer;
  if (now != before) show.frmMain.lblStatusBar.Caption = "Enter passed the turn to player " + std::to_string(now) + ".";
}

void LetterOfSquare(Show& show, int key) {
  if (key == kEnter) {
    if (show.state.Nature().RingIn) return;
    PassTurnByEnter(show);
    if (!show.state.Nature().Trivia) ChangeCursor(show);
    return;
  }
  const int letter = std::toupper(key);
  const int row = letter - 'A';
  if (row < 0 || row > 5 || (row > 2 && row >= show.state.GridRows)) return;
  show.entry.DJRow = row;
  show.entry.DJRowLetter = std::string(1, static_cast<char>(letter));
  ShowEntry(show, show.entry.DJRowLetter);
}

void DigitOfSquare(Show& show, int key) {
  if (key == kBackspace) {
    ShowEntry(show, "");
    return;
  }
  const bool digit = key >= '1' && key <= '6';
  show.entry.DJColumn = digit && key - '1' < show.state.GridCols ? key - '1' : kNoColumn;
  if (show.entry.DJColumn != kNoColumn) ShowEntry(show, show.entry.DJEntry + static_cast<char>(key));
}

void EndOfSquare(Show& show, int key) {
  if (key == kBackspace) ShowEntry(show, show.entry.DJRowLetter);
  if (key != kEnter) return;
  const int digit = show.entry.DJColumn;
  const int letter = show.entry.DJRow;
  ClaimSquare(show, digit, letter, std::to_string(digit) + std::to_string(letter));
  ShowEntry(show, "");
  show.entry.DJRowLetter.clear();
}

void SquareKey(Show& show, int key) {
  if (!IsPhase(show, PhaseKind::Claiming) || ScreenCovered(show)) return;
  switch (show.entry.DJEntry.size()) {
    case 0:
      LetterOfSquare(show, key);
      break;
    case 1:
      DigitOfSquare(show, key);
      break;
    default:
      EndOfSquare(show, key);
  }
}

// A letter shows or plays its row of the sound table, 9 for A to 34 for Z, also when a stage before has used it.
void MediaKey(Show& show, int key) {
  if (key >= 'A' && key <= 'Z') PlayKeyMedia(show, key - 'A' + 9);
  if (key >= 'a' && key <= 'z') PlayKeyMedia(show, key - 'a' + 9);
}

}  // namespace

void SelectControllerPlayer(Show& show, int group, int number) {
  int controller = 0;
  if (group == 0 && number >= 1 && number <= 9) controller = number;
  if (group == 1 && number == 0) controller = 10;
  if (group == 2 && number == 0) controller = 20;
  if (controller == 0) return;
  const int player = show.state.Routing[static_cast<std::size_t>(controller)];
  if (!IsPlayer(player) || RefuseWhoDoesNotPlay(show, player)) return;
  btnSelectPlayer_Click(show, player - 1);
  if (!PublishesPlayers(show)) return;
  WriteSharedKey(show, std::to_string(9 + player), "PLAYER " + std::to_string(player));
  show.state.CurrentPlayer = player;
}

bool TriesKey(Show& show, int keyAscii) {
  if (!IsDigit(keyAscii)) return false;
  const int digit = keyAscii - '0';
  return TakesForTrial(show, PressOf(show, PlayerOfDigit(show, digit), PressWay::Key), digit);
}

void ProcessKeyPress(Show& show, int keyAscii) {
  RingInKey(show, keyAscii);
  ControlKey(show, keyAscii);
  JudgingKey(show, keyAscii);
  SquareKey(show, keyAscii);
  MediaKey(show, keyAscii);
}

}  // namespace pawnfield
