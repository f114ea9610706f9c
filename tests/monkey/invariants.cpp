#include "monkey/invariants.h"

#include <initializer_list>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "support/screen_pairs.h"

namespace pawnfield {

namespace {

// What the last of the ring-in keys, "^", passes for a player.
constexpr int kLastRingIn = 46;

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
       {outside("CurrentPlayer", state.CurrentPlayer, 0, kLastRingIn), outside("GridSize", state.GridSize, 3, 5),
        outside("GameType", static_cast<int>(state.GameType), 1, static_cast<int>(kGameTypes.size())),
        outside("Players", state.Players, 2, 3), outside("FlashCount", show.FlashCount, 0, 5)}) {
    if (!fault.empty()) return fault;
  }
  for (int r = 0; r < 7; ++r) {
    for (int c = 0; c < 7; ++c) {
      const int owner = state.Board[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
      const bool onBoard = r < state.GridSize && c < state.GridSize;
      if (owner < 0 || owner > (onBoard ? kLastRingIn : 0)) return "Board holds " + std::to_string(owner);
    }
  }
  return {};
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

}  // namespace pawnfield
