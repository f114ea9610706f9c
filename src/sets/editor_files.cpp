#include "sets/editor_files.h"

#include "forms/editor_form.h"
#include "media/sound_channels.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "sets/editor.h"
#include "sets/editor_history.h"
#include "sets/file_dialogs.h"
#include "sets/media_paths.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/show.h"

namespace pawnfield::editor {

namespace {

constexpr const char* kSetFilter = "Game Sets(*.txt)|*.txt";
constexpr const char* kOverwriteQuestion = "File already exists. Do you want to overwrite?";
constexpr std::size_t kChangesNamed = 8;
constexpr const char* kSiblingFolder = "\\Program Files\\Ostara Panel Pro 4\\";

std::string SetsFolder(const Show& show) { return show.AppPath("\\Trivia Sets"); }

bool MayOverwrite(Show& show, const std::string& path, const std::string& question) {
  if (!FileExists(show, path)) return true;
  return show.platform.dialogs.Ask({question, BoxKind::YesNo, BoxAnswer::No, kReplace, kSpareFile}, kAppTitle) ==
         BoxAnswer::Yes;
}

// The path to save under, in the form that SaveFile gives it; empty after a cancel.
std::string AskSavePath(Show& show, FileDialogMode mode, const std::string& title, const std::string& fileName) {
  std::string chosen = Trim(ShowFileDialog(show, {mode, title, kSetFilter, "txt", fileName, SetsFolder(show)}));
  if (chosen.empty()) return chosen;
  const std::string path = NormalSetPath(chosen);
  // The dialog has asked about the name that was typed and not about the one with its ".txt".
  const bool asked = mode != FileDialogMode::SaveAskingOverwrite || path == chosen;
  return asked || MayOverwrite(show, path, kOverwriteQuestion) ? path : "";
}

// A set that could not be saved stays unsaved and keeps its name.
bool SaveFile(Show& show, std::string path) {
  if (!SaveSetFile(show, show.EditSet, path)) return false;
  show.frmEditor.EditDirty = false;
  show.state.SetFolder = ExtractFolder(path);
  return true;
}

void SaveUnder(Show& show, const std::string& path, const std::string& question) {
  if (path.empty() || !MayOverwrite(show, path, question)) return;
  if (SaveFile(show, path)) show.frmEditor.SetFile(path);
}

bool SaveChanges(Show& show) {
  const std::string& name = show.frmEditor.EditFileName;
  const std::string title = name.empty() ? "Save Trivia Set" : "Save Trivia Set - " + name;
  const std::string path = AskSavePath(show, FileDialogMode::SaveAskingOverwrite, title, name);
  return !path.empty() && SaveFile(show, path);
}

// True when nothing is unsaved any more, or the operator doesn't mind.
bool SavedFirst(Show& show) {
  if (!show.frmEditor.EditDirty) return true;
  const std::string changes = UnsavedLines(show, kChangesNamed);
  const BoxAnswer answer = show.platform.dialogs.Ask(
      {"Would you like to save the changes you made?" + (changes.empty() ? changes : "\r\n" + changes),
       BoxKind::YesNoCancel, BoxAnswer::Cancel, "Save", "Don't Save", "Go On Editing"},
      kAppTitle);
  if (answer == BoxAnswer::Yes) return SaveChanges(show);
  return answer == BoxAnswer::No;
}

// What is typed next belongs to this question. The entry is emptied first, so that a set without questions leaves the
// controls on, as in an editor that has just been opened.
void ShowFirstQuestion(Show& show) {
  show.frmEditor.txtEnterQuestion.Text = std::string();
  show.frmEditor.EditQuestionNumber = 1;
  DisplayEditQuestion(show);
}

std::string PrintTitle(const std::string& fileName) {
  return Trim(fileName).empty() ? "Untitled" : SetName(ExtractFileName(fileName));
}

PrintDocument DocumentOf(const Show& show) {
  PrintDocument document{PrintTitle(show.frmEditor.EditFileName), {}};
  document.Blocks.push_back({document.Title, " "});
  for (int i = 0; i < show.NumEditQuestions; ++i) {
    const TriviaQuestion& question = show.EditSet[static_cast<std::size_t>(i)];
    document.Blocks.push_back({std::to_string(i + 1) + ". " + WordingOf(question), Trim(question.AnswerText), " "});
  }
  return document;
}

std::string ImportFolder(const Show& show) {
  const std::string sibling = show.platform.folders.SystemDrive + kSiblingFolder;
  if (!show.platform.folders.SystemDrive.empty() && FileExists(show, sibling + "Ostara Panel Pro 4.exe")) {
    return sibling + "Trivia Sets";
  }
  return SetsFolder(show);
}

// Nothing of a file of another form is taken.
bool TakeImport(Show& show, const std::string& bytes) {
  TriviaSet imported;
  if (ParseImportedSet(bytes, imported)) {
    show.EditSet = imported;
    return true;
  }
  show.platform.dialogs.MessageBox("This file is no trivia set of Ostara Panel. Nothing was imported.", kAppTitle,
                                   BoxKind::Exclamation);
  return false;
}

void TakeFile(Show& show, const std::string& path) {
  EditorForm& form = show.frmEditor;
  if (!OpenFile(show, path)) return;
  form.SetFile(path);
  form.EditDirty = false;
  show.state.SetFolder = ExtractFolder(path);
  BeginHistory(show);
  form.btnPicture.Enabled = true;
  form.btnSound.Enabled = true;
  ShowFirstQuestion(show);
}

}  // namespace

void mnuFileNew_Click(Show& show) {
  EditorForm& form = show.frmEditor;
  if (!SavedFirst(show)) return;
  form.btnPicture.Enabled = true;
  form.btnSound.Enabled = true;
  form.txtDisplayQuestion.Enabled = true;
  ResetEditSet(show);
  SetNumEditQuestions(show, 0);
  form.EditQuestionKind = "T";
  // The new set is nobody's file: a save asks for a name.
  form.SetFile("");
  form.EditDirty = false;
  BeginHistory(show);
  ShowFirstQuestion(show);
  FocusWording(show);
}

void mnuFileOpen_Click(Show& show) {
  EditorForm& form = show.frmEditor;
  if (!SavedFirst(show)) return;
  form.cd1EditorDialog = {"", kSetFilter, SetsFolder(show)};
  ShowOpen(show, form.cd1EditorDialog);
  if (!form.cd1EditorDialog.FileName.empty()) TakeFile(show, form.cd1EditorDialog.FileName);
}

void OpenSet(Show& show, const std::string& path) {
  if (SavedFirst(show)) TakeFile(show, path);
}

void mnuFileSave_Click(Show& show) {
  if (Trim(show.frmEditor.EditFileName).empty()) {
    SaveUnder(show, AskSavePath(show, FileDialogMode::Save, "Save Trivia Set", ""),
              "Filename already exists. Overwrite existing file?");
    return;
  }
  const std::string name = NormalSetPath(show.frmEditor.EditFileName);
  show.frmEditor.SetFile(name);
  if (SaveFile(show, name) && IsSamePath(name, show.state.LoadedSetPath)) CopyEditSetToGame(show);
}

void mnuSaveAs_Click(Show& show) {
  SaveUnder(show, AskSavePath(show, FileDialogMode::Save, "Save Trivia Set", ""), kOverwriteQuestion);
}

bool Editor_QueryUnload(Show& show) {
  if (!SavedFirst(show)) return false;
  show.frmEditor.SetFile("");
  show.frmEditor.EditDirty = false;
  ResetEditSet(show);
  ClearEditorDisplay(show);
  EnableEditorControls(show, true);
  StopSoundClip(show);
  return true;
}

void mnuFilePrint_Click(Show& show) {
  try {
    const auto copies = show.platform.printing.ChoosePrinter();
    if (copies) show.platform.printing.Print(DocumentOf(show), *copies);
  } catch (const RuntimeError& error) {
    show.platform.dialogs.MessageBox(NotedErrorText(error, show.frmEditor.Name(), "mnuFilePrint"), kAppTitle,
                                     BoxKind::Critical);
  }
}

bool OpenFile(Show& show, const std::string& path) {
  const auto bytes = ReadSetBytes(show, path, show.frmEditor.Name(), "OpenFile");
  if (!bytes) return false;
  SetNumEditQuestions(show, ParseSet(*bytes, show.EditSet));
  TakeWholePaths(show, show.EditSet);
  return true;
}

void btnImport_Click(Show& show) {
  EditorForm& form = show.frmEditor;
  if (!SavedFirst(show)) return;
  form.cd1EditorDialog = {"", "Trivia Sets (*.txt)|*.txt", ImportFolder(show)};
  ShowOpen(show, form.cd1EditorDialog);
  const std::string path = Trim(form.cd1EditorDialog.FileName);
  if (path.empty()) return;
  const auto bytes = ReadSetBytes(show, path, form.Name(), "OpenFile");
  if (!bytes || !TakeImport(show, *bytes)) return;
  // It has no file in the program's own form yet.
  form.SetFile("");
  form.EditDirty = true;
  SetNumEditQuestions(show, kImportedQuestions);
  ShowFirstQuestion(show);
}

}  // namespace pawnfield::editor
