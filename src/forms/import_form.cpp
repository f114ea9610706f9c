#include "forms/import_form.h"

namespace pawnfield {

ImportForm::ImportForm() : Form("frmImport") {
  Form::Caption = "Import Questions";
  lblQuestionColumn.Caption = "Question:";
  lblAnswerColumn.Caption = "Answer:";
  chkHeading.Caption = "The first row is a heading";
  optAdd.Caption = "Add behind the set's questions";
  optReplace.Caption = "Replace the set's questions";
  optAdd.Group = {&optAdd, &optReplace};
  optReplace.Group = optAdd.Group;
  lstRows.ColumnHeaders = {"Row", "Kind", "Question", "Answer", "Check"};
  btnTake.Caption = "Import";
  btnCancel.Caption = "Cancel";
}

}  // namespace pawnfield
