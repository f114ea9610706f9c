#include "sets/set_file.h"

#include <algorithm>

#include "forms/main_form.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kDialogCancelled = 32755;

// How many bytes follow a byte that opens a character in UTF-8; 0 when it opens none.
std::size_t Utf8Followers(unsigned char lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return 1;
  if (lead >= 0xE0 && lead <= 0xEF) return 2;
  if (lead >= 0xF0 && lead <= 0xF4) return 3;
  return 0;
}

bool IsUtf8Sequence(const std::string& bytes, std::size_t at, std::size_t followers) {
  if (followers == 0 || at + followers >= bytes.size()) return false;
  return std::all_of(bytes.begin() + static_cast<std::ptrdiff_t>(at + 1),
                     bytes.begin() + static_cast<std::ptrdiff_t>(at + followers + 1),
                     [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; });
}

// True when there are characters beyond ASCII and all of them are well-formed UTF-8; a byte order mark is one.
bool LooksLikeUtf8(const std::string& bytes) {
  bool found = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if (byte < 0x80) continue;
    const std::size_t followers = Utf8Followers(byte);
    if (!IsUtf8Sequence(bytes, i, followers)) return false;
    found = true;
    i += followers;
  }
  return found;
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

}  // namespace

std::string NormalSetPath(const std::string& path) {
  std::string result = path;
  std::erase(result, '\0');
  result = Trim(result);
  const bool isText = result.size() >= 4 && ToLower(result.substr(result.size() - 4)) == ".txt";
  return isText ? result : result + ".txt";
}

TriviaQuestion& RecordAt(TriviaSet& set, int number) {
  if (number < 1 || number > kSetCapacity) throw SubscriptError();
  return set[static_cast<std::size_t>(number - 1)];
}

void ResetGameSet(Show& show) {
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
  try {
    const std::string bytes = show.platform.files.Read(path);
    show.frmMain.tmrOptionalHeaders.Enabled = false;
    ResetGameSet(show);
    show.state.LoadedSetPath = path;
    Fill(show, path, bytes);
    return true;
  } catch (const RuntimeError& error) {
    if (error.Number() != kDialogCancelled) {
      ReportError(show.platform.dialogs, error, show.frmMain.Name(), "LoadGameSet", path);
    }
    return false;
  }
}

void FillSetList(Show& show) {
  ComboBox& list = show.frmMain.cboList;
  std::vector<std::string> names = show.platform.files.List(show.AppPath("\\Trivia Sets"), ".txt");
  for (std::string& name : names) name = StripExtension(name);
  std::stable_sort(names.begin(), names.end(),
                   [](const std::string& a, const std::string& b) { return ToLower(a) < ToLower(b); });
  std::vector<std::string> items = list.List.Get();
  items.push_back("Select Game Set");
  items.insert(items.end(), names.begin(), names.end());
  list.List = items;
  list.ListIndex = 0;
}

bool SaveSetFile(Show& show, TriviaSet& set, std::string& path) {
  CompactSet(set);
  path = NormalSetPath(path);
  try {
    show.platform.files.Write(path, FormatSet(set));
    return true;
  } catch (const RuntimeError& error) {
    ReportSaveError(show, error, path);
    return false;
  }
}

}  // namespace pawnfield
