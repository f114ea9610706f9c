#include "forms/missing_media_form.h"

namespace pawnfield {

MissingMediaForm::MissingMediaForm() : Form("frmDialog2") {
  Form::Caption = "Missing Media";
  lblMissingMedia.Caption = "Ostara Panel detected a missing media file.";
  Label2.Caption = "File Location:";
  btnRepair.Caption = "Repair ";
  lblRecommended.Caption = "(Recommended)";
  btnCancel.Caption = "Cancel";
  btnFinished.Caption = "Finished";
  lblCatNum.ForeColor = kYellow;
  lblQuestionNum.ForeColor = kYellow;
}

}  // namespace pawnfield
