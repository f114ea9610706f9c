#include "sets/editor_handlers.h"

#include "forms/editor_form.h"
#include "forms/main_form.h"
#include "media/sound_channels.h"
#include "platform/attach.h"
#include "sets/editor.h"
#include "sets/editor_files.h"
#include "sets/editor_media.h"
#include "sets/editor_navigation.h"
#include "sets/media_check.h"
#include "sets/missing_media.h"
#include "show/show.h"

namespace pawnfield {

using namespace editor;

namespace {

using Handler = void (*)(Show&);

void OnClick(Show& show, Control& button, Control& entry, Handler handler) {
  OnClick(show, button, handler);
  OnClick(show, entry, handler);
}

void CloseEditor(Show& show) {
  if (Editor_QueryUnload(show)) show.frmEditor.Unload();
}

void AttachEntries(Show& show) {
  EditorForm& form = show.frmEditor;
  form.txtEnterQuestion.OnChange = [&show] { txtEnterQuestion_Change(show); };
  form.txtEnterQuestion.OnLostFocus = [&show] { txtEnterQuestion_LostFocus(show); };
  form.txtAnswer.OnChange = [&show] { txtAnswer_Change(show); };
  OnClick(show, form.txtDisplayQuestion, txtDisplayQuestion_Click);
}

void AttachFiles(Show& show) {
  EditorForm& form = show.frmEditor;
  OnClick(show, form.btnNewFile, form.mnuFileNew, mnuFileNew_Click);
  OnClick(show, form.btnFileOpen, form.mnuFileOpen, mnuFileOpen_Click);
  OnClick(show, form.btnSave, form.mnuFileSave, mnuFileSave_Click);
  OnClick(show, form.btnSaveAs, form.mnuSaveAs, mnuSaveAs_Click);
  OnClick(show, form.btnPrint, form.mnuFilePrint, mnuFilePrint_Click);
  OnClick(show, form.mnuFileExit, CloseEditor);
  OnClick(show, form.btnImport, btnImport_Click);
  form.OnQueryUnload = [&show] { return Editor_QueryUnload(show); };
}

void AttachQuestions(Show& show) {
  EditorForm& form = show.frmEditor;
  OnClick(show, form.btnBack10, btnBack10_Click);
  OnClick(show, form.btnBack, btnBack_Click);
  OnClick(show, form.btnForward, btnForward_Click);
  OnClick(show, form.btnForward10, btnForward10_Click);
  OnClick(show, form.btnNext, btnNext_Click);
  OnClick(show, form.btnInsertQuestion, btnInsertQuestion_Click);
  OnClick(show, form.btnDeleteQuestion, btnDeleteQuestion_Click);
  OnClick(show, form.btnText, btnText_Click);
  OnClick(show, form.btnPicture, btnPicture_Click);
  OnClick(show, form.btnSound, btnSound_Click);
  OnClick(show, form.btnFont, btnFont_Click);
  OnClick(show, form.btnFontColor, btnFontColor_Click);
  OnClick(show, form.btnDefault, btnDefault_Click);
  OnClick(show, form.btnStop, StopSoundClip);
  form.btnPlay.OnClick = [&show] { PlaySoundClip(show, show.frmEditor.txtPath.Text); };
}

}  // namespace

void AttachEditorHandlers(Show& show) {
  OnClick(show, show.frmMain.btnStartGame, btnStartGame_Click);
  show.frmEditChoice.btnCurrent.OnClick = [&show] { EditChoice_Click(show, true); };
  show.frmEditChoice.New.OnClick = [&show] { EditChoice_Click(show, false); };
  AttachEntries(show);
  AttachFiles(show);
  AttachQuestions(show);
  AttachRepairHandlers(show);
  AttachMediaCheckHandlers(show);
}

}  // namespace pawnfield
