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

// A claim takes the question's panels from the console; the audience keeps them until the verdict's or the next
// question's own steps. Scores have their own check. The random operator types over the boxes of the command and the
// heading, which no key does in the real windows.
bool MayDiffer(Show& show, const std::string& pair) {
  const bool visible = pair.ends_with(".Visible");
  if (!visible && (pair.starts_with("Label11") || pair == "lblDJCommand" || pair == "txtOptionalHeading")) return true;
  for (const char* panel : {"picQuestion", "picQuestionPicture", "picSound"}) {
    if (pair == std::string(panel) + ".Visible") return show.frmFSMain.Find(panel)->Visible;
  }
  // A picture on demand that can't be read leaves the console's panel up alone for its time.
  if (pair == "picMOD.Visible" && show.frmMain.tmrMODPicture.Enabled) return show.frmMain.picMOD.Visible;
  return Animates(show) && pair.starts_with("img") && !visible;
}

std::string Pairs(Show& show) {
  if (!show.state.DualScreen) return {};
  for (const std::string& pair : UnlikePairs(show)) {
    if (!MayDiffer(show, pair)) return pair + " differs on the audience's screen";
  }
  return Differ("the winner's text", show.frmMain.lblWinner.Caption, show.frmFSMain.lblWinner.Caption);
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
    const auto index = static_cast<std::size_t>(player - 1);
    const std::string who = " of player " + std::to_string(player);
    const bool dual = show.state.DualScreen;
    const std::string score = show.frmMain.Score(player).Caption;
    const std::string audience = dual ? show.frmFSMain.Label11[index].Caption.Get() : score;
    const std::string fault = Differ("copy of the score" + who, score, show.frmMain.ScoreCopy(player).Caption) +
                              Differ("audience's score" + who, score, audience);
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
