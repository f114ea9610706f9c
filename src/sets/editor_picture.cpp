#include "sets/editor_picture.h"

#include "forms/editor_form.h"
#include "media/question_pictures.h"
#include "platform/errors.h"
#include "show/show.h"

namespace pawnfield::editor {

namespace {

void PlacePicture(EditorForm& form, const std::string& path, PixelSize size) {
  const PictureBox& frame = form.picQuestionPicture;
  const FittedPicture place = FitPictureOnAudience(size, frame.Width, frame.Height);
  form.imgQuestionPicture.MoveTo(place.Left, place.Top, place.Width, place.Height);
  form.imgQuestionPicture.Picture = path;
}

void ReportPicture(Show& show, const std::string& path, int error) {
  const std::string text = error == kErrorFileNotFound ? "File not found: " + path
                                                       : NotedErrorText({error, "Invalid picture"},
                                                                        show.frmEditor.Name(), "DisplayPicture", path);
  show.platform.dialogs.MessageBox(text, kAppTitle, BoxKind::Critical);
}

}  // namespace

void DisplayPicture(Show& show, const std::string& path) {
  show.frmEditor.imgQuestionPicture.Picture = std::string();
  show.platform.pictures.Look(path, [&show, path](const PictureFacts& facts) {
    EditorForm& form = show.frmEditor;
    if (!form.picQuestionPicture.Visible || form.txtPath.Text.Get() != path) return;
    form.Dispatch(
        [&] { facts.Error == 0 ? PlacePicture(form, path, facts.Size) : ReportPicture(show, path, facts.Error); },
        "DisplayPicture");
  });
}

}  // namespace pawnfield::editor
