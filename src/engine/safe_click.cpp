#include "engine/safe_click.h"

#include <array>

#include "forms/main_form.h"
#include "platform/ports.h"
#include "show/show.h"

namespace pawnfield {

namespace {

struct Danger {
  const Control* Of;
  const char* Hint;
  const char* Question;
  const char* Go;
  bool OnlyInGame;
};

std::array<Danger, 3> Dangers(const Show& show) {
  const MainForm& form = show.frmMain;
  return {
      {{&form.btnReset, "Hold to reset the game", "Reset the game? Its squares and scores are lost.", "Reset", false},
       {&form.btnEndGame, "Hold to end the game", "End the game and name the winner?", "End the Game", false},
       {&form.fileClearAllScores, "", "Clear all scores and squares of this game?", "Clear", true}}};
}

bool Agreed(Show& show, const Danger& danger) {
  if (danger.OnlyInGame && !show.state.GameInProgress) return true;
  Dialogs& dialogs = show.platform.dialogs;
  if (dialogs.Modal() != ModalKind::None) return false;
  return dialogs.Ask({danger.Question, BoxKind::YesNo, BoxAnswer::No, danger.Go, "Keep the Game"}, kAppTitle) ==
         BoxAnswer::Yes;
}

}  // namespace

bool ClickSafely(Show& show, Control& control) {
  if (!control.IsReachable()) return false;
  for (const Danger& danger : Dangers(show)) {
    if (danger.Of == &control && !Agreed(show, danger)) return false;
  }
  control.Click();
  return true;
}

const char* HoldHint(const Show& show, const Control& control) {
  for (const Danger& danger : Dangers(show)) {
    if (danger.Of == &control) return danger.Hint;
  }
  return "";
}

}  // namespace pawnfield
