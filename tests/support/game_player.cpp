#include "support/game_player.h"

#include <sstream>

namespace pawnfield {

namespace {

constexpr int kFlashMs = 1000;
constexpr int kPauseMs = 3000;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t Digit(char c) { return static_cast<std::size_t>(c - '0'); }

}  // namespace

GamePlayer::GamePlayer(const GameSetup& setup) : gameType_(setup.GameType) {
  fixture_.WriteNumberedSet("Long", 30);
  fixture_.Start();
  SetOptions(setup);
  if (setup.GameType >= 3) fixture_.ChooseSet("Long");
  Press(fixture_.form().btnStart, "start");
  ExpectBothScreensAlike("start");
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
    Step(step);
    ExpectBothScreensAlike(step);
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

void GamePlayer::ExpectBothScreensAlike(const std::string& step) {
  MainForm& form = fixture_.form();
  FSMainForm& audience = fixture_.audience();
  for (const char* panel :
       {"picQuestion", "picQuestionPicture", "picSound", "picBonus", "picCorrect", "picWinner", "picStandby"}) {
    EXPECT_EQ(form.Find(panel)->Visible.Get(), audience.Find(panel)->Visible.Get()) << panel << " at step " << step;
  }
  for (int r = 0; r < 6; ++r) {
    for (int c = 0; c < 6; ++c) {
      EXPECT_EQ(form.img.At(r, c)->Picture.Get(), audience.img.At(r, c)->Picture.Get()) << r << c << " at " << step;
      EXPECT_EQ(form.img.At(r, c)->Visible.Get(), audience.img.At(r, c)->Visible.Get()) << r << c << " at " << step;
    }
  }
  for (int player = 1; player <= 3; ++player) {
    const auto index = static_cast<std::size_t>(player - 1);
    EXPECT_EQ(form.lblPlayer1[index].Caption.Get(), audience.lblPlayer[index].Caption.Get()) << "at step " << step;
    if (!scoresAlike_) continue;
    EXPECT_EQ(form.Score(player).Caption.Get(), audience.Label11[index].Caption.Get()) << "at step " << step;
    EXPECT_EQ(form.Score(player).Caption.Get(), form.ScoreCopy(player).Caption.Get()) << "at step " << step;
  }
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
