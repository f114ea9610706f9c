#include "sets/editor_picture.h"

#include "forms/editor_form.h"
#include "media/question_pictures.h"
#include "platform/errors.h"
#include "show/show.h"

namespace pawnfield::editor {

bool DisplayPicture(Show& show, const std::string& path) {
  EditorForm& form = show.frmEditor;
  const PictureBox& frame = form.picQuestionPicture;
  try {
    const FittedPicture place = FitPictureOnAudience(show.platform.pictures.Size(path), frame.Width, frame.Height);
    form.imgQuestionPicture.MoveTo(place.Left, place.Top, place.Width, place.Height);
    form.imgQuestionPicture.Picture = path;
    return true;
  } catch (const RuntimeError& error) {
    form.imgQuestionPicture.Picture = std::string();
    const bool missing = error.Number() == kErrorFileNotFound || error.Number() == kErrorPathNotFound;
    show.platform.dialogs.MessageBox(
        missing ? "File not found: " + path : NotedErrorText(error, form.Name(), "DisplayPicture", path), kAppTitle,
        BoxKind::Critical);
    return false;
  }
}

}  // namespace pawnfield::editor
