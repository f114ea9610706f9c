#include "sets/editor_handlers.h"

#include "forms/editor_form.h"
#include "forms/main_form.h"
#include "media/sound_channels.h"
#include "platform/attach.h"
#include "sets/editor.h"
#include "sets/editor_files.h"
#include "sets/editor_history.h"
#include "sets/editor_import.h"
#include "sets/editor_list.h"
#include "sets/editor_media.h"
#include "sets/editor_navigation.h"
#include "sets/media_check.h"
#include "sets/missing_media.h"
#include "sets/set_bundles.h"
#include "sets/sheet_names.h"
#include "show/show.h"

namespace pawnfield {

using namespace editor;

namespace {

std::string NameStep(Show& show, const std::string& what) {
  return what.ends_with(' ') ? what + std::to_string(show.frmEditor.EditQuestionNumber) : what;
}

using Handler = void (*)(Show&);

// What moves through the set or handles its file is no change; a name stands for one, of the question that is shown.
void OnEdit(Show& show, Control& control, Handler handler, const std::string& what = "") {
  control.OnClick = [&show, handler, what] {
    RunEdit(show, NameStep(show, what), [&show, handler] { handler(show); });
  };
}

void OnEdit(Show& show, Control& button, Control& entry, Handler handler, const std::string& what = "") {
  OnEdit(show, button, handler, what);
  OnEdit(show, entry, handler, what);
}

void OnTyped(Show& show, TextBox& box, Handler handler, const std::string& what) {
  box.OnChange = [&show, handler, what] { RunTyping(show, NameStep(show, what), [&show, handler] { handler(show); }); };
}

void TakeDropped(Show& show, const std::string& path) {
  if (IsSheetName(path)) {
    ImportSheet(show, path);
  } else if (IsBundleName(path)) {
    const auto set = OfferBundle(show, path);
    if (set) OpenSet(show, *set);
  } else {
    OpenSet(show, path);
  }
}

void CloseEditor(Show& show) {
  if (Editor_QueryUnload(show)) show.frmEditor.Unload();
}

void AttachEntries(Show& show) {
  EditorForm& form = show.frmEditor;
  OnTyped(show, form.txtEnterQuestion, txtEnterQuestion_Change, "Wording of question ");
  OnTyped(show, form.txtAnswer, txtAnswer_Change, "Answer of question ");
  form.txtEnterQuestion.OnLostFocus = [&show] {
    RunEdit(show, "", [&show] { txtEnterQuestion_LostFocus(show); });
    show.frmEditor.History.Settle();
  };
  form.txtAnswer.OnLostFocus = [&show] {
    show.frmEditor.History.Settle();
    ShowEditorLists(show);
  };
  OnClick(show, form.chkSpellChecker, chkSpellChecker_Click);
  OnClick(show, form.txtDisplayQuestion, txtDisplayQuestion_Click);
}

void AttachFiles(Show& show) {
  EditorForm& form = show.frmEditor;
  OnEdit(show, form.btnNewFile, form.mnuFileNew, mnuFileNew_Click);
  OnEdit(show, form.btnFileOpen, form.mnuFileOpen, mnuFileOpen_Click);
  OnEdit(show, form.btnSave, form.mnuFileSave, mnuFileSave_Click);
  OnEdit(show, form.btnSaveAs, form.mnuSaveAs, mnuSaveAs_Click);
  OnEdit(show, form.btnPrint, form.mnuFilePrint, mnuFilePrint_Click);
  OnEdit(show, form.mnuImport, mnuImport_Click);
  OnEdit(show, form.mnuExport, mnuExport_Click);
  OnEdit(show, form.mnuPackSet, mnuPackSet_Click);
  form.OnDropFile = [&show](const std::string& path) {
    RunEdit(show, "", [&show, &path] { TakeDropped(show, path); });
  };
  OnClick(show, form.mnuFileExit, CloseEditor);
  OnEdit(show, form.btnImport, btnImport_Click, "Import a set of Ostara Panel");
  form.OnQueryUnload = [&show] { return Editor_QueryUnload(show); };
}

void AttachQuestions(Show& show) {
  EditorForm& form = show.frmEditor;
  OnEdit(show, form.btnBack10, btnBack10_Click);
  OnEdit(show, form.btnBack, btnBack_Click);
  OnEdit(show, form.btnForward, btnForward_Click);
  OnEdit(show, form.btnForward10, btnForward10_Click);
  OnEdit(show, form.btnNext, btnNext_Click);
  OnEdit(show, form.btnInsertQuestion, btnInsertQuestion_Click, "Insert question ");
  OnEdit(show, form.btnDeleteQuestion, btnDeleteQuestion_Click, "Delete question ");
  OnEdit(show, form.btnText, btnText_Click, "Text for question ");
  OnEdit(show, form.btnPicture, btnPicture_Click, "Picture for question ");
  OnEdit(show, form.btnSound, btnSound_Click, "Sound for question ");
  OnEdit(show, form.btnFont, btnFont_Click, "Font of question ");
  OnEdit(show, form.btnFontColor, btnFontColor_Click, "Color of question ");
  OnClick(show, form.btnDefault, btnDefault_Click);
  OnClick(show, form.btnStop, StopSoundClip);
  form.btnPlay.OnClick = [&show] { PlaySoundClip(show, show.frmEditor.txtPath.Text); };
}

void MoveRow(Show& show, int from, int to) {
  const std::string what = "Move question " + std::to_string(from + 1) + " to " + std::to_string(to + 1);
  RunEdit(show, what, [&show, from, to] { MoveQuestion(show, from, to); });
}

void AttachList(Show& show) {
  EditorForm& form = show.frmEditor;
  OnEdit(show, form.btnUndo, form.mnuEditUndo, btnUndo_Click);
  OnEdit(show, form.btnRedo, form.mnuEditRedo, btnRedo_Click);
  OnEdit(show, form.btnDuplicateQuestion, form.mnuEditDuplicate, btnDuplicateQuestion_Click, "Duplicate question ");
  OnEdit(show, form.btnFindNext, btnFindNext_Click);
  OnEdit(show, form.lstQuestions, lstQuestions_Click);
  OnTyped(show, form.txtFind, txtFind_Change, "");
  OnClick(show, form.mnuEditFind, mnuEditFind_Click);
  form.lstQuestions.OnMove = [&show](int from, int to) { MoveRow(show, from, to); };
  form.lstQuestions.OnDuplicate = [&show] { show.frmEditor.btnDuplicateQuestion.Click(); };
  form.lstQuestions.OnDelete = [&show] {
    RunEdit(show, NameStep(show, "Delete question "), [&show] { RemoveQuestion(show); });
  };
}

}  // namespace

void AttachEditorHandlers(Show& show) {
  OnClick(show, show.frmMain.btnStartGame, btnStartGame_Click);
  show.frmEditChoice.btnCurrent.OnClick = [&show] { EditChoice_Click(show, true); };
  show.frmEditChoice.New.OnClick = [&show] { EditChoice_Click(show, false); };
  AttachEntries(show);
  AttachFiles(show);
  AttachQuestions(show);
  AttachList(show);
  AttachImportHandlers(show);
  AttachRepairHandlers(show);
  AttachMediaCheckHandlers(show);
}

}  // namespace pawnfield
