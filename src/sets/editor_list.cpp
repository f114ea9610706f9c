#include "sets/editor_list.h"

#include <algorithm>
#include <vector>

#include "forms/editor_form.h"
#include "platform/text.h"
#include "sets/editor.h"
#include "sets/editor_navigation.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/show.h"

namespace pawnfield::editor {

namespace {

// Also where the boxes show the same text as before, so that typing brings nothing about.
void ShowQuestion(Show& show, int number) {
  show.frmEditor.EditQuestionNumber = number;
  DisplayEditQuestion(show);
  if (!IsBlank(ShownRecord(show)) || show.NumEditQuestions == 0) EnableEditorControls(show, true);
}

void TakeState(Show& show, const EditState& state) {
  show.EditSet.fill({});
  std::copy(state.Records.begin(), state.Records.end(), show.EditSet.begin());
  SetNumEditQuestions(show, state.Count);
  EditorForm& form = show.frmEditor;
  if (form.EditFileName != state.File) form.SetFile(state.File);
  form.EditDirty = !form.History.IsSaved();
  ShowQuestion(show, std::clamp(state.Number, 1, std::max(state.Count, 1)));
}

// A question that nobody has written a word of is no gap in the set once it is left.
int DropUnwritten(Show& show, int target) {
  const int left = show.frmEditor.EditQuestionNumber;
  if (left == target || left > show.NumEditQuestions || !IsBlank(RecordAt(show.EditSet, left))) return target;
  ShiftDown(show, left);
  SetNumEditQuestions(show, show.NumEditQuestions - 1);
  return target > left ? target - 1 : target;
}

bool Holds(const TriviaQuestion& question, const std::string& words) {
  return ToLower(question.QuestionText).find(words) != std::string::npos ||
         ToLower(question.AnswerText).find(words) != std::string::npos;
}

// The numbers of the questions that hold what is looked for.
std::vector<int> Found(Show& show) {
  const std::string words = ToLower(Trim(show.frmEditor.txtFind.Text));
  std::vector<int> numbers;
  for (int number = 1; number <= show.NumEditQuestions && !words.empty(); ++number) {
    if (Holds(RecordAt(show.EditSet, number), words)) numbers.push_back(number);
  }
  return numbers;
}

void GoToFound(Show& show, int from) {
  EditorForm& form = show.frmEditor;
  const std::vector<int> found = Found(show);
  if (found.empty()) {
    form.lblFound.Caption = Trim(form.txtFind.Text).empty() ? "" : "Not found";
    return;
  }
  auto next = std::lower_bound(found.begin(), found.end(), from);
  if (next == found.end()) next = found.begin();
  form.lblFound.Caption = std::to_string(next - found.begin() + 1) + " of " + std::to_string(found.size());
  if (*next != form.EditQuestionNumber) ShowQuestion(show, DropUnwritten(show, *next));
}

}  // namespace

void btnUndo_Click(Show& show) {
  EditHistory& history = show.frmEditor.History;
  if (history.CanUndo()) TakeState(show, history.Undo());
}

void btnRedo_Click(Show& show) {
  EditHistory& history = show.frmEditor.History;
  if (history.CanRedo()) TakeState(show, history.Redo());
}

void lstQuestions_Click(Show& show) {
  const int target = show.frmEditor.lstQuestions.SelectedItem + 1;
  if (target < 1 || target > kSetCapacity || target == show.frmEditor.EditQuestionNumber) return;
  ShowQuestion(show, DropUnwritten(show, target));
}

void MoveQuestion(Show& show, int from, int to) {
  const int count = show.NumEditQuestions;
  if (from < 0 || to < 0 || from >= count || to >= count || from == to) return;
  const auto record = [&show](int index) { return show.EditSet.begin() + index; };
  if (from < to) {
    std::rotate(record(from), record(from + 1), record(to + 1));
  } else {
    std::rotate(record(to), record(from), record(from + 1));
  }
  show.frmEditor.EditDirty = true;
  ShowQuestion(show, to + 1);
}

void RemoveQuestion(Show& show) {
  const int number = show.frmEditor.EditQuestionNumber;
  if (number > show.NumEditQuestions) return;
  show.frmEditor.EditDirty = true;
  ShiftDown(show, number);
  SetNumEditQuestions(show, show.NumEditQuestions - 1);
  ShowQuestion(show, std::clamp(number, 1, std::max(show.NumEditQuestions, 1)));
}

void btnDuplicateQuestion_Click(Show& show) {
  const int number = show.frmEditor.EditQuestionNumber;
  if (IsBlank(RecordAt(show.EditSet, number))) return;
  // The only question of a new set isn't counted before Next.
  if (number == show.NumEditQuestions + 1) SetNumEditQuestions(show, number);
  if (number > show.NumEditQuestions || show.NumEditQuestions >= kLastNumber) return;
  const TriviaQuestion copy = ShownRecord(show);
  ShiftUp(show, number + 1);
  RecordAt(show.EditSet, number + 1) = copy;
  SetNumEditQuestions(show, show.NumEditQuestions + 1);
  show.frmEditor.EditDirty = true;
  ShowQuestion(show, number + 1);
}

void txtFind_Change(Show& show) { GoToFound(show, show.frmEditor.EditQuestionNumber); }

void btnFindNext_Click(Show& show) { GoToFound(show, show.frmEditor.EditQuestionNumber + 1); }

void mnuEditFind_Click(Show& show) {
  show.frmEditor.txtFind.SetFocus();
  show.frmEditor.txtFind.SelectAll();
}

}  // namespace pawnfield::editor
