#include "controllers/show_control.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

#include "controllers/ring_in.h"
#include "data/players.h"
#include "engine/safe_click.h"
#include "forms/main_form.h"
#include "forms/pages_form.h"
#include "media/media_on_demand.h"
#include "media/sound_table.h"
#include "platform/text.h"
#include "show/page_state.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

ControlAnswer NotNow(const std::string& why) { return {409, why}; }

// The control's name in words, for an answer.
ControlAnswer ClickButton(Show& show, Button& button, const std::string& what) {
  if (!ClickSafely(show, button)) return NotNow(what + " is not offered now.");
  return {};
}

// What would wipe a game is the operator's: the console asks, in an event of its own, as the device is to have its
// answer.
ControlAnswer AskOperator(Show& show, Button& button, const std::string& what) {
  if (!button.IsReachable()) return NotNow(what + " is not offered now.");
  show.pages->AskedFor = &button;
  show.frmPages.tmrControl.Enabled = true;
  return {202, "The console asks its operator."};
}

// Nobody has the turn, or no question waits: the console's buttons do nothing then, and say so in the status line.
ControlAnswer Judge(Show& show, Button& button, const std::string& what) {
  if (!IsPhase(show, PhaseKind::Answering)) return NotNow("Nobody has to be judged now.");
  return ClickButton(show, button, what);
}

ControlAnswer Correct(Show& show, const std::string&) {
  return Judge(show, show.frmMain.btnQuestionCorrect, "Correct");
}
ControlAnswer Incorrect(Show& show, const std::string&) {
  return Judge(show, show.frmMain.btnQuestionIncorrect, "Incorrect");
}
ControlAnswer Continue(Show& show, const std::string&) {
  return ClickButton(show, show.frmMain.btnContinue, "Continue");
}
ControlAnswer Skip(Show& show, const std::string&) { return ClickButton(show, show.frmMain.btnSkipQuestion, "Skip"); }
ControlAnswer Undo(Show& show, const std::string&) { return ClickButton(show, show.frmMain.btnUndo, "Undo"); }
ControlAnswer ShowBoard(Show& show, const std::string&) { return ClickButton(show, show.frmMain.btnPlayMode, "Show"); }
ControlAnswer HideBoard(Show& show, const std::string&) {
  return ClickButton(show, show.frmMain.btnStandbyMode, "Hide");
}
ControlAnswer EndGame(Show& show, const std::string&) { return AskOperator(show, show.frmMain.btnEndGame, "End Game"); }
ControlAnswer Reset(Show& show, const std::string&) { return AskOperator(show, show.frmMain.btnReset, "Reset"); }

// "C2": the letter stands above a column and the digit beside a row.
ControlAnswer Claim(Show& show, const std::string& square) {
  if (square.size() != 2) return {400, "A square is a letter and a digit, as C2."};
  const int column = std::toupper(static_cast<unsigned char>(square[0])) - 'A';
  const int row = square[1] - '1';
  const GameState& state = show.state;
  if (column < 0 || column >= state.GridCols || row < 0 || row >= state.GridRows) {
    return {400, "There is no square " + ToUpper(square) + "."};
  }
  if (!IsPhase(show, PhaseKind::Claiming)) return NotNow("No square may be taken now.");
  if (state.Board[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] != 0) {
    return NotNow("The square " + ToUpper(square) + " is taken.");
  }
  Image* image = show.frmMain.img.At(row, column);
  if (image == nullptr || !image->IsReachable()) return NotNow("The board is covered.");
  image->Click();
  return {};
}

ControlAnswer RingIn(Show& show, const std::string& number) {
  const int player = number.size() == 1 ? number[0] - '0' : 0;
  if (!Plays(show.state, player)) return {400, "There is no such player in this game."};
  if (!MayRingIn(show)) return NotNow("No question is open to all.");
  return ClickButton(show, show.frmMain.btnSelectPlayer[PlayerIndex(player)], "Player " + number);
}

ControlAnswer Media(Show& show, const std::string& key) {
  const char letter = key.size() == 1 ? static_cast<char>(std::toupper(static_cast<unsigned char>(key[0]))) : ' ';
  if (letter < 'A' || letter > 'Z') return {400, "A key is one letter, as F."};
  constexpr int kRowOfA = 9;
  const int row = kRowOfA + letter - 'A';
  if (Trim(SoundEntry(show, row)).empty()) return NotNow("Nothing lies on that key.");
  show.frmMain.Dispatch([&] { PlayKeyMedia(show, row); }, "PlayKeyMedia");
  return {};
}

struct Command {
  const char* Word;
  // The name of what stands behind "?", null for nothing.
  const char* Argument;
  ControlAnswer (*Run)(Show& show, const std::string& argument);
};

constexpr std::array kCommands{
    Command{"correct", nullptr, Correct},   Command{"incorrect", nullptr, Incorrect},
    Command{"continue", nullptr, Continue}, Command{"skip", nullptr, Skip},
    Command{"undo", nullptr, Undo},         Command{"show", nullptr, ShowBoard},
    Command{"hide", nullptr, HideBoard},    Command{"claim", "square", Claim},
    Command{"ringin", "player", RingIn},    Command{"media", "key", Media},
    Command{"endgame", nullptr, EndGame},   Command{"reset", nullptr, Reset},
};

}  // namespace

ControlAnswer RunControl(Show& show, const std::string& request) {
  const std::size_t mark = std::min(request.find_first_of("? "), request.size());
  const bool bare = mark < request.size() && request[mark] == ' ';
  const std::string word = request.substr(0, mark);
  const std::string rest = mark < request.size() ? request.substr(mark + 1) : std::string();
  for (const Command& command : kCommands) {
    if (word != command.Word) continue;
    const bool takesOne = command.Argument != nullptr;
    if (!takesOne && !rest.empty()) return {400, "Nothing stands behind " + word + "."};
    std::string name;
    if (takesOne && !bare) name.append(command.Argument).append("=");
    if (!rest.starts_with(name)) return {400, std::string(word).append(" needs ").append(name).append("...")};
    if (!ConsoleListens(show)) return NotNow("The console waits for its operator.");
    return command.Run(show, rest.substr(name.size()));
  }
  return {404, "There is no control of that name."};
}

void tmrControl_Timer(Show& show) {
  show.frmPages.tmrControl.Enabled = false;
  if (Button* asked = std::exchange(show.pages->AskedFor, nullptr)) ClickSafely(show, *asked);
}

}  // namespace pawnfield
