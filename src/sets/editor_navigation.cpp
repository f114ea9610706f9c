#include "sets/editor_navigation.h"

#include <algorithm>

#include "forms/editor_form.h"
#include "platform/text.h"
#include "sets/editor.h"
#include "sets/set_parser.h"
#include "show/show.h"

namespace pawnfield::editor {

namespace {

constexpr int kStride = 10;

bool IsShownBlank(Show& show) { return Trim(ShownRecord(show).QuestionText).empty(); }

// A blank question that is left doesn't count any more.
void DropBlank(Show& show) {
  if (IsShownBlank(show)) SetNumEditQuestions(show, show.NumEditQuestions - 1);
}

bool MayDelete(Show& show) {
  if (IsBlank(ShownRecord(show))) return true;
  const std::string number = std::to_string(show.frmEditor.EditQuestionNumber);
  return show.platform.dialogs.Ask(
             {"Would you like to delete question " + number + "?", BoxKind::YesNo, BoxAnswer::No, "Delete", "Keep It"},
             kAppTitle) == BoxAnswer::Yes;
}

// The only question of a new set isn't counted before Next, and what is being written must not be passed over.
void CountWritten(Show& show) {
  const int number = show.frmEditor.EditQuestionNumber;
  if (number == show.NumEditQuestions + 1 && !IsShownBlank(show)) SetNumEditQuestions(show, number);
}

void GoTo(Show& show, int number) {
  show.frmEditor.EditQuestionNumber = number;
  DisplayEditQuestion(show);
}

}  // namespace

// Wraps from the first question to the last.
void btnBack_Click(Show& show) {
  const int number = show.frmEditor.EditQuestionNumber;
  if (number >= 2) {
    DropBlank(show);
    GoTo(show, number - 1);
  } else if (number == 1 && show.NumEditQuestions >= 1) {
    DropBlank(show);
    GoTo(show, show.NumEditQuestions);
  } else {
    GoTo(show, 1);
  }
}

void btnBack10_Click(Show& show) {
  if (show.NumEditQuestions <= 0) return;
  DropBlank(show);
  const int number = show.frmEditor.EditQuestionNumber;
  GoTo(show, number > kStride ? number - kStride : 1);
}

// Wraps from the last question to the first.
void btnForward_Click(Show& show) {
  const int number = show.frmEditor.EditQuestionNumber;
  if (number > 0 && number < kLastNumber && number < show.NumEditQuestions) {
    GoTo(show, number + 1);
    return;
  }
  if (show.NumEditQuestions >= 1) DropBlank(show);
  GoTo(show, 1);
}

void btnForward10_Click(Show& show) {
  if (show.NumEditQuestions <= 0) return;
  GoTo(show, std::min(show.frmEditor.EditQuestionNumber + kStride, show.NumEditQuestions));
}

void btnNext_Click(Show& show) {
  EditorForm& form = show.frmEditor;
  if (!IsShownBlank(show)) {
    if (form.EditQuestionNumber < kLastNumber) {
      ++form.EditQuestionNumber;
      if (IsShownBlank(show)) SetNumEditQuestions(show, form.EditQuestionNumber);
    } else {
      form.EditQuestionNumber = 1;
    }
  }
  DisplayEditQuestion(show);
  // A new question keeps everything else off, and there must be a way back from it.
  form.btnBack.Enabled = true;
  FocusWording(show);
}

void btnInsertQuestion_Click(Show& show) {
  CountWritten(show);
  const int number = show.frmEditor.EditQuestionNumber;
  if (show.NumEditQuestions >= kLastNumber || number > show.NumEditQuestions) return;
  ShiftUp(show, number);
  ShownRecord(show) = TriviaQuestion();
  ShownRecord(show).QuestionType = "T";
  SetNumEditQuestions(show, show.NumEditQuestions + 1);
  show.frmEditor.EditDirty = true;
  DisplayEditQuestion(show);
  EnableEditorControls(show, false);
  // The button that was pressed hands the focus on to its neighbour, which deletes.
  FocusWording(show);
}

void btnDeleteQuestion_Click(Show& show) {
  EditorForm& form = show.frmEditor;
  if (form.EditQuestionNumber > show.NumEditQuestions || !MayDelete(show)) return;
  form.EditDirty = true;
  ShiftDown(show, form.EditQuestionNumber);
  if (form.EditQuestionNumber == show.NumEditQuestions) --form.EditQuestionNumber;
  SetNumEditQuestions(show, show.NumEditQuestions - 1);
  DisplayEditQuestion(show);
  EnableEditorControls(show, true);
  form.btnDeleteQuestion.Enabled = true;
}

void ShiftUp(Show& show, int n) {
  for (int i = show.NumEditQuestions - 1; i >= n - 1; --i) {
    show.EditSet[static_cast<std::size_t>(i) + 1] = show.EditSet[static_cast<std::size_t>(i)];
  }
}

void ShiftDown(Show& show, int n) {
  for (auto i = static_cast<std::size_t>(n - 1); i < static_cast<std::size_t>(show.NumEditQuestions); ++i) {
    // Nothing stands behind the last record of a full set.
    show.EditSet[i] = i + 1 < show.EditSet.size() ? show.EditSet[i + 1] : TriviaQuestion();
  }
}

}  // namespace pawnfield::editor
