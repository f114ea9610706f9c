#include "sets/media_check.h"

#include <map>
#include <utility>

#include "forms/main_form.h"
#include "platform/text.h"
#include "sets/media_paths.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// More lines would run off the box.
constexpr std::size_t kMostNamed = 15;

const char* ErrorOf(const PictureFacts& facts) {
  if (facts.Error == 0) return "";
  return facts.Error == kErrorFileNotFound ? "no such file" : "no picture, or too large a one";
}

std::string BoxText(const MediaCheck& check) {
  std::string text = "These questions' files can't be shown:\r\n\r\n";
  std::size_t named = 0;
  for (const auto& [number, error] : check.Errors) {
    if (++named > kMostNamed) break;
    text += "Question " + std::to_string(number) + ": " + error + "\r\n";
  }
  if (check.Errors.size() > kMostNamed) {
    text += "and " + std::to_string(check.Errors.size() - kMostNamed) + " more\r\n";
  }
  return text;
}

std::string StatusText(const MediaCheck& check) {
  std::string numbers;
  for (const auto& [number, error] : check.Errors) numbers += (numbers.empty() ? "" : ", ") + std::to_string(number);
  return (check.Errors.size() == 1 ? "Can't be shown: the file of question "
                                   : "Can't be shown: the files of questions ") +
         numbers;
}

// What was said of the files of the set before is nothing about this one's.
void TakeBackStatus(Show& show) {
  const MediaCheck& before = show.mediaCheck;
  Label& status = show.frmMain.lblStatusBar;
  if (!before.Errors.empty() && status.Caption.Get() == StatusText(before)) status.Caption = std::string();
}

void ShowProgress(Show& show) {
  const MediaCheck& check = show.mediaCheck;
  const double share = check.Files == 0 ? 1 : 1.0 - static_cast<double>(check.Left) / check.Files;
  show.frmMain.prgMediaCheck.Width = show.frmMain.Width * share;
}

void EndCheck(Show& show) {
  MainForm& form = show.frmMain;
  form.tmrMediaCheck.Enabled = false;
  form.prgMediaCheck.Visible = false;
  if (show.mediaCheck.Errors.empty()) return;
  form.lblStatusBar.Caption = StatusText(show.mediaCheck);
  // Start is enabled from the load to the start of the game: no box comes up in a show.
  if (!form.btnStart.Enabled) return;
  show.platform.dialogs.MessageBox(BoxText(show.mediaCheck), kAppTitle, BoxKind::Exclamation);
}

void NoteFile(Show& show, int check, int number, const std::string& path, const std::string& error) {
  if (check != show.mediaCheck.Number) return;
  if (!error.empty()) show.mediaCheck.Errors[number] = ExtractFileName(path) + ": " + error;
  --show.mediaCheck.Left;
  ShowProgress(show);
  if (show.mediaCheck.Left == 0) show.frmMain.Dispatch([&] { EndCheck(show); }, "CheckSetMedia");
}

}  // namespace

void CheckMedium(Show& show, const std::string& path, std::function<void(const std::string& error)> then) {
  if (KindOfQuestion(path) == QuestionKind::Picture) {
    show.platform.pictures.Check(path, [then = std::move(then)](const PictureFacts& facts) { then(ErrorOf(facts)); });
  } else {
    show.platform.mediaFiles.Check(
        path, [then = std::move(then)](bool plays) { then(plays ? "" : "no such file, or no sound"); });
  }
}

void CheckSetMedia(Show& show) {
  std::map<int, std::string> files;
  for (int number = 1; number <= show.NumGameQuestions; ++number) {
    const std::string text = Trim(RecordAt(show.GameSet, number).QuestionText);
    if (KindOfQuestion(text) != QuestionKind::Text) files[number] = WholePath(show, text);
  }
  TakeBackStatus(show);
  const int count = static_cast<int>(files.size());
  show.mediaCheck = {show.mediaCheck.Number + 1, count, count, {}};
  show.frmMain.prgMediaCheck.Visible = false;
  show.frmMain.tmrMediaCheck.Enabled = false;
  show.frmMain.tmrMediaCheck.Enabled = count > 0;
  const int check = show.mediaCheck.Number;
  for (const auto& file : files) {
    CheckMedium(show, file.second, [&show, check, file](const std::string& error) {
      NoteFile(show, check, file.first, file.second, error);
    });
  }
}

void AttachMediaCheckHandlers(Show& show) {
  show.frmMain.prgMediaCheck.Visible = false;
  show.frmMain.tmrMediaCheck.OnTimer = [&show] {
    show.frmMain.tmrMediaCheck.Enabled = false;
    ShowProgress(show);
    show.frmMain.prgMediaCheck.Visible = true;
  };
}

}  // namespace pawnfield
