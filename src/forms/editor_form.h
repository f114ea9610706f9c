// frmEditor and frmEditChoice: the set editor's controls, their captions, sizes and states, and what the form keeps of
// the set that is open in it. Owned by the show.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "data/edit_history.h"
#include "data/trivia_set.h"
#include "platform/common_dialog.h"
#include "platform/controls.h"

namespace pawnfield {

struct EditChoiceForm : Form {
  EditChoiceForm();
  Label lblPrompt{*this, "lblPrompt"};
  Button btnCurrent{*this, "btnCurrent"};
  Button New{*this, "New"};
};

// A list whose rows a user drags, removes and copies.
class QuestionList : public ListView {
 public:
  using ListView::ListView;
  // A user drags a row to the place of another, and presses Delete or Ctrl+D on the selected one. Rows are counted
  // from 0.
  void Move(int from, int to);
  void Delete();
  void Duplicate();
  std::function<void(int from, int to)> OnMove;
  std::function<void()> OnDelete, OnDuplicate;
};

class EditorForm : public Form {
 public:
  EditorForm();
  // Every control as the form's design has it, and an empty set's state.
  void Reset();

  // A user drops a file on the form's window.
  void DropFile(const std::string& path);
  std::function<void(const std::string& path)> OnDropFile;

  // The set is that file's from here on; empty for a new one. The window says so.
  void SetFile(const std::string& path);

  // Counted from 1.
  int EditQuestionNumber = 1;
  Property<bool> EditDirty{*this, PropertyId::Value, false};
  // Empty for a new set.
  std::string EditFileName;
  std::string EditQuestionKind = "T";
  EditHistory History;
  // The records that were checked last, and what was found about each.
  std::vector<TriviaQuestion> Checked;
  std::vector<std::string> Findings;
  // The pictures and sounds that were asked about, by their whole paths, and what is wrong with each; empty while that
  // isn't known, and when nothing is.
  std::map<std::string, std::string> Files;
  CommonDialog cd1EditorDialog;
  CommonDialog cd1FontDialog;

  Menu mnuFile{*this, "mnuFile"};
  Menu mnuFileNew{*this, "mnuFileNew"};
  Menu mnuFileOpen{*this, "mnuFileOpen"};
  Menu mnuFileSave{*this, "mnuFileSave"};
  Menu mnuSaveAs{*this, "mnuSaveAs"};
  Menu mnuFilePrint{*this, "mnuFilePrint"};
  Menu mnuImport{*this, "mnuImport"};
  Menu mnuExport{*this, "mnuExport"};
  Menu mnuPackSet{*this, "mnuPackSet"};
  Menu mnuFileExit{*this, "mnuFileExit"};

  Menu mnuEdit{*this, "mnuEdit"};
  Menu mnuEditUndo{*this, "mnuEditUndo"};
  Menu mnuEditRedo{*this, "mnuEditRedo"};
  Menu mnuEditDuplicate{*this, "mnuEditDuplicate"};
  Menu mnuEditFind{*this, "mnuEditFind"};

  Button btnUndo{*this, "btnUndo"};
  Button btnRedo{*this, "btnRedo"};
  TextBox txtFind{*this, "txtFind"};
  Button btnFindNext{*this, "btnFindNext"};
  Label lblFound{*this, "lblFound"};
  QuestionList lstQuestions{*this, "lstQuestions"};
  Button btnDuplicateQuestion{*this, "btnDuplicateQuestion"};

  Button btnNewFile{*this, "btnNewFile"};
  Button btnFileOpen{*this, "btnFileOpen"};
  Button btnSave{*this, "btnSave"};
  Button btnSaveAs{*this, "btnSaveAs"};
  Button btnPrint{*this, "btnPrint"};
  Button btnText{*this, "btnText"};
  Button btnPicture{*this, "btnPicture"};
  Button btnSound{*this, "btnSound"};
  Button btnFont{*this, "btnFont"};
  Button btnFontColor{*this, "btnFontColor"};
  Button btnDefault{*this, "btnDefault"};
  Button btnImport{*this, "btnImport"};
  Label lblImport{*this, "lblImport"};

  Label lblQuestion{*this, "lblQuestion"};
  Label lblNumberOfQuestion{*this, "lblNumberOfQuestion"};
  Label lblNumQuestions{*this, "lblNumQuestions"};
  TextBox txtDisplayQuestion{*this, "txtDisplayQuestion"};
  Label lblQuestionAutoResize{*this, "lblQuestionAutoResize"};
  PictureBox picQuestionPicture{*this, "picQuestionPicture"};
  Image imgQuestionPicture{*this, "imgQuestionPicture"};
  Frame frmSoundButtons{*this, "frmSoundButtons"};
  Button btnPlay{*this, "btnPlay"};
  Button btnStop{*this, "btnStop"};

  Label lblQuestionPrompt{*this, "lblQuestionPrompt"};
  TextBox txtEnterQuestion{*this, "txtEnterQuestion"};
  Label lblPath{*this, "lblPath"};
  TextBox txtPath{*this, "txtPath"};
  Label lblAnswer{*this, "lblAnswer"};
  TextBox txtAnswer{*this, "txtAnswer"};
  CheckBox chkSpellChecker{*this, "chkSpellChecker"};
  // Why spelling can't be checked.
  Label lblSpelling{*this, "lblSpelling"};

  Button btnBack10{*this, "btnBack10"};
  Button btnBack{*this, "btnBack"};
  Button btnForward{*this, "btnForward"};
  Button btnForward10{*this, "btnForward10"};
  Button btnNext{*this, "btnNext"};
  Button btnInsertQuestion{*this, "btnInsertQuestion"};
  Button btnDeleteQuestion{*this, "btnDeleteQuestion"};

 private:
  void SetCaptions();
};

}  // namespace pawnfield
