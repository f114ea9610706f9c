#include "monkey/invariants.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <set>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "presentation/both_screens.h"
#include "support/screen_pairs.h"

namespace pawnfield {

namespace {

std::string Differ(const std::string& what, const std::string& one, const std::string& other) {
  return one == other ? std::string() : what + ": \"" + one + "\" against \"" + other + "\"";
}

bool Animates(Show& show) {
  return show.frmMain.tmrAnswer.Enabled || show.frmMain.tmrFlipPlayerPiece.Enabled ||
         show.frmFSMain.tmrFSFlipPlayerPiece.Enabled;
}

std::string Pairs(Show& show) {
  if (!show.state.DualScreen) return {};
  const auto unlike = UnlikePairs(show);
  return unlike.empty() ? "" : unlike.front() + " differs on the audience's screen";
}

int SquaresOf(const GameState& state, int player) {
  int squares = 0;
  for (const auto& row : state.Board) squares += static_cast<int>(std::count(row.begin(), row.end(), player));
  return squares;
}

std::string Lamps(Show& show) {
  int lit = 0;
  for (int player = 1; player <= 3; ++player) {
    const std::string box = show.frmMain.ScoreBox(player).Picture;
    if (box.find("red") == std::string::npos) continue;
    ++lit;
  }
  return lit > 1 ? "more than one score box is lit" : "";
}

std::string Ranges(Show& show) {
  const GameState& state = show.state;
  const auto outside = [](const char* what, int value, int low, int high) {
    return value >= low && value <= high ? std::string() : what + (" is " + std::to_string(value));
  };
  for (const std::string& fault :
       {outside("CurrentPlayer", state.CurrentPlayer, 0, state.Players), outside("GridSize", state.GridSize, 3, 5),
        outside("GameType", static_cast<int>(state.GameType), 1, static_cast<int>(kGameTypes.size())),
        outside("Players", state.Players, 2, 3), outside("FlashCount", show.FlashCount, 0, 5)}) {
    if (!fault.empty()) return fault;
  }
  for (int r = 0; r < 7; ++r) {
    for (int c = 0; c < 7; ++c) {
      const int owner = state.Board[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
      const bool onBoard = r < state.GridSize && c < state.GridSize;
      if (owner < 0 || owner > (onBoard ? 3 : 0)) return "Board holds " + std::to_string(owner);
    }
  }
  const bool open = state.PlacementOpen || state.QuestionUp;
  return open && IsPhase(show, PhaseKind::Winner) ? "a question or a placement is open at the winner" : "";
}

std::string Timers(Show& show) {
  MainForm& form = show.frmMain;
  const bool idle = !show.state.GameLoaded && form.picStandby.Visible && !form.tmrWinner.Enabled && !show.WinnerDue;
  for (const Timer* timer : {&form.tmrAnswer, &form.tmrFlipPlayerPiece, &show.frmFSMain.tmrFSFlipPlayerPiece,
                             &form.tmrBonus, &form.tmrAutoContinue, &form.tmr5QuestionTimer}) {
    if (idle && timer->Enabled) return timer->Name() + " runs while no game is loaded";
  }
  return {};
}

std::string Squares(Show& show) {
  if (Animates(show)) return {};
  for (int r = 0; r < 6; ++r) {
    for (int c = 0; c < 6; ++c) {
      const int owner = show.state.Board[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
      const std::string wanted =
          owner < 1 || owner > 3 ? show.frmMain.imgBkgnd.Picture.Get() : show.frmMain.FaceA(owner).Picture.Get();
      const std::string shown = show.frmMain.img.At(r, c)->Picture;
      if (shown != wanted) return Differ("square " + std::to_string(r) + std::to_string(c), shown, wanted);
    }
  }
  return {};
}

std::string Scores(Show& show) {
  for (int player = 1; player <= 3; ++player) {
    const std::string who = " of player " + std::to_string(player);
    const std::string score = show.frmMain.Score(player).Caption;
    const std::string fault = Differ("copy of the score" + who, score, show.frmMain.ScoreCopy(player).Caption);
    if (!fault.empty()) return fault;
  }
  return {};
}

}  // namespace

std::string BrokenInvariant(Show& show) {
  for (const std::string& fault : {Squares(show), Scores(show), Pairs(show), Lamps(show), Ranges(show), Timers(show)}) {
    if (!fault.empty()) return fault;
  }
  return {};
}

namespace {

// How many steps of Undo and Redo the record holds: they alone move through events that are there.
std::size_t StepsIn(const Show& show) { return show.record->Steps; }

}  // namespace

bool LastAction::Stepped(const Show& show) const { return StepsIn(show) != historyBefore_; }

void LastAction::Before(Show& show) {
  before_ = show.state;
  historyBefore_ = StepsIn(show);
  phaseBefore_ = Phase(show);
  for (int player = 1; player <= kPlayers; ++player) scoresBefore_[player] = ScoreOf(show, player);
}

std::string LastAction::Broken(Show& show) const {
  if (Stepped(show)) return {};
  for (const std::string& fault : {Owners(show), AfterTheEnd(show), Questions(show), Payments(show)}) {
    if (!fault.empty()) return fault;
  }
  return {};
}

std::string LastAction::Owners(const Show& show) const {
  for (std::size_t r = 0; r < 6; ++r) {
    for (std::size_t c = 0; c < 6; ++c) {
      const int owner = show.state.Board[r][c];
      if (owner > show.state.Players && before_.Board[r][c] != owner) return "a square went to nobody of the game";
    }
  }
  return {};
}

std::string LastAction::AfterTheEnd(const Show& show) const {
  if (phaseBefore_.Kind != PhaseKind::Winner || !IsPhase(show, PhaseKind::Winner)) return {};
  const GameState& state = show.state;
  const bool rung = state.CurrentPlayer != before_.CurrentPlayer && state.Nature().RingIn;
  if (rung && state.CurrentPlayer != 0) return "a ring-in at the winner";
  for (std::size_t r = 0; r < 6; ++r) {
    for (std::size_t c = 0; c < 6; ++c) {
      if (state.Board[r][c] != 0 && before_.Board[r][c] == 0) return "a claim at the winner";
    }
  }
  return {};
}

std::string LastAction::Questions(const Show& show) const {
  const int advanced = show.state.CurrentQuestion - before_.CurrentQuestion;
  const bool sameGame = before_.GameStarted && show.state.GameStarted;
  if (!sameGame || advanced <= 0) return {};
  if (advanced > 1) return "questions were passed over";
  return before_.QuestionUp ? "a question was passed over that waited for its answer" : "";
}

// What one action may pay: one claim, one penalty, or one press of a score button. Scores and squares that
// are cleared together pay nothing.
std::string LastAction::Payments(Show& show) const {
  const GameState& state = show.state;
  for (int player = 1; player <= kPlayers; ++player) {
    const double score = ScoreOf(show, player);
    const double change = score - scoresBefore_[player];
    const int gained = SquaresOf(state, player) - SquaresOf(before_, player);
    const double amount = std::abs(change);
    const bool claimed = gained == 1 && state.LastPlayer == player && change == state.LastPoints;
    const bool penalty = state.IncorrectPenalty && before_.CurrentPlayer == player && change == -100;
    const bool button = std::set<double>{1, 10, 100, 1000, 10000, 100000}.contains(amount);
    const bool cleared = score == 0 && SquaresOf(state, player) == 0;
    if (claimed || cleared || (gained == 0 && change == 0)) continue;
    if (player > before_.Players) return "a player who has left was paid";
    if (gained != 0 || (!penalty && !button)) return "a score changed by " + std::to_string(change);
  }
  return {};
}

}  // namespace pawnfield
