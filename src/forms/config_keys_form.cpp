#include "forms/config_keys_form.h"

namespace pawnfield {

ConfigKeysForm::ConfigKeysForm() : Form("frmConfigKeys") {
  Form::Caption = "Configure External Keyboard Keys";
  lblHeading.Caption = "Configure External Keyboard Keys";
  lblKey[0].Caption = "Undo <Ctrl><U>";
  lblKey[1].Caption = "Skip Question: <Ctrl><S>";
  lblKey[2].Caption = "Next Player: <Ctrl><N>";
  lblKey[3].Caption = "Enter Key Advances to Next Player";
  lblInfo.Caption = "You may assign a letter to the following functions - (letters are not case sensitive).";
  lblKeyPrompt[0].Caption = "Correct";
  lblKeyPrompt[1].Caption = "Incorrect";
  for (std::size_t i = 0; i < 2; ++i) {
    txtKey[i].ToolTipText = "Saved with the settings. The console itself judges with Y and N.";
  }
  btnKeyDefaults.Caption = "Restore Defaults";
  btnFinished.Caption = "Finished";
  btnCancel.Caption = "Cancel";
}

}  // namespace pawnfield
