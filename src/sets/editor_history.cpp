#include "sets/editor_history.h"

#include <algorithm>
#include <cctype>

#include "forms/editor_form.h"
#include "platform/escapes.h"
#include "platform/text.h"
#include "sets/media_check.h"
#include "sets/media_paths.h"
#include "sets/set_check.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/show.h"

namespace pawnfield::editor {

namespace {

constexpr std::size_t kFirstWords = 80;

EditState StateOf(Show& show) {
  EditState state;
  state.Count = show.NumEditQuestions;
  state.File = show.frmEditor.EditFileName;
  state.Number = show.frmEditor.EditQuestionNumber;
  const TriviaQuestion blank;
  auto last = show.EditSet.end();
  while (last != show.EditSet.begin() && *(last - 1) == blank) --last;
  state.Records.assign(show.EditSet.begin(), last);
  return state;
}

void NoteEdit(Show& show, const std::string& what, const EditState& before) {
  EditorForm& form = show.frmEditor;
  EditState state = StateOf(show);
  if (what.empty()) {
    if (state.Number != before.Number) form.History.Settle();
    form.History.Absorb(std::move(state));
  } else if (!state.HoldsSame(before)) {
    form.History.Take(std::move(state), what);
    form.EditDirty = true;
  }
  if (!form.EditDirty) form.History.MarkSaved();
}

// Takes some tens of milliseconds for a full set, and nothing where the set is the one that was checked last.
void CheckRecords(Show& show) {
  EditorForm& form = show.frmEditor;
  std::vector<TriviaQuestion> records = StateOf(show).Records;
  if (records == form.Checked) return;
  form.Findings.assign(kSetCapacity, "");
  const int count = CountQuestions(show.EditSet);
  for (const SetFinding& finding : CheckSet(show.platform.text, show.EditSet, count, RoomForWordings(show))) {
    std::string& text = form.Findings.at(static_cast<std::size_t>(finding.Question) - 1);
    text += (text.empty() ? "" : "; ") + finding.Sentence;
  }
  form.Checked = std::move(records);
}

// The whole path of a question's picture or sound; empty for a text.
std::string FileOf(Show& show, const TriviaQuestion& question) {
  const std::string text = Trim(question.QuestionText);
  return KindOfQuestion(text) == QuestionKind::Text ? "" : WholePath(show, text);
}

// A file that can't be shown comes before what is only to be looked at.
std::string FoundAbout(Show& show, std::size_t i) {
  const EditorForm& form = show.frmEditor;
  std::string findings = i < form.Findings.size() ? form.Findings[i] : "";
  const auto file = form.Files.find(FileOf(show, show.EditSet[i]));
  if (file == form.Files.end() || file->second.empty()) return findings;
  std::string text = file->second;
  text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text + (findings.empty() ? "" : "; ") + findings;
}

ListView::Row RowOf(Show& show, std::size_t i) {
  const TriviaQuestion& question = show.EditSet[i];
  return {std::to_string(i + 1), KindWord(question), FirstLetters(WordingOf(question), kFirstWords),
          FirstLetters(Trim(question.AnswerText), kFirstWords), FoundAbout(show, i)};
}

void ShowStep(Button& button, Menu& entry, const char* verb, const std::string& what) {
  button.Enabled = !what.empty();
  entry.Enabled = !what.empty();
  const std::string text = what.empty() ? verb : std::string(verb) + ": " + what;
  button.ToolTipText = text;
  entry.Caption = "&" + text;
}

bool CanDuplicate(Show& show) {
  const int number = show.frmEditor.EditQuestionNumber;
  if (number < 1 || number > kSetCapacity || show.NumEditQuestions >= kSetCapacity - 1) return false;
  const TriviaQuestion& shown = show.EditSet[static_cast<std::size_t>(number) - 1];
  return !IsBlank(shown);
}

void ShowList(Show& show) {
  EditorForm& form = show.frmEditor;
  const int shown = std::max(show.NumEditQuestions, form.EditQuestionNumber);
  std::vector<ListView::Row> rows;
  for (int i = 0; i < std::clamp(shown, 0, kSetCapacity); ++i) {
    rows.push_back(RowOf(show, static_cast<std::size_t>(i)));
  }
  form.lstQuestions.ListItems = rows;
  form.lstQuestions.SelectedItem = form.EditQuestionNumber - 1;
  form.btnDuplicateQuestion.Enabled = CanDuplicate(show);
  form.mnuEditDuplicate.Enabled = form.btnDuplicateQuestion.Enabled.Get();
  form.btnFindNext.Enabled = !Trim(form.txtFind.Text).empty();
  ShowStep(form.btnUndo, form.mnuEditUndo, "Undo", form.History.UndoText());
  ShowStep(form.btnRedo, form.mnuEditRedo, "Redo", form.History.RedoText());
}

// An answer that comes after its set was left is about nothing that is listed.
void NoteFile(Show& show, const std::string& path, const std::string& error) {
  const auto file = show.frmEditor.Files.find(path);
  if (file == show.frmEditor.Files.end() || file->second == error) return;
  file->second = error;
  show.frmEditor.Dispatch([&show] { ShowList(show); }, "CheckSetMedia");
}

// Each once, beside the program: the disk is never waited for.
void AskForFiles(Show& show) {
  const int count = CountQuestions(show.EditSet);
  for (int number = 1; number <= count; ++number) {
    const std::string path = FileOf(show, RecordAt(show.EditSet, number));
    if (path.empty() || !show.frmEditor.Files.try_emplace(path).second) continue;
    CheckMedium(show, path, [&show, path](const std::string& error) { NoteFile(show, path, error); });
  }
}

// Behind a fault the list follows too.
void RunNoted(Show& show, const std::string& what, const std::function<void()>& routine) {
  const EditState before = StateOf(show);
  try {
    routine();
  } catch (...) {
    NoteEdit(show, what, before);
    ShowList(show);
    throw;
  }
  NoteEdit(show, what, before);
}

}  // namespace

void BeginHistory(Show& show) {
  show.frmEditor.Files.clear();
  show.frmEditor.History.Begin(StateOf(show));
  ShowEditorLists(show);
}

void RunTyping(Show& show, const std::string& what, const std::function<void()>& routine) {
  RunNoted(show, what, routine);
  ShowList(show);
}

void RunEdit(Show& show, const std::string& what, const std::function<void()>& routine) {
  RunNoted(show, what, routine);
  ShowEditorLists(show);
}

std::string UnsavedLines(Show& show, std::size_t most) { return FirstLines(show.frmEditor.History.Unsaved(), most); }

void ShowEditorLists(Show& show) {
  CheckRecords(show);
  ShowList(show);
  AskForFiles(show);
}

}  // namespace pawnfield::editor
