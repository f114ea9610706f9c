#include "forms/optional_headers_form.h"

namespace pawnfield {

OptionalHeadersForm::OptionalHeadersForm() : Form("frmOptionalHeaders") {
  Form::Caption = "Optional Headers";
  mnuFile.Caption = "&File";
  mnuFileOpen.Caption = "&Open";
  mnuFileSave.Caption = "&Save";
  mnuFileSaveAs.Caption = "Save &As";
  mnuFileExit.Caption = "E&xit";
  for (std::size_t i = 0; i < txtOptionalHeader.Size(); ++i) {
    btnOpt1Font[i].Caption = "Font";
    btnOpt1Fg[i].Caption = "Font Color";
    btnOpt1Bg[i].Caption = "Background";
  }
  lblBaseImage.Caption = "Show base header along with optional headers.";
  btnOpen.Caption = "Open";
  btnSave.Caption = "Save";
  btnClearAll.Caption = "Clear All";
  btnOk.Caption = "OK";
  btnCancel.Caption = "Cancel";
}

}  // namespace pawnfield
