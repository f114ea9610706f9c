#include "sets/set_file.h"

#include <algorithm>

#include "forms/main_form.h"
#include "platform/errors.h"
#include "platform/large_file.h"
#include "platform/text.h"
#include "sets/file_dialogs.h"
#include "sets/media_paths.h"
#include "sets/set_parser.h"
#include "sets/table_text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kDialogCancelled = 32755;
constexpr std::size_t kExtensionLength = 4;

// True when there are characters beyond ASCII and all of them are well-formed UTF-8; a byte order mark is one.
bool LooksLikeUtf8(const std::string& bytes) {
  const bool plain =
      std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  return !plain && IsUtf8(bytes);
}

constexpr const char* kNoCarriageReturns = "No carriage returns found in this set: save it with CR LF line ends.";
constexpr const char* kUtf8 = "This set is saved as UTF-8: save it as Windows-1252 (ANSI) text.";

// What the operator should know about a file that was read but is not as it should be.
std::string AdviceOn(const std::string& bytes) {
  const bool loneFeeds = bytes.find('\r') == std::string::npos && bytes.find('\n') != std::string::npos;
  if (loneFeeds) return kNoCarriageReturns;
  return LooksLikeUtf8(bytes) ? kUtf8 : "";
}

// Other notices in the status bar stay; only the advice on an earlier set goes.
void ShowAdvice(Label& statusBar, const std::string& advice) {
  const std::string& shown = statusBar.Caption;
  if (!advice.empty() || shown == kNoCarriageReturns || shown == kUtf8) statusBar.Caption = advice;
}

void Fill(Show& show, const std::string& path, const std::string& bytes) {
  show.state.SetFolder = ExtractFolder(path);
  show.NumGameQuestions = ParseSet(bytes, show.GameSet);
  ShowAdvice(show.frmMain.lblStatusBar, AdviceOn(bytes));
  show.frmMain.tmrOptionalHeaders.Enabled = true;
}

void ReportSaveError(Show& show, const RuntimeError& error, const std::string& path) {
  if (error.Number() != kErrorPathAccess) {
    ReportError(show.platform.dialogs, error, "frmEditor", "SaveFile", path);
    return;
  }
  show.platform.dialogs.MessageBox(
      "Unable to save to the specified directory.\r\n"
      "You may not have permission to write to this file/directory.\r\n"
      "Contact your system administrator or save in \"My Documents\".\r\n"
      "Contact Pawnfield support at support@pawnfield.invalid",
      kAppTitle, BoxKind::Plain);
}

bool IsSetName(const std::string& name) { return ToLower(name).ends_with(".txt"); }

}  // namespace

std::string SetName(const std::string& fileName) {
  return IsSetName(fileName) ? fileName.substr(0, fileName.size() - kExtensionLength) : fileName;
}

std::string NormalSetPath(const std::string& path) {
  std::string result = path;
  std::erase(result, '\0');
  result = Trim(result);
  return IsSetName(result) ? result : result + ".txt";
}

std::string BackupPath(const std::string& path) { return SetName(path) + ".bak"; }

TriviaQuestion& RecordAt(TriviaSet& set, int number) {
  if (number < 1 || number > kSetCapacity) throw SubscriptError();
  return set[static_cast<std::size_t>(number - 1)];
}

std::optional<std::string> ReadSetBytes(Show& show, const std::string& path, const std::string& form,
                                        const std::string& procedure) {
  try {
    return show.platform.files.Read(path);
  } catch (const FileTooLarge& error) {
    const std::string name = ExtractFileName(path);
    show.platform.dialogs.MessageBox("\"" + name + "\" was not opened. " + error.what() + ".", kAppTitle,
                                     BoxKind::Exclamation);
  } catch (const RuntimeError& error) {
    if (error.Number() != kDialogCancelled) ReportError(show.platform.dialogs, error, form, procedure, path);
  }
  return std::nullopt;
}

void ResetGameSet(Show& show) {
  show.state.LoadedSetPath.clear();
  show.GameSet.fill({});
  for (auto& row : show.state.Board) row.fill(0);
}

bool LoadGameSet(Show& show, const std::string& path) {
  if (Trim(path).empty()) {
    ResetGameSet(show);
    show.NumGameQuestions = 0;
    show.frmMain.tmrOptionalHeaders.Enabled = true;
    return false;
  }
  const auto bytes = ReadSetBytes(show, path, show.frmMain.Name(), "LoadGameSet");
  if (!bytes) return false;
  show.frmMain.tmrOptionalHeaders.Enabled = false;
  ResetGameSet(show);
  show.state.LoadedSetPath = path;
  Fill(show, path, *bytes);
  return true;
}

void FillSetList(Show& show) {
  ComboBox& list = show.frmMain.cboList;
  std::vector<std::string> names = show.platform.files.List(show.AppPath("\\Trivia Sets"), ".txt");
  for (std::string& name : names) name = SetName(name);
  std::stable_sort(names.begin(), names.end(),
                   [](const std::string& a, const std::string& b) { return ToLower(a) < ToLower(b); });
  std::vector<std::string> items = list.List.Get();
  items.push_back("Select Game Set");
  items.insert(items.end(), names.begin(), names.end());
  list.List = items;
  list.ListIndex = 0;
}

void ReplaceSetFile(Show& show, const std::string& path, const std::string& bytes) {
  FileSystem& files = show.platform.files;
  // The old file stays under its own name until the new one takes its place.
  const std::string old = FileExists(show, path) ? files.Read(path) : bytes;
  if (old != bytes) files.WriteLike(BackupPath(path), old, path);
  files.Write(path, bytes);
}

bool SaveSetFile(Show& show, TriviaSet& set, std::string& path) {
  CompactSet(set);
  path = NormalSetPath(path);
  try {
    ReplaceSetFile(show, path, FormatSet(WithStoredPaths(show, set)));
    return true;
  } catch (const RuntimeError& error) {
    ReportSaveError(show, error, path);
    return false;
  }
}

}  // namespace pawnfield
