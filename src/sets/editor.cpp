#include "sets/editor.h"

#include <cmath>
#include <initializer_list>
#include <limits>

#include "forms/editor_form.h"
#include "forms/main_form.h"
#include "media/sound_channels.h"
#include "platform/set_ports.h"
#include "platform/text.h"
#include "presentation/text_fitting.h"
#include "sets/editor_history.h"
#include "sets/editor_picture.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/show.h"

namespace pawnfield::editor {

namespace {

constexpr int kLargestPreview = 80;
constexpr double kPreviewMarginX = 100;
constexpr double kPreviewMarginY = 50;
constexpr double kColors = 16777216;

void SetShown(std::initializer_list<Control*> controls, bool shown) {
  for (Control* control : controls) control->Visible = shown;
}

void EnableFontButtons(EditorForm& form, bool enabled) {
  for (Button* button : {&form.btnFont, &form.btnFontColor, &form.btnDefault}) button->Enabled = enabled;
}

// The preview in the font of the show. A size that is none leaves the preview's.
void TakeRecordFont(TextBox& preview, const TriviaQuestion& record) {
  Font font = QuestionFont(record);
  const double size = LeadingNumber(record.FontSize);
  font.Size = size > 0 ? size : preview.Font->Size;
  preview.Font = font;
}

void TakeRecordColor(TextBox& preview, const TriviaQuestion& record) {
  preview.ForeColor = kWhite;
  if (Trim(record.FontColor).empty()) return;
  const auto number = ParseNumber(record.FontColor);
  if (!number) throw RuntimeError(kErrorTypeMismatch, "Type mismatch");
  preview.ForeColor = static_cast<Color>(std::fmod(*number, kColors));
}

// A medium has no wording: text left from the question before would be taken for its own.
void HideWording(EditorForm& form) {
  SetShown({&form.lblQuestionPrompt, &form.txtDisplayQuestion, &form.txtEnterQuestion}, false);
  form.txtEnterQuestion.Text = std::string();
  EnableFontButtons(form, false);
}

void ShowPictureRecord(Show& show, const std::string& path) {
  EditorForm& form = show.frmEditor;
  form.txtPath.Text = path;
  SetShown({&form.picQuestionPicture, &form.imgQuestionPicture, &form.lblPath, &form.txtPath}, true);
  HideWording(form);
  DisplayPicture(show, path);
}

void ShowSoundRecord(EditorForm& form, const std::string& path) {
  form.imgQuestionPicture.Picture = std::string();
  form.picQuestionPicture.Visible = false;
  form.txtPath.Text = path;
  SetShown({&form.lblPath, &form.txtPath, &form.frmSoundButtons}, true);
  HideWording(form);
}

// A blank question holds everything up until it is written, wherever it was come to from.
void BlockAllButTheWayBack(Show& show) {
  EnableEditorControls(show, false);
  show.frmEditor.btnBack.Enabled = true;
}

void ShowTextRecord(Show& show, const TriviaQuestion& record, const std::string& text) {
  EditorForm& form = show.frmEditor;
  SetShown({&form.picQuestionPicture, &form.lblPath, &form.txtPath}, false);
  SetShown({&form.lblQuestionPrompt, &form.txtDisplayQuestion, &form.txtEnterQuestion}, true);
  EnableFontButtons(form, true);
  if (form.txtEnterQuestion.Text.Get() != text) {
    form.txtEnterQuestion.Text = text;
    txtEnterQuestion_Change(show);
  }
  TakeRecordFont(form.txtDisplayQuestion, record);
  form.txtDisplayQuestion.Text = text;
  const bool blank = text.empty() && Trim(record.AnswerText).empty();
  if (blank && show.NumEditQuestions > 0) BlockAllButTheWayBack(show);
}

void ShowRecord(Show& show) {
  EditorForm& form = show.frmEditor;
  form.frmSoundButtons.Visible = false;
  StopSoundClip(show);
  const TriviaQuestion& record = ShownRecord(show);
  const std::string text = Trim(record.QuestionText);
  form.txtAnswer.Text = Trim(record.AnswerText);
  form.btnPicture.Enabled = true;
  form.btnSound.Enabled = true;
  form.lblQuestion.Caption = "Question " + std::to_string(form.EditQuestionNumber) + ":";
  const QuestionKind kind = KindOfQuestion(text);
  if (kind == QuestionKind::Picture) ShowPictureRecord(show, text);
  if (kind == QuestionKind::Sound) ShowSoundRecord(form, text);
  if (kind == QuestionKind::Text) {
    ShowTextRecord(show, record, text);
    // A colour that is none is reported once all else stands.
    TakeRecordColor(form.txtDisplayQuestion, record);
  }
}

void PrepareSpelling(Show& show) {
  EditorForm& form = show.frmEditor;
  const std::string problem = show.platform.spelling.Problem();
  form.chkSpellChecker.Enabled = problem.empty();
  form.chkSpellChecker.Value = problem.empty() && show.state.SpellChecker ? 1 : 0;
  form.lblSpelling.Caption = problem;
}

void PrepareForm(Show& show) {
  EditorForm& form = show.frmEditor;
  SetShown({&form.frmSoundButtons, &form.lblPath, &form.txtPath}, false);
  form.btnPicture.Enabled = true;
  form.btnSound.Enabled = true;
  form.txtDisplayQuestion.Visible = true;
  form.EditDirty = false;
  form.SetFile("");
  form.EditQuestionNumber = 1;
  form.EditQuestionKind = "T";
  ClearEditorDisplay(show);
  ResetEditSet(show);
  show.NumEditQuestions = 0;
  if (show.EditCurrentSet) {
    CopyGameSetToEdit(show);
    form.SetFile(show.state.LoadedSetPath);
  }
  SetNumEditQuestions(show, show.NumEditQuestions);
  BeginHistory(show);
  PrepareSpelling(show);
  DisplayEditQuestion(show);
}

void FitPreview(Show& show) {
  EditorForm& form = show.frmEditor;
  Label& measure = form.lblQuestionAutoResize;
  Font font = form.txtDisplayQuestion.Font;
  const double width = form.txtDisplayQuestion.Width - kPreviewMarginX;
  const double height = form.txtDisplayQuestion.Height - kPreviewMarginY;
  constexpr double kAny = std::numeric_limits<double>::infinity();
  // The limit itself still fits.
  const FitLimits limits{kLargestPreview, width, kAny, std::nextafter(height, kAny)};
  font.Size = FittingSize(show.platform.text, font, form.txtEnterQuestion.Text, limits);
  measure.Width = width;
  measure.Caption = form.txtEnterQuestion.Text.Get();
  measure.Font = font;
  form.txtDisplayQuestion.Font = font;
}

}  // namespace

void btnStartGame_Click(Show& show) {
  if (Trim(show.frmMain.cboList.Text()).empty()) {
    ShowEditor(show);
  } else {
    show.platform.dialogs.ShowModal(show.frmEditChoice);
  }
}

void EditChoice_Click(Show& show, bool current) {
  show.EditCurrentSet = current;
  show.frmEditChoice.Visible = false;
  ShowEditor(show);
  show.frmEditChoice.Unload();
}

void ShowEditor(Show& show, const std::function<void()>& first) {
  EditorForm& form = show.frmEditor;
  form.Reset();
  // The form is loaded and then activated, and an error in a bad record must not prevent it from being shown.
  form.Dispatch([&show] { PrepareForm(show); }, "Form_Load");
  StopSoundClip(show);
  if (first) form.Dispatch(first, "Form_Load");
  // A medium has no wording to be written.
  (form.txtEnterQuestion.Visible ? form.txtEnterQuestion : form.txtAnswer).SetFocus();
  show.platform.dialogs.ShowModal(form);
}

void ResetEditSet(Show& show) { show.EditSet.fill({}); }

TriviaQuestion& ShownRecord(Show& show) { return RecordAt(show.EditSet, show.frmEditor.EditQuestionNumber); }

void DisplayEditQuestion(Show& show) {
  int& number = show.frmEditor.EditQuestionNumber;
  const bool outside = number < 1 || number > kSetCapacity;
  if (outside) number = 1;
  ShowRecord(show);
  if (!outside) return;
  EnableEditorControls(show, true);
  throw SubscriptError();
}

void ClearEditorDisplay(Show& show) {
  EditorForm& form = show.frmEditor;
  form.txtDisplayQuestion.Text = std::string();
  form.txtDisplayQuestion.Font = Font{"Comic Sans MS", 28, true, true};
  form.txtDisplayQuestion.ForeColor = kWhite;
  form.txtEnterQuestion.Text = std::string();
  form.txtAnswer.Text = std::string();
  form.lblQuestion.Caption = "Question 1:";
  form.lblAnswer.Caption = "Answer:";
  form.picQuestionPicture.Visible = false;
  form.lblQuestion.Visible = true;
}

void EnableEditorControls(Show& show, bool enabled) {
  EditorForm& form = show.frmEditor;
  for (Control* control : std::initializer_list<Control*>{
           &form.btnImport, &form.btnInsertQuestion, &form.btnBack10, &form.btnBack, &form.btnForward,
           &form.btnForward10, &form.btnNext, &form.btnNewFile, &form.btnFileOpen, &form.btnSave, &form.btnSaveAs,
           &form.btnPrint, &form.mnuFileNew, &form.mnuFileOpen, &form.mnuFileSave, &form.mnuSaveAs,
           &form.mnuFilePrint}) {
    control->Enabled = enabled;
  }
}

void UpdateEditorControls(Show& show) { EnableEditorControls(show, !IsBlank(ShownRecord(show))); }

void FocusWording(Show& show) {
  TextBox& wording = show.frmEditor.txtEnterQuestion;
  if (wording.Visible) wording.SetFocus();
}

void SetNumEditQuestions(Show& show, int count) {
  show.NumEditQuestions = count;
  show.frmEditor.lblNumQuestions.Caption = std::to_string(count);
}

void txtEnterQuestion_Change(Show& show) {
  EditorForm& form = show.frmEditor;
  FitPreview(show);
  const std::string typed = Trim(form.txtEnterQuestion.Text);
  TriviaQuestion& record = ShownRecord(show);
  if (typed != Trim(record.QuestionText)) {
    form.EditDirty = true;
    record.QuestionText = typed;
    form.txtDisplayQuestion.Text = typed;
  }
  UpdateEditorControls(show);
}

void txtEnterQuestion_LostFocus(Show& show) {
  TriviaQuestion& record = ShownRecord(show);
  if (Trim(record.FontName).empty()) {
    record.FontName = "Courier New";
    record.FontSize = "28";
    record.FontBold = true;
    record.FontItalic = true;
  }
  if (Trim(record.FontColor).empty()) record.FontColor = "16777215";
}

void txtAnswer_Change(Show& show) {
  TriviaQuestion& record = ShownRecord(show);
  const std::string typed = Trim(show.frmEditor.txtAnswer.Text);
  if (typed == Trim(record.AnswerText)) return;
  show.frmEditor.EditDirty = true;
  record.AnswerText = typed;
  UpdateEditorControls(show);
}

void chkSpellChecker_Click(Show& show) { show.state.SpellChecker = show.frmEditor.chkSpellChecker.Value == 1; }

void txtDisplayQuestion_Click(Show& show) { show.frmEditor.txtEnterQuestion.SetFocus(); }

}  // namespace pawnfield::editor
