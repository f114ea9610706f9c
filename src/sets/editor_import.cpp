#include "sets/editor_import.h"

#include <algorithm>

#include "forms/editor_form.h"
#include "forms/import_form.h"
#include "platform/attach.h"
#include "platform/errors.h"
#include "platform/escapes.h"
#include "platform/text.h"
#include "sets/editor.h"
#include "sets/editor_history.h"
#include "sets/file_dialogs.h"
#include "sets/media_paths.h"
#include "sets/question_import.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/show.h"

namespace pawnfield::editor {

namespace {

constexpr std::size_t kFirstWords = 80;
constexpr const char* kSheetFilter = "Sheets(*.csv;*.tsv;*.ods;*.xlsx)|*.csv;*.tsv;*.ods;*.xlsx|All files(*.*)|*.*";

// A name alone is a file beside the sheet, or else among the sets' media, where there is one.
std::string MediumPath(Show& show, const std::string& sheet, const std::string& name) {
  if (name.find_first_of("\\/") != std::string::npos) return name;
  for (const std::string& folder : {ExtractFolder(sheet), show.AppPath("\\Trivia Sets\\Media\\")}) {
    if (FileExists(show, folder + name)) return folder + name;
  }
  return name;
}

ImportColumns ChosenColumns(const ImportForm& form) {
  // The answer's list begins with none.
  return {form.cboQuestion.ListIndex, form.cboAnswer.ListIndex - 1, form.chkHeading.Value == 1};
}

// How many questions stay in the set. A last one that nobody has written doesn't.
int KeptQuestions(Show& show) { return show.frmImport.optReplace.Value ? 0 : CountQuestions(show.EditSet); }

std::vector<ImportRow> PreviewedRows(Show& show) {
  return ReadQuestions(show.frmImport.Rows, ChosenColumns(show.frmImport), kSetCapacity - KeptQuestions(show),
                       [&show](const std::string& name) { return MediumPath(show, show.frmImport.Path, name); });
}

std::string Questions(std::size_t count) { return std::to_string(count) + (count == 1 ? " Question" : " Questions"); }

void ShowPreview(Show& show) {
  ImportForm& form = show.frmImport;
  const std::vector<ImportRow> rows = PreviewedRows(show);
  std::vector<ListView::Row> lines;
  std::size_t fit = 0;
  for (const ImportRow& row : rows) {
    lines.push_back({std::to_string(row.Row), KindWord(row.Question),
                     FirstLetters(WordingOf(row.Question), kFirstWords),
                     FirstLetters(row.Question.AnswerText, kFirstWords), row.Problem});
    fit += row.Problem.empty() ? 1 : 0;
  }
  form.lstRows.ListItems = lines;
  const std::size_t out = rows.size() - fit;
  form.lblSummary.Caption =
      out == 0 ? "All rows fit."
               : std::to_string(out) + " of " + std::to_string(rows.size()) + " rows can't be taken and are left out.";
  form.btnTake.Caption = "Import " + Questions(fit);
  form.btnTake.Enabled = fit > 0;
}

void FillForm(Show& show, const std::string& path, Sheet sheet) {
  ImportForm& form = show.frmImport;
  form.Rows = std::move(sheet);
  form.Path = path;
  form.Accepted = false;
  form.lblFile.Caption = ExtractFileName(path) + ", " + std::to_string(form.Rows.size()) + " rows";
  const ImportColumns columns = GuessColumns(form.Rows, show.state.ImportColumns);
  std::vector<std::string> names = ColumnNames(form.Rows);
  form.cboQuestion.List = names;
  names.insert(names.begin(), "None");
  form.cboAnswer.List = names;
  form.cboQuestion.ListIndex = columns.Question;
  form.cboAnswer.ListIndex = columns.Answer + 1;
  form.chkHeading.Value = columns.HasHeading ? 1 : 0;
  const bool empty = CountQuestions(show.EditSet) == 0;
  (empty ? form.optReplace : form.optAdd).SelectInGroup();
  form.optAdd.Enabled = !empty;
  ShowPreview(show);
}

void TakeRows(Show& show) {
  int count = KeptQuestions(show);
  const int first = count + 1;
  const std::vector<ImportRow> rows = PreviewedRows(show);
  std::fill(show.EditSet.begin() + count, show.EditSet.end(), TriviaQuestion());
  for (const ImportRow& row : rows) {
    if (row.Problem.empty()) RecordAt(show.EditSet, ++count) = row.Question;
  }
  show.state.ImportColumns = ColumnsText(ChosenColumns(show.frmImport));
  SetNumEditQuestions(show, count);
  EnableEditorControls(show, true);
  show.frmEditor.txtEnterQuestion.Text = std::string();
  show.frmEditor.EditQuestionNumber = first;
  DisplayEditQuestion(show);
}

void btnTake_Click(Show& show) {
  show.frmImport.Accepted = true;
  show.frmImport.Unload();
}

// What can't be read is said in the reader's words; nothing else of the program knows why.
template <typename Step>
bool DoOrSay(Show& show, const std::string& path, const char* what, Step step) {
  try {
    step();
    return true;
  } catch (const RuntimeError& error) {
    show.platform.dialogs.MessageBox("\"" + ExtractFileName(path) + "\" was not " + what + ". " + error.what() + ".",
                                     kAppTitle, BoxKind::Exclamation);
    return false;
  }
}

}  // namespace

void mnuImport_Click(Show& show) {
  CommonDialog& dialog = show.frmEditor.cd1EditorDialog;
  dialog = {"", kSheetFilter, ""};
  ShowOpen(show, dialog);
  if (!Trim(dialog.FileName).empty()) ImportSheet(show, dialog.FileName);
}

void ImportSheet(Show& show, const std::string& path) {
  Sheet sheet;
  if (!DoOrSay(show, path, "opened", [&] { sheet = show.platform.sheets.Read(path); })) return;
  FillForm(show, path, std::move(sheet));
  show.platform.dialogs.ShowModal(show.frmImport);
  if (show.frmImport.Accepted) {
    RunEdit(show, "Import questions from " + ExtractFileName(path), [&show] { TakeRows(show); });
  }
  show.frmImport.Rows.clear();
}

void mnuExport_Click(Show& show) {
  const std::string name = SetName(ExtractFileName(show.frmEditor.EditFileName));
  std::string path =
      ShowFileDialog(show, {FileDialogMode::SaveAskingOverwrite, "Export Questions", "Comma-separated(*.csv)|*.csv",
                            "csv", name.empty() ? "" : name + ".csv", ""});
  if (Trim(path).empty()) return;
  // What an import would find by its name goes by it, as it came.
  const auto mediumName = [&](const std::string& medium) {
    const std::string own = ExtractFileName("\\" + medium);
    return IsSamePath(MediumPath(show, path, own), WholePath(show, medium)) ? own : medium;
  };
  DoOrSay(show, path, "written", [&] { show.platform.sheets.Write(path, WriteQuestions(show.EditSet, mediumName)); });
}

void AttachImportHandlers(Show& show) {
  ImportForm& form = show.frmImport;
  for (Control* choice : std::initializer_list<Control*>{&form.cboQuestion, &form.cboAnswer, &form.chkHeading,
                                                         &form.optAdd, &form.optReplace}) {
    OnClick(show, *choice, ShowPreview);
  }
  OnClick(show, form.btnTake, btnTake_Click);
  form.btnCancel.OnClick = [&show] { show.frmImport.Unload(); };
  form.lstRows.OnClick = [] {};
}

}  // namespace pawnfield::editor
