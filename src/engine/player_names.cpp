#include "engine/player_names.h"

#include <array>
#include <string>

#include "forms/main_form.h"
#include "forms/player_names_form.h"
#include "platform/text.h"
#include "presentation/both_screens.h"
#include "show/note.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kTwentyPointsIndex = 11;

// "Player 3" told so is no name, which the upper-case reset name is.
std::string Nameless(std::size_t index) { return "Player " + std::to_string(index + 1); }

void Form_Load(Show& show) {
  PlayerNamesForm& form = show.frmPlayerNames;
  for (std::size_t i = 0; i < kPlayers; ++i) {
    const int player = static_cast<int>(i) + 1;
    form.PenaltyBox(player).Value = show.state.PlayerPenalty[player] ? 1 : 0;
    const bool active = i < 2 || show.state.Players == 3;
    form.txtPlayerName[i].Enabled = active;
    form.Prompt(player).Visible = active;
    if (!active) continue;
    const std::string& name = show.frmMain.lblPlayer1[i].Caption;
    form.txtPlayerName[i].Text = name == Nameless(i) ? "" : name;
  }
}

void txtPlayerName_GotFocus(Show& show, std::size_t index) {
  PlayerNamesForm& form = show.frmPlayerNames;
  form.txtPlayerName[index].SelectAll();
  form.lblPlayerNamePrompt.Caption = "Enter Name For " + Nameless(index);
  form.Caption = form.lblPlayerNamePrompt.Caption;
}

void ClearNames(Show& show) {
  for (std::size_t i = 0; i < kPlayers; ++i) show.frmPlayerNames.txtPlayerName[i].Text = "";
}

void SetPenalties(Show& show, int value) {
  for (int player = 1; player <= kPlayers; ++player) show.frmPlayerNames.PenaltyBox(player).Value = value;
}

void cboPenaltyPoints_Click(Show& show) {
  ComboBox& list = show.frmPlayerNames.cboPenaltyPoints;
  const int index = list.ListIndex;
  if (index >= 0 && index < kTwentyPointsIndex) {
    show.state.PenaltyPoints = index;
  } else if (index == kTwentyPointsIndex) {
    show.state.PenaltyPoints = 20;
  } else {
    show.state.PenaltyPoints = 0;
    list.ListIndex = 0;
  }
}

void ReadPenaltyPoints(Show& show) {
  const ComboBox& list = show.frmPlayerNames.cboPenaltyPoints;
  const int index = list.ListIndex;
  if (index >= 0 && LeadingNumber(list.Text()) <= 10) {
    show.state.PenaltyPoints = index;
  } else {
    show.state.PenaltyPoints = index == kTwentyPointsIndex ? 20 : 0;
  }
}

void TakeName(Show& show, std::size_t index) {
  const std::string name = Trim(show.frmPlayerNames.txtPlayerName[index].Text);
  SetPlayerName(show, static_cast<int>(index) + 1, ToCapitals(name.empty() ? Nameless(index) : name));
}

void btnOK_Click(Show& show) {
  Note(show, EventKind::Name);
  PlayerNamesForm& form = show.frmPlayerNames;
  for (int player = 1; player <= kPlayers; ++player) {
    show.state.PlayerPenalty[player] = form.PenaltyBox(player).Value == 1;
  }
  TakeName(show, 0);
  TakeName(show, 1);
  if (show.state.Players == 3) {
    TakeName(show, 2);
  } else {
    SetPlayerName(show, 3, Nameless(2));
  }
  ReadPenaltyPoints(show);
  form.Unload();
}

}  // namespace

void mnuFileAddPlayerNames_Click(Show& show) {
  Form_Load(show);
  show.frmPlayerNames.txtPlayerName[0].SetFocus();
  txtPlayerName_GotFocus(show, 0);
  show.platform.dialogs.ShowModal(show.frmPlayerNames);
}

void lblPlayer1_DblClick(Show& show, int index) {
  const auto box = static_cast<std::size_t>(index);
  PlayerNamesForm& form = show.frmPlayerNames;
  form.lblHiddenPlayerNumber.Caption = NumberText(LeadingNumber(form.lblHiddenPlayerNumber.Caption) + 1);
  Form_Load(show);
  form.txtPlayerName[box].SetFocus();
  form.txtPlayerName[box].SelectAll();
  form.Caption = "Enter Name for " + Nameless(box);
  form.lblPlayerNamePrompt.Caption = "Enter " + Nameless(box) + " Name";
  show.platform.dialogs.ShowModal(form);
}

void AttachPlayerNamesHandlers(Show& show) {
  show.frmMain.mnuFileAddPlayerNames.OnClick = [&show] { mnuFileAddPlayerNames_Click(show); };
  PlayerNamesForm& form = show.frmPlayerNames;
  for (std::size_t i = 0; i < kPlayers; ++i) {
    show.frmMain.lblPlayer1[i].OnDblClick = [&show, i] { lblPlayer1_DblClick(show, static_cast<int>(i)); };
    form.txtPlayerName[i].OnGotFocus = [&show, i] { txtPlayerName_GotFocus(show, i); };
  }
  form.cboPenaltyPoints.OnClick = [&show] { cboPenaltyPoints_Click(show); };
  form.Command2.OnClick = [&show] { SetPenalties(show, 1); };
  form.Command1.OnClick = [&show] { SetPenalties(show, 0); };
  form.btnClearAll.OnClick = [&show] { ClearNames(show); };
  form.btnOK.OnClick = [&show] { btnOK_Click(show); };
  form.btnCancel.OnClick = [&form] { form.Unload(); };
  form.OnUnload = [&show] { ClearNames(show); };
}

}  // namespace pawnfield
