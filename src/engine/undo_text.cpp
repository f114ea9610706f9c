#include "engine/undo_text.h"

#include "data/players.h"
#include "forms/main_form.h"
#include "show/show.h"

namespace pawnfield {

namespace {
constexpr const char* kKey = "Ctrl+U";
}

std::string UndoText(const Show& show) {
  const GameState& state = show.state;
  if (state.LastPoints <= 0 || !IsPlayer(state.LastPlayer)) return {};
  const std::string square{static_cast<char>('A' + state.LastCol), static_cast<char>('1' + state.LastRow)};
  return show.frmMain.lblPlayer1[PlayerIndex(state.LastPlayer)].Caption.Get() + " takes " + square + ", +" +
         std::to_string(state.LastPoints);
}

void UpdateUndoTip(Show& show) {
  const std::string text = UndoText(show);
  show.frmMain.btnUndo.ToolTipText = text.empty() ? kKey : std::string(kKey) + ": " + text;
}

}  // namespace pawnfield
