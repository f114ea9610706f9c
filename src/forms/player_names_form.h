// frmPlayerNames, the dialog of the players' names and the buzzer press penalties.
#pragma once

#include "data/players.h"
#include "platform/controls.h"

namespace pawnfield {

struct PlayerNamesForm : Form {
  PlayerNamesForm();

  // By player 1..3.
  Label& Prompt(int player) {
    return *PerPlayer<Label*>(&lblPlayer1Prompt, &lblPlayer2Prompt, &lblPlayer3Prompt)[player];
  }
  CheckBox& PenaltyBox(int player) {
    return *PerPlayer<CheckBox*>(&chkPlayer1Penalty, &chkPlayer2Penalty, &chkPlayer3Penalty)[player];
  }

  Label lblPlayerNamePrompt{*this, "lblPlayerNamePrompt"};
  Label lblInstructions{*this, "lblInstructions"};
  // Never seen: counts the openings by a double click.
  Label lblHiddenPlayerNumber{*this, "lblHiddenPlayerNumber"};
  Label lblPlayer1Prompt{*this, "lblPlayer1Prompt"};
  Label lblPlayer2Prompt{*this, "lblPlayer2Prompt"};
  Label lblPlayer3Prompt{*this, "lblPlayer3Prompt"};
  ControlArray<TextBox, kPlayers> txtPlayerName{*this, "txtPlayerName"};
  CheckBox chkPlayer1Penalty{*this, "chkPlayer1Penalty"};
  CheckBox chkPlayer2Penalty{*this, "chkPlayer2Penalty"};
  CheckBox chkPlayer3Penalty{*this, "chkPlayer3Penalty"};
  Label lblPenaltyPoints{*this, "lblPenaltyPoints"};
  ComboBox cboPenaltyPoints{*this, "cboPenaltyPoints"};
  Label Label1{*this, "Label1"};
  Button btnClearAll{*this, "btnClearAll"};
  // Sets all three check boxes, and clears them.
  Button Command2{*this, "Command2"};
  Button Command1{*this, "Command1"};
  Button btnOK{*this, "btnOK"};
  Button btnCancel{*this, "btnCancel"};
};

}  // namespace pawnfield
