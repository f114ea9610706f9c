#include "forms/sound_effects_form.h"

namespace pawnfield {

SoundEffectsForm::SoundEffectsForm() : Form("frmSoundEffects") {
  Form::Caption = "Sound Effects";
  mnuSave.Caption = "&Save and Exit";
  bPreview.Caption = "&Preview Sound Effects";
  bPreview.ToolTipText = "Depress to enable sound effect previews.";
  btnImport.Caption = "Import Database";
  btnExport.Caption = "Export Database";
  Grid1.Placeholder = "Double click here to insert custom effect";
  btnCancel.Caption = "Cancel";
  btnSaveExit.Caption = "Save and Exit";
}

}  // namespace pawnfield
