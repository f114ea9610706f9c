#include "support/seen.h"

#include <gtest/gtest.h>

#include <sstream>

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

std::string FileName(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

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

}  // namespace

std::string Look(const Control& control) {
  const auto onOff = [](bool on) { return on ? "on" : "off"; };
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return std::to_string(box->Value);
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return option->Value ? "1" : "0";
  if (const auto* list = dynamic_cast<const ComboBox*>(&control)) return Plain(list->Text());
  if (control.Kind() == ControlKind::Timer) return onOff(control.Enabled);
  if (!control.IsShown()) return "-";
  if (control.Kind() == ControlKind::Button) return onOff(control.IsReachable());
  if (const auto* label = dynamic_cast<const Label*>(&control)) return Plain(label->Caption);
  if (const auto* text = dynamic_cast<const TextBox*>(&control)) return Plain(text->Text);
  if (const auto* image = dynamic_cast<const Image*>(&control)) return FileName(image->Picture);
  return control.Enabled ? "up" : "off";
}

std::string Seen(Show& show, const std::string& name) {
  MainForm& form = show.frmMain;
  const auto score = [&](int player) { return form.Score(player).Caption.Get(); };
  if (name == "turn") return std::to_string(show.state.CurrentPlayer);
  if (name == "question") return std::to_string(show.state.CurrentQuestion);
  if (name == "scores") return score(1) + "/" + score(2) + "/" + score(3);
  if (name == "board") return Board(show.state);
  if (name == "winner") return Plain(form.lblWinner.Caption);
  if (name == "offers") return Reachable(form, kButtons);
  if (name == "options") return Reachable(form, kOptions);
  const bool audience = name.ends_with('\'');
  const Form& owner = audience ? static_cast<const Form&>(show.frmFSMain) : form;
  const Control* control = owner.Find(audience ? name.substr(0, name.size() - 1) : name);
  return control == nullptr ? "no such control" : Look(*control);
}

void ExpectSeen(Show& show, const std::string& states, const std::string& when) {
  std::istringstream in(states);
  for (std::string state; in >> state;) {
    const std::string name = state.substr(0, state.find('='));
    EXPECT_EQ(name + "=" + Seen(show, name), state) << when;
  }
}

}  // namespace pawnfield
