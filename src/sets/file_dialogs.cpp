#include "sets/file_dialogs.h"

#include "platform/escapes.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::size_t kLongestPath = 256;

void ShowMessage(Show& show, const std::string& text) {
  show.platform.dialogs.MessageBox(text, kAppTitle, BoxKind::Plain);
}

}  // namespace

std::string ShowFileDialog(Show& show, const FileDialogSpec& spec) {
  FileDialogRequest request;
  request.Title = spec.Title;
  request.Filter = spec.Filter;
  request.DefaultExtension = spec.DefaultExtension;
  request.Save = spec.Mode == FileDialogMode::Save || spec.Mode == FileDialogMode::SaveAskingOverwrite;
  request.ConfirmsOverwrite = spec.Mode == FileDialogMode::SaveAskingOverwrite;
  const bool hasFolder = spec.FileName.find('\\') != std::string::npos;
  request.InitialFolder = hasFolder ? ExtractFolder(spec.FileName) : spec.InitialFolder;
  request.FileName = hasFolder ? ExtractFileName(spec.FileName) : spec.FileName;
  std::string chosen = show.platform.dialogs.ChooseFile(request);
  if (CountLetters(chosen) <= kLongestPath) return chosen;
  ShowMessage(show, "Error with filename(s).");
  return "";
}

void ShowOpen(Show& show, CommonDialog& dialog) {
  FileDialogRequest request;
  request.Title = "Open";
  request.Filter = dialog.Filter;
  request.InitialFolder = dialog.InitialFolder;
  request.FileName = dialog.FileName;
  dialog.FileName = show.platform.dialogs.ChooseFile(request);
}

bool CanStorePath(Show& show, const std::string& path) {
  if (CountLetters(path) > kQuestionLength) {
    ShowMessage(show, "File path exceeds 256 characters in length");
    return false;
  }
  if (path.find_first_of(std::string("\r\n\0", 3)) == std::string::npos) return true;
  ShowMessage(show, "The file's name or folder holds a line break, which a set can't keep. Please rename it.");
  return false;
}

bool FileExists(const Show& show, const std::string& path) {
  return show.platform.files.CanOpen(path.ends_with('\\') ? path.substr(0, path.size() - 1) : path);
}

}  // namespace pawnfield
