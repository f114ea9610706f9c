#include "support/game_player.h"

#include <sstream>

#include "engine/handlers.h"
#include "support/screen_pairs.h"

namespace pawnfield {

namespace {

constexpr int kFlashMs = 1000;
constexpr int kPauseMs = 3000;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t Digit(char c) { return static_cast<std::size_t>(c - '0'); }

}  // namespace

GamePlayer::GamePlayer(const GameSetup& setup) : fixture_(setup.Monitors), gameType_(setup.GameType) {
  fixture_.WriteNumberedSet("Long", 30);
  fixture_.Start();
  CheckEveryEvent();
  SetOptions(setup);
  if (setup.GameType >= 3) fixture_.ChooseSet("Long");
  Press(fixture_.form().btnStart, "start");
}

void GamePlayer::SetOptions(const GameSetup& setup) {
  MainForm& form = fixture_.form();
  Press(form.optGameType[static_cast<std::size_t>(setup.GameType - 1)], "game type");
  Press(form.optPlayers[static_cast<std::size_t>(setup.Players - 2)], "players");
  Press(form.optGridControl[static_cast<std::size_t>(setup.Grid - 3)], "grid");
  Press(form.optGameEnds[setup.End == Ending::FinishRow ? 0 : 1], "ending");
  const auto has = [&](char option) { return setup.Options.find(option) != std::string::npos; };
  if (has('p')) Press(form.chkIncorrectPenalty, "penalty");
  if (has('a')) Press(form.chkAnimation, "animation");
  if (has('m')) form.cboAutoContinue.Select(3);
  if (has('0')) form.cbxScore[0].Select(0);
}

void GamePlayer::Play(const std::string& script) {
  std::istringstream steps(script);
  for (std::string step; steps >> step;) {
    step_ = step;
    Step(step);
  }
}

void GamePlayer::Step(const std::string& step) {
  MainForm& form = fixture_.form();
  if (step == ">") {
    fixture_.sim.clock.Advance(kPauseMs);
  } else if (IsDigit(step[0])) {
    fixture_.Claim(step[0] - '0', step[1] - '0');
    fixture_.sim.clock.Advance(kFlashMs);
    scoresAlike_ = true;
  } else if (step[0] == 'r') {
    Press(form.btnSelectPlayer[Digit(step[1]) - 1], step);
  } else if (step[0] == 'u' || step[0] == 'd') {
    Press(ScoreButton(step), step);
  } else {
    // An undo leaves the audience's score to the next change.
    if (step == "U") scoresAlike_ = false;
    Press(ButtonOf(step[0]), step);
  }
}

Button& GamePlayer::ButtonOf(char letter) {
  MainForm& form = fixture_.form();
  switch (letter) {
    case '+':
      return form.btnQuestionCorrect;
    case '-':
      return form.btnQuestionIncorrect;
    case 'N':
      return form.btnNextPlayer;
    case 'S':
      return form.btnSkipQuestion;
    case 'C':
      return form.btnContinue;
    case 'U':
      return form.btnUndo;
    case 'E':
      return form.btnEndGame;
    case 'H':
      return form.btnStandbyMode;
    default:
      return form.btnPlayMode;
  }
}

Button& GamePlayer::ScoreButton(const std::string& step) {
  MainForm& form = fixture_.form();
  const std::size_t index = Digit(step[2]);
  const bool up = step[0] == 'u';
  switch (step[1]) {
    case '1':
      return up ? form.btnScore1Up[index] : form.btnScore1Dn[index];
    case '2':
      return up ? form.btnScore2Up[index] : form.btnScore2Dn[index];
    default:
      return up ? form.btnScore3Up[index] : form.btnScore3Dn[index];
  }
}

void GamePlayer::Press(Control& control, const std::string& step) {
  EXPECT_TRUE(control.IsReachable()) << control.Name() << " can't be pressed at step " << step;
  control.Click();
}

// Every event of a form runs through its guard, timers too.
void GamePlayer::CheckEveryEvent() {
  for (Form* form : AllForms(fixture_.show())) {
    form->Guard = [this, guard = form->Guard](const auto& handler, const auto& location, const auto& procedure) {
      guard(handler, location, procedure);
      ExpectBothScreensAlike(procedure);
    };
  }
}

void GamePlayer::ExpectBothScreensAlike(const std::string& event) {
  Show& show = fixture_.show();
  if (!show.state.DualScreen) return;
  for (const std::string& pair : UnlikePairs(show)) {
    // An undo leaves the audience's score to the next change.
    if (!scoresAlike_ && pair.starts_with("score")) continue;
    ADD_FAILURE() << pair << " differs after " << event << " at step " << step_;
  }
  const bool cursorPaired = event == "btnQuestionCorrect_Click" || event == "tmrWinner_Timer";
  if (!cursorPaired) return;
  EXPECT_EQ(show.frmMain.MouseIcon.Get(), show.frmFSMain.MouseIcon.Get()) << "after " << event;
}

std::string GamePlayer::Winner() {
  EXPECT_EQ(fixture_.form().lblWinner.Caption.Get(), fixture_.audience().lblWinner.Caption.Get());
  std::string text;
  for (const char c : fixture_.form().lblWinner.Caption.Get()) {
    if (c != '\r') text += c == '\n' ? '/' : c;
  }
  return text;
}

std::string GamePlayer::Board() {
  const int grid = fixture_.show().state.GridSize;
  std::string text;
  for (int r = 0; r < grid; ++r) {
    if (r > 0) text += '/';
    for (int c = 0; c < grid; ++c) {
      text += std::to_string(fixture_.show().state.Board[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)]);
    }
  }
  return text;
}

}  // namespace pawnfield
