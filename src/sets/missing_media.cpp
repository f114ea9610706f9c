#include "sets/missing_media.h"

#include <algorithm>
#include <vector>

#include "forms/main_form.h"
#include "forms/missing_media_form.h"
#include "media/media_kinds.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "sets/file_dialogs.h"
#include "sets/media_paths.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kLastScanned = 100;
constexpr const char* kPictureTitle = "Picture Files(*bmp; *jpg)";
constexpr const char* kRepairSoundTitle = "Picture Files(*wav; *mp3; *.wma)";
constexpr const char* kNextSoundTitle = "Sound Files(*wav; *.mp3; *.wma)";

std::string PathOf(Show& show, int number) { return Trim(RecordAt(show.GameSet, number).QuestionText); }

// The numbers of the questions whose file isn't there.
std::vector<int> MissingNumbers(Show& show) {
  std::vector<int> missing;
  const int last = std::min(CountQuestions(show.GameSet), kLastScanned);
  for (int number = 1; number <= last; ++number) {
    if (!IsMedium(RecordAt(show.GameSet, number))) continue;
    if (!FileExists(show, PathOf(show, number))) missing.push_back(number);
  }
  return missing;
}

// The first behind the number, and behind the last the first of all; 0 when none is missing.
int NextOf(const std::vector<int>& missing, int number) {
  if (missing.empty()) return 0;
  const auto next = std::upper_bound(missing.begin(), missing.end(), number);
  return next == missing.end() ? missing.front() : *next;
}

std::string CountText(std::size_t missing) {
  if (missing == 0) return "All files are found.";
  return missing == 1 ? "1 file is missing." : std::to_string(missing) + " files are missing.";
}

void PointDialogAt(CommonDialog& dialog, const std::string& path) {
  dialog.InitialFolder = ExtractFolder(path);
  dialog.FileName = ExtractFileName(path);
}

// Shows the question and how many are missing with it; with number 0, that none is.
void ShowMissing(Show& show, int number, std::size_t missing) {
  MissingMediaForm& form = show.frmDialog2;
  form.lblCatNum.Caption = CountText(missing);
  form.lblQuestionNum.Caption = number == 0 ? "" : "Question " + std::to_string(number);
  if (number == 0) return;
  show.MissingQuestion = number;
  form.txtLocation.Text = PathOf(show, number);
}

bool TakeFile(Show& show, const std::string& chosen) {
  MissingMediaForm& form = show.frmDialog2;
  if (chosen.empty() || !FileExists(show, chosen) || !CanStorePath(show, chosen)) return false;
  form.txtLocation.Text = chosen;
  form.txtLocation.SetFocus();
  RecordAt(show.GameSet, show.MissingQuestion).QuestionText = chosen;
  return true;
}

// A folder that was moved or renamed has taken the other files with it.
void TakeFilesBeside(Show& show, const std::string& folder) {
  for (const int number : MissingNumbers(show)) {
    const std::string beside = folder + ExtractFileName(PathOf(show, number));
    const bool fits = beside.size() <= kQuestionLength && FileExists(show, beside);
    if (fits) RecordAt(show.GameSet, number).QuestionText = beside;
  }
}

void Dialog2_Load(Show& show, const std::vector<int>& missing) {
  MissingMediaForm& form = show.frmDialog2;
  form.cdSoundPicture = {};
  ShowMissing(show, missing.front(), missing.size());
  form.btnFinished.Enabled = false;
  form.btnRepair.Enabled = true;
  form.btnCancel.Enabled = true;
}

// A cancel goes on to the next one too, so that a file which is gone for good doesn't stand in the way.
void btnRepair_Click(Show& show) {
  MissingMediaForm& form = show.frmDialog2;
  const std::string path = PathOf(show, show.MissingQuestion);
  PointDialogAt(form.cdSoundPicture, path);
  const QuestionKind kind = KindOfQuestion(path);
  if (kind == QuestionKind::Sound) form.cdSoundPicture.Filter = MediaFilter(kRepairSoundTitle, Medium::Sound, "; ");
  if (kind == QuestionKind::Picture) form.cdSoundPicture.Filter = MediaFilter(kPictureTitle, Medium::Picture, "; ");
  ShowOpen(show, form.cdSoundPicture);
  const std::string chosen = Trim(form.cdSoundPicture.FileName);
  const bool taken = TakeFile(show, chosen);
  if (taken) TakeFilesBeside(show, ExtractFolder(chosen));
  const bool done = FindNextMissing(show);
  form.btnRepair.Enabled = !done;
  // What was found is worth keeping, whatever else stays missing.
  if (taken || done) form.btnFinished.Enabled = true;
}

}  // namespace

void ScanSetForMissingMedia(Show& show) {
  TakeWholePaths(show, show.GameSet);
  const std::vector<int> missing = MissingNumbers(show);
  if (missing.empty()) return;
  Dialog2_Load(show, missing);
  show.platform.dialogs.ShowModal(show.frmDialog2);
}

bool FindNextMissing(Show& show) {
  const std::vector<int> missing = MissingNumbers(show);
  const int next = NextOf(missing, show.MissingQuestion);
  ShowMissing(show, next, missing.size());
  if (next == 0) return true;
  const bool picture = Trim(RecordAt(show.GameSet, next).QuestionType) == "P";
  show.frmDialog2.cdSoundPicture.Filter =
      picture ? MediaFilter(kPictureTitle, Medium::Picture, "; ") : MediaFilter(kNextSoundTitle, Medium::Sound, "; ");
  PointDialogAt(show.frmDialog2.cdSoundPicture, PathOf(show, next));
  return false;
}

void AttachRepairHandlers(Show& show) {
  MissingMediaForm& form = show.frmDialog2;
  form.btnRepair.OnClick = [&show] { btnRepair_Click(show); };
  form.btnCancel.OnClick = [&form] { form.Unload(); };
  form.btnFinished.OnClick = [&show, &form] {
    SaveRepairedSet(show);
    form.Unload();
  };
  form.OnUnload = [&show] { show.MissingQuestion = 1; };
}

void SaveRepairedSet(Show& show) {
  std::string target = show.consoleDialog.FileName;
  if (target.empty()) {
    target = show.AppPath("\\Trivia Sets\\" + show.frmMain.cboList.Text() + ".txt");
    if (!FileExists(show, target)) {
      show.platform.dialogs.MessageBox(
          "We encountered an error trying to fix the file. Please report if this error continues.", kAppTitle,
          BoxKind::Plain);
      return;
    }
  }
  try {
    ReplaceSetFile(show, target, FormatQuestions(WithStoredPaths(show, show.GameSet)));
  } catch (const RuntimeError& error) {
    ReportError(show.platform.dialogs, error, show.frmDialog2.Name(), "SaveFile", target);
  }
}

}  // namespace pawnfield
