#include "forms/show_check_form.h"

namespace pawnfield {

ShowCheckForm::ShowCheckForm() : Form("frmShowCheck") {
  constexpr std::array<const char*, kCheckRows> kThings{"Audience screen", "Buzzers",       "Sound",
                                                        "Trivia set",      "Questions",     "Sleep and saver",
                                                        "Disk and record", "Emergency page"};
  Form::Caption = "Show check";
  for (std::size_t i = 0; i < kCheckRows; ++i) {
    lblThing[i].Caption = std::string(kThings[i]);
    btnMend[i].Visible = btnTry[i].Visible = false;
  }
  for (std::size_t i = 0; i < kPlayers; ++i) lblPress[i].Visible = false;
  lblPressNote.Visible = false;
  lstFindings.ColumnHeaders = {"Question", "What the room or the host would see of it"};
  lstFindings.Visible = false;
  chkInFront.Caption = "Keep in front of the console";
  btnClose.Caption = "Close";
  tmrLook.Relaxed = true;
}

}  // namespace pawnfield
