#include "forms/player_names_form.h"

namespace pawnfield {

PlayerNamesForm::PlayerNamesForm() : Form("frmPlayerNames") {
  lblPlayerNamePrompt.Caption = "Enter Player Name";
  lblInstructions.Caption = "Check the box next to a player's name to enable penalty point deductions.";
  lblHiddenPlayerNumber.Caption = "0";
  lblHiddenPlayerNumber.Visible = false;
  lblPlayer1Prompt.Caption = "Player 1";
  lblPlayer2Prompt.Caption = "Player 2";
  lblPlayer3Prompt.Caption = "Player 3";
  lblPenaltyPoints.Caption = "Buzzer Press Penalty Amount";
  Label1.Caption = "Buzzer press penalty applies to Trivia Mode C only";
  for (Control* control : {static_cast<Control*>(&chkPlayer1Penalty), static_cast<Control*>(&chkPlayer2Penalty),
                           static_cast<Control*>(&chkPlayer3Penalty), static_cast<Control*>(&cboPenaltyPoints),
                           static_cast<Control*>(&Command1), static_cast<Control*>(&Command2)}) {
    control->ToolTipText = "Saved with the settings. No press costs points in this version.";
  }
  btnClearAll.Caption = "Clear Names";
  Command2.Caption = "Set Penalties";
  Command1.Caption = "Clear Penalties";
  btnOK.Caption = "OK";
  btnCancel.Caption = "Cancel";
}

}  // namespace pawnfield
