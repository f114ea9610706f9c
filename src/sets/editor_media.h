// The kind of a question in the editor: text in a font and colour, a picture or a sound.
#pragma once

namespace pawnfield {

struct Show;

namespace editor {

void btnText_Click(Show& show);
void btnPicture_Click(Show& show);
void btnSound_Click(Show& show);
// The record doesn't follow: the usual font is only shown.
void btnDefault_Click(Show& show);
void btnFont_Click(Show& show);
void btnFontColor_Click(Show& show);

}  // namespace editor

}  // namespace pawnfield
