#include "controllers/config_keys.h"

#include "forms/config_keys_form.h"
#include "forms/main_form.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

std::string LetterIn(const TextBox& box) { return ToLower(Trim(box.Text)); }

void ShowLetters(Show& show, const std::string& correct, const std::string& incorrect) {
  show.frmConfigKeys.txtKey[0].Text = correct;
  show.frmConfigKeys.txtKey[1].Text = incorrect;
}

void btnFinished_Click(Show& show) {
  show.state.KeyCorrect = show.frmConfigKeys.txtKey[0].Text;
  show.state.KeyIncorrect = show.frmConfigKeys.txtKey[1].Text;
  show.frmConfigKeys.Unload();
}

}  // namespace

void btnEditKeyboardCtrl_Click(Show& show) {
  ShowLetters(show, show.state.KeyCorrect, show.state.KeyIncorrect);
  show.platform.dialogs.ShowModal(show.frmConfigKeys);
}

void txtKey_Change(Show& show, int index) {
  const auto& boxes = show.frmConfigKeys.txtKey;
  TextBox& edited = show.frmConfigKeys.txtKey[static_cast<std::size_t>(index)];
  const std::string letter = LetterIn(edited);
  if (letter.empty()) return;
  const bool isLetter = letter[0] >= 'a' && letter[0] <= 'z';
  if (!isLetter || LetterIn(boxes[0]) == LetterIn(boxes[1])) edited.Text = "";
}

void AttachConfigKeysHandlers(Show& show) {
  ConfigKeysForm& form = show.frmConfigKeys;
  show.frmMain.btnEditKeyboardCtrl.OnClick = [&show] { btnEditKeyboardCtrl_Click(show); };
  for (std::size_t i = 0; i < 2; ++i) {
    form.txtKey[i].OnChange = [&show, i] { txtKey_Change(show, static_cast<int>(i)); };
    form.txtKey[i].OnGotFocus = [&form, i] { form.txtKey[i].SelectAll(); };
  }
  form.btnKeyDefaults.OnClick = [&show] { ShowLetters(show, "Y", "N"); };
  form.btnFinished.OnClick = [&show] { btnFinished_Click(show); };
  form.btnCancel.OnClick = [&form] { form.Unload(); };
}

}  // namespace pawnfield
