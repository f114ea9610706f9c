// The open and save dialogs of the rooms that read and write files.
#pragma once

#include <string>

namespace pawnfield {

struct CommonDialog;
struct Show;

// Creating offers to make the file, and overwriting is asked by the dialog itself, where the mode says so.
enum class FileDialogMode { Open = 0, OpenOrCreate = 1, Save = 2, SaveAskingOverwrite = 3 };

struct FileDialogSpec {
  FileDialogMode Mode = FileDialogMode::Open;
  std::string Title;
  // Pairs "text|pattern" joined by "|".
  std::string Filter;
  std::string DefaultExtension;
  // May be a whole path: its folder goes before InitialFolder.
  std::string FileName;
  std::string InitialFolder;
};

// The chosen path; empty after a cancel and for a name that is too long, which is reported.
std::string ShowFileDialog(Show& show, const FileDialogSpec& spec);
// Asks for a file to open, beginning with what the dialog holds. Its FileName takes the choice, empty after a cancel.
void ShowOpen(Show& show, CommonDialog& dialog);

// True when a set can hold the path of a medium; otherwise the operator is told why not.
bool CanStorePath(Show& show, const std::string& path);
// True when the path, without a backslash at its end, can be opened for reading.
bool FileExists(const Show& show, const std::string& path);

}  // namespace pawnfield
