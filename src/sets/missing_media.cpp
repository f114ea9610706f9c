#include "sets/missing_media.h"

#include <array>

#include "forms/main_form.h"
#include "forms/missing_media_form.h"
#include "media/media_kinds.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "sets/file_dialogs.h"
#include "sets/set_file.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::size_t kLastScanned = 99;
// Where the scan goes on after a missing file, whatever record it stood at.
constexpr std::size_t kScanReturn = 5;
constexpr const char* kPictureTitle = "Picture Files(*bmp; *jpg)";
constexpr const char* kRepairSoundTitle = "Picture Files(*wav; *mp3; *.wma)";
constexpr const char* kNextSoundTitle = "Sound Files(*wav; *.mp3; *.wma)";

bool IsMedium(const TriviaQuestion& question) {
  const std::string type = Trim(question.QuestionType);
  return type == "P" || type == "S";
}

// Writes the whole path of one that starts with ".", and tells whether the file is missing.
bool IsMissing(Show& show, TriviaQuestion& question) {
  if (!IsMedium(question)) return false;
  const std::string path = Trim(question.QuestionText);
  if (path.starts_with('.')) {
    question.QuestionText = (show.AppPath("\\Trivia Sets") + path.substr(1)).substr(0, kQuestionLength);
  }
  return !FileExists(show, Trim(question.QuestionText));
}

TriviaQuestion& MissingRecord(Show& show) { return RecordAt(show.GameSet, show.MissingQuestion); }

void PointDialogAt(CommonDialog& dialog, const std::string& path) {
  dialog.InitialFolder = ExtractFolder(path);
  dialog.FileName = ExtractFileName(path);
}

void TakeFile(Show& show, const std::string& chosen) {
  MissingMediaForm& form = show.frmDialog2;
  if (chosen.empty() || !FileExists(show, chosen) || !CanStorePath(show, chosen)) return;
  form.txtLocation.Text = chosen;
  form.txtLocation.SetFocus();
  MissingRecord(show).QuestionText = chosen;
}

void Dialog2_Load(Show& show) {
  MissingMediaForm& form = show.frmDialog2;
  form.cdSoundPicture = {};
  form.txtLocation.Text = Trim(MissingRecord(show).QuestionText);
  form.btnFinished.Enabled = false;
  form.btnRepair.Enabled = true;
  form.btnCancel.Enabled = true;
}

void btnRepair_Click(Show& show) {
  MissingMediaForm& form = show.frmDialog2;
  const std::string path = Trim(MissingRecord(show).QuestionText);
  PointDialogAt(form.cdSoundPicture, path);
  const QuestionKind kind = KindOfQuestion(path);
  if (kind == QuestionKind::Sound) form.cdSoundPicture.Filter = MediaFilter(kRepairSoundTitle, Medium::Sound, "; ");
  if (kind == QuestionKind::Picture) form.cdSoundPicture.Filter = MediaFilter(kPictureTitle, Medium::Picture, "; ");
  ShowOpen(show, form.cdSoundPicture);
  TakeFile(show, Trim(form.cdSoundPicture.FileName));
  // After the search, which keeps Finished off for as long as it finds another one.
  const bool done = FindNextMissing(show);
  form.btnRepair.Enabled = !done;
  form.btnFinished.Enabled = done;
}

}  // namespace

void ScanSetForMissingMedia(Show& show) {
  std::array<bool, kLastScanned + 1> examined{};
  bool found = false;
  std::size_t i = 0;
  while (i <= kLastScanned && !examined[i]) {
    examined[i] = true;
    TriviaQuestion& question = show.GameSet[i];
    if (Trim(question.QuestionText).empty()) break;
    if (IsMissing(show, question)) {
      found = true;
      show.MissingQuestion = static_cast<int>(i) + 1;
      i = kScanReturn;
    } else {
      ++i;
    }
  }
  if (!found) return;
  Dialog2_Load(show);
  show.platform.dialogs.ShowModal(show.frmDialog2);
}

bool FindNextMissing(Show& show) {
  MissingMediaForm& form = show.frmDialog2;
  const auto next = static_cast<std::size_t>(show.MissingQuestion++);
  for (std::size_t i = next; i <= kLastScanned; ++i) {
    TriviaQuestion& question = show.GameSet[i];
    if (!IsMissing(show, question)) continue;
    const std::string path = Trim(question.QuestionText);
    form.cdSoundPicture.Filter = Trim(question.QuestionType) == "P" ? MediaFilter(kPictureTitle, Medium::Picture, "; ")
                                                                    : MediaFilter(kNextSoundTitle, Medium::Sound, "; ");
    PointDialogAt(form.cdSoundPicture, path);
    form.txtLocation.Text = path;
    form.btnFinished.Enabled = false;
  }
  show.MissingQuestion = 1;
  return true;
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
    show.platform.files.Write(target, FormatQuestions(show.GameSet));
  } catch (const RuntimeError& error) {
    ReportError(show.platform.dialogs, error, show.frmDialog2.Name(), "SaveFile", target);
  }
}

}  // namespace pawnfield
