#include "sets/editor_media.h"

#include <array>
#include <charconv>
#include <optional>

#include "forms/editor_form.h"
#include "media/media_kinds.h"
#include "media/sound_channels.h"
#include "platform/text.h"
#include "sets/editor.h"
#include "sets/editor_picture.h"
#include "sets/file_dialogs.h"
#include "show/show.h"

namespace pawnfield::editor {

namespace {

const Font kUsualFont{"Courier New", 28, true, true};

// Sizes are single-precision numbers, and their text is the shortest that stands for one.
std::string SizeText(double size) {
  std::array<char, 32> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<float>(size));
  return {digits.data(), result.ptr};
}

std::optional<std::string> ChooseMedium(Show& show, const std::string& filter) {
  CommonDialog& dialog = show.frmEditor.cd1EditorDialog;
  dialog = {"", filter, show.platform.folders.App};
  ShowOpen(show, dialog);
  const std::string path = Trim(dialog.FileName);
  dialog.FileName.clear();
  if (path.empty() || !CanStorePath(show, path)) return std::nullopt;
  return path;
}

void StoreMedium(Show& show, const std::string& path, const char* type) {
  EditorForm& form = show.frmEditor;
  form.EditDirty = true;
  // What is chosen again may have been mended.
  form.Files.erase(path);
  TriviaQuestion& record = ShownRecord(show);
  record.QuestionText = path;
  record.QuestionType = type;
  form.txtPath.Text = path;
  form.txtEnterQuestion.Text = std::string();
  for (Control* wording :
       std::initializer_list<Control*>{&form.txtEnterQuestion, &form.lblQuestionPrompt, &form.txtDisplayQuestion}) {
    wording->Visible = false;
  }
  form.lblPath.Visible = true;
  form.txtPath.Visible = true;
  UpdateEditorControls(show);
}

void EnableFontButtons(EditorForm& form, bool enabled) {
  for (Button* button : {&form.btnFont, &form.btnFontColor, &form.btnDefault}) button->Enabled = enabled;
}

}  // namespace

void btnPicture_Click(Show& show) {
  const auto path = ChooseMedium(show, MediaFilter("Picture(*.bmp;*.jpg)", Medium::Picture, ";"));
  if (!path) return;
  EditorForm& form = show.frmEditor;
  StoreMedium(show, *path, "P");
  form.frmSoundButtons.Visible = false;
  form.picQuestionPicture.Visible = true;
  form.imgQuestionPicture.Visible = true;
  DisplayPicture(show, *path);
  // A picture is no sound: this ends one that still plays.
  PlaySoundClip(show, *path);
}

void btnSound_Click(Show& show) {
  const auto path = ChooseMedium(show, MediaFilter("Audio(*.wav; *.mp3; *.wma)", Medium::Sound, "; "));
  if (!path) return;
  EditorForm& form = show.frmEditor;
  StoreMedium(show, *path, "S");
  form.imgQuestionPicture.Picture = std::string();
  form.picQuestionPicture.Visible = false;
  form.txtDisplayQuestion.Text = std::string();
  EnableFontButtons(form, false);
  form.frmSoundButtons.Visible = true;
  PlaySoundClip(show, *path);
}

void btnText_Click(Show& show) {
  EditorForm& form = show.frmEditor;
  for (Control* medium :
       std::initializer_list<Control*>{&form.picQuestionPicture, &form.lblPath, &form.txtPath, &form.frmSoundButtons}) {
    medium->Visible = false;
  }
  form.txtDisplayQuestion.Text = std::string();
  for (Control* wording :
       std::initializer_list<Control*>{&form.txtDisplayQuestion, &form.txtEnterQuestion, &form.lblQuestionPrompt}) {
    wording->Visible = true;
  }
  EnableFontButtons(form, true);
  StopSoundClip(show);
  TriviaQuestion& record = ShownRecord(show);
  if (record.QuestionType != "T") form.EditDirty = true;
  record.QuestionType = "T";
}

void btnDefault_Click(Show& show) {
  show.frmEditor.txtDisplayQuestion.Font = kUsualFont;
  show.frmEditor.txtDisplayQuestion.ForeColor = kWhite;
}

void btnFont_Click(Show& show) {
  EditorForm& form = show.frmEditor;
  Font start = form.txtDisplayQuestion.Font;
  if (Trim(start.Name).empty()) start.Name = "Comic Sans MS";
  const auto chosen = show.platform.dialogs.ChooseFont(start);
  if (!chosen) return;
  if (chosen->Name.find('#') != std::string::npos) {
    show.platform.dialogs.MessageBox("A set can't keep a font whose name holds a #.", kAppTitle, BoxKind::Plain);
    return;
  }
  // OK alone changes nothing; and the size shown is the fitted one, which isn't the record's.
  if (*chosen == start) return;
  form.EditDirty = true;
  form.txtDisplayQuestion.Font = *chosen;
  TriviaQuestion& record = ShownRecord(show);
  record.FontBold = chosen->Bold;
  record.FontItalic = chosen->Italic;
  if (chosen->Size != start.Size) record.FontSize = SizeText(chosen->Size);
  record.FontName = chosen->Name;
}

void btnFontColor_Click(Show& show) {
  EditorForm& form = show.frmEditor;
  const auto chosen = show.platform.dialogs.ChooseColor(form.txtDisplayQuestion.ForeColor);
  if (!chosen || *chosen == form.txtDisplayQuestion.ForeColor) return;
  form.EditDirty = true;
  form.txtDisplayQuestion.ForeColor = *chosen;
  ShownRecord(show).FontColor = std::to_string(*chosen);
}

}  // namespace pawnfield::editor
