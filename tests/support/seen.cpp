#include "support/seen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sstream>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "platform/text.h"
#include "show/phase.h"
#include "support/screen_pairs.h"

namespace pawnfield {

namespace {

const char* const kButtons =
    "btnStart btnSelectGame btnPlayMode btnStandbyMode btnNextPlayer btnContinue btnSkipQuestion btnUndo btnReset "
    "btnEndGame btnQuestionCorrect";
const char* const kOptions =
    "chkAnimation chkHideQuestion chkIncorrectPenalty cboTimedResponse cboAutoContinue cboList btnSelectPlayer(0) "
    "btnSelectPlayer(2) optGameType(0)";

std::string Plain(const std::string& text) {
  std::string plain;
  for (const char c : text) {
    if (c != '\r') plain += c == '\n' ? '/' : c == ' ' ? '_' : c;
  }
  return plain;
}

std::string Reachable(const Form& form, const std::string& names) {
  std::string reachable;
  std::istringstream in(names);
  for (std::string name; in >> name;) {
    if (form.Find(name)->IsReachable()) reachable += (reachable.empty() ? "" : ",") + name.substr(3);
  }
  return reachable;
}

std::string Board(const GameState& state) {
  std::string rows;
  for (int at = 0; at < state.GridSize * state.GridSize; ++at) {
    if (at > 0 && at % state.GridSize == 0) rows += '/';
    rows += std::to_string(state.Board.at(at / state.GridSize).at(at % state.GridSize));
  }
  return rows;
}

// "idle", "player_2_answers", "pause" and the like.
std::string PhaseOf(const Show& show) {
  static constexpr std::array kNames = {"idle",    "ready", "open",   "answers", "claims",
                                        "flashes", "bonus", "notice", "pause",   "winner"};
  const auto [kind, player] = Phase(show);
  const std::string name = kNames.at(static_cast<std::size_t>(kind));
  return player == 0 ? name : "player_" + std::to_string(player) + "_" + name;
}

// The players whose score boxes are red.
std::string LitBoxes(MainForm& form) {
  std::string lit;
  for (int player = 1; player <= 3; ++player) {
    if (form.ScoreBox(player).Picture->find("red") != std::string::npos) lit += std::to_string(player);
  }
  return lit.empty() ? "nobody" : lit;
}

std::string FileName(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

std::string PropertyOf(const Control& control, const std::string& name) {
  const auto* label = dynamic_cast<const Label*>(&control);
  if (name == "Top") return NumberText(control.Top);
  if (name == "ForeColor") return NumberText(dynamic_cast<const Label&>(control).ForeColor);
  if (name == "Height") return NumberText(control.Height);
  if (name == "Tip") return Plain(control.ToolTipText);
  if (name == "Enabled") return control.Enabled ? "yes" : "no";
  if (label == nullptr) return NumberText(dynamic_cast<const TextBox&>(control).BackColor);
  return NumberText(name == "Font" ? label->Font->Size : label->BackColor.Get());
}

std::string Look(const Control& control) {
  const auto onOff = [](bool on) { return on ? "on" : "off"; };
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return std::to_string(box->Value);
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return option->Value ? "1" : "0";
  if (const auto* list = dynamic_cast<const ComboBox*>(&control)) return Plain(list->Text());
  if (control.Kind() == ControlKind::Timer) return onOff(control.Enabled);
  if (!control.IsShown()) return "-";
  if (control.Kind() == ControlKind::Button) return onOff(control.IsReachable());
  const bool panel = control.Kind() == ControlKind::PictureBox || control.Kind() == ControlKind::Frame;
  if (panel) return control.Enabled ? "up" : "off";
  const std::string content = Plain(Content(control));
  return control.Kind() == ControlKind::Image ? FileName(content) : content;
}

std::string Seen(Show& show, const std::string& name, const Form& form) {
  MainForm& main = show.frmMain;
  const GameState& state = show.state;
  const auto score = [&](int player) { return main.Score(player).Caption.Get(); };
  const auto player = [&](std::size_t i) { return main.lblPlayer1[i].Caption.Get(); };
  const auto pays = [](bool penalty, const char* number) { return std::string(penalty ? number : "-"); };
  if (name == "turn") return std::to_string(state.CurrentPlayer);
  if (name == "lit") return LitBoxes(main);
  if (name == "phase") return PhaseOf(show);
  if (name == "question") return std::to_string(state.CurrentQuestion);
  if (name == "scores") return score(1) + "/" + score(2) + "/" + score(3);
  if (name == "names") return Plain(player(0) + "/" + player(1) + "/" + player(2));
  if (name == "line") {
    const std::string who = main.lblLineWho.Caption;
    return Plain((who.empty() ? "" : who + " ") + main.lblLineExpected.Caption.Get());
  }
  if (name == "board") return Board(state);
  if (name == "cursor") return FileName(main.MouseIcon);
  if (name == "cursor'") return FileName(show.frmFSMain.MouseIcon);
  if (name == "winner") return Plain(main.lblWinner.Caption);
  if (name == "offers") return Reachable(main, kButtons);
  if (name == "options") return Reachable(main, kOptions);
  if (name == "penalties") {
    return pays(state.PlayerPenalty[1], "1") + pays(state.PlayerPenalty[2], "2") + pays(state.PlayerPenalty[3], "3") +
           "/" + std::to_string(state.PenaltyPoints);
  }
  const bool audience = name.ends_with('\'');
  const std::string whole = audience ? name.substr(0, name.size() - 1) : name;
  const std::size_t dot = std::min(whole.find('.'), whole.size());
  const Control* control = (audience ? show.frmFSMain : form).Find(whole.substr(0, dot));
  if (control == nullptr) return "no such control";
  return dot == whole.size() ? Look(*control) : PropertyOf(*control, whole.substr(dot + 1));
}

}  // namespace

void ExpectSeen(Show& show, const std::string& states, const std::string& when, const Form* form) {
  std::istringstream in(states);
  for (std::string state; in >> state;) {
    const std::string name = state.substr(0, state.find('='));
    EXPECT_EQ(name + "=" + Seen(show, name, form != nullptr ? *form : show.frmMain), state) << "after" << when;
  }
}

}  // namespace pawnfield
