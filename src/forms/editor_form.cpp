#include "forms/editor_form.h"

#include "data/trivia_set.h"

namespace pawnfield {

namespace {

// Two thirds of the audience's screen: a text of the preview's largest size, 80, is shown there at its largest, 120.
constexpr double kPreviewWidth = 10240;
constexpr double kPreviewHeight = 7680;
// The middle tone of the ground behind the audience's questions.
constexpr Color kPreviewField = 0x441E12;

}  // namespace

EditChoiceForm::EditChoiceForm() : Form("frmEditChoice") {
  Form::Caption = "Edit";
  lblPrompt.Caption = "Edit Current Set or Create New Set?";
  btnCurrent.Caption = "Current";
  New.Caption = "New";
}

void QuestionList::Move(int from, int to) {
  if (IsReachable() && OnMove) Raise([this, from, to] { OnMove(from, to); }, "_Move");
}

void QuestionList::Delete() {
  if (IsReachable() && OnDelete) Raise(OnDelete, "_Delete");
}

void QuestionList::Duplicate() {
  if (IsReachable() && OnDuplicate) Raise(OnDuplicate, "_Duplicate");
}

EditorForm::EditorForm() : Form("frmEditor") {
  SetCaptions();
  for (Control* panel : std::initializer_list<Control*>{&txtDisplayQuestion, &picQuestionPicture}) {
    panel->MoveTo(0, 0, kPreviewWidth, kPreviewHeight);
  }
  txtDisplayQuestion.BackColor = kPreviewField;
  frmSoundButtons.MoveTo(2620, 3090, 5000, 1500);
  imgQuestionPicture.Container = &picQuestionPicture;
  btnPlay.Container = &frmSoundButtons;
  btnStop.Container = &frmSoundButtons;
  txtEnterQuestion.MaxLength = kQuestionLength;
  txtAnswer.MaxLength = kAnswerLength;
  lstQuestions.ColumnHeaders = {"No.", "Kind", "Question", "Answer", "Check"};
  Reset();
}

void EditorForm::DropFile(const std::string& path) {
  if (Enabled && OnDropFile) Raise([this, path] { OnDropFile(path); }, "_DropFile");
}

void EditorForm::SetFile(const std::string& path) {
  EditFileName = path;
  Notify(PropertyId::Text);
}

void EditorForm::SetCaptions() {
  Form::Caption = "Pawnfield Editor";
  mnuFile.Caption = "&File";
  mnuFileNew.Caption = "&New";
  mnuFileOpen.Caption = "&Open...";
  mnuFileSave.Caption = "&Save";
  mnuSaveAs.Caption = "Save &As...";
  mnuFilePrint.Caption = "&Print...";
  mnuImport.Caption = "&Import questions...";
  mnuExport.Caption = "&Export questions...";
  mnuPackSet.Caption = "Pac&k set...";
  mnuFileExit.Caption = "E&xit";
  mnuEdit.Caption = "&Edit";
  mnuEditDuplicate.Caption = "D&uplicate Question";
  mnuEditFind.Caption = "&Find...";
  btnUndo.Caption = "Undo";
  btnRedo.Caption = "Redo";
  btnFindNext.Caption = "Find Next";
  btnDuplicateQuestion.Caption = "Duplicate";
  btnDuplicateQuestion.ToolTipText = "Add a copy of this question behind it.";
  btnNewFile.Caption = "New";
  btnFileOpen.Caption = "Open";
  btnSave.Caption = "Save";
  btnSaveAs.Caption = "Save As";
  btnPrint.Caption = "Print";
  btnText.Caption = "Text";
  btnPicture.Caption = "Picture";
  btnSound.Caption = "Sound";
  btnText.ToolTipText = "Write a text.";
  btnPicture.ToolTipText = "Insert an image.";
  btnSound.ToolTipText = "Insert a sound clip.";
  btnFont.Caption = "Font";
  btnFontColor.Caption = "Font Color";
  btnDefault.Caption = "Default";
  btnDefault.ToolTipText = "Show the text in the usual font.";
  btnImport.Caption = "Import";
  btnImport.ToolTipText = "Import a set from Ostara Panel";
  lblImport.Caption = "Import trivia sets from Ostara Panel";
  lblNumberOfQuestion.Caption = "Number of Questions in Current Set:";
  lblQuestionPrompt.Caption = "Question:";
  lblPath.Caption = "Path:";
  btnPlay.Caption = "Play";
  btnStop.Caption = "Stop";
  chkSpellChecker.Caption = "Enable Spell Checker";
  chkSpellChecker.ToolTipText = "Underlines words that are misspelt; a right click on one suggests others.";
  btnBack10.Caption = "Back 10";
  btnBack.Caption = "Back";
  btnForward.Caption = "Forward";
  btnForward10.Caption = "Forward 10";
  btnNext.Caption = "Next";
  btnInsertQuestion.Caption = "Insert Question";
  btnDeleteQuestion.Caption = "Delete Question";
}

void EditorForm::Reset() {
  for (Control* control : Controls()) {
    control->Visible = true;
    control->Enabled = true;
  }
  for (Control* hidden : std::initializer_list<Control*>{&lblQuestionAutoResize, &picQuestionPicture, &frmSoundButtons,
                                                         &lblPath, &txtPath}) {
    hidden->Visible = false;
  }
  for (TextBox* box : {&txtDisplayQuestion, &txtEnterQuestion, &txtPath, &txtAnswer, &txtFind})
    box->Text = std::string();
  imgQuestionPicture.Picture = std::string();
  lblFound.Caption = std::string();
  History.Begin({});
  Checked.clear();
  Findings.clear();
  Files.clear();
  chkSpellChecker.Value = 0;
  EditQuestionNumber = 1;
  EditDirty = false;
  EditFileName.clear();
  EditQuestionKind = "T";
  cd1EditorDialog = {};
  ActiveControl = nullptr;
}

}  // namespace pawnfield
