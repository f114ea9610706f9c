#include "forms/pages_form.h"

namespace pawnfield {

PagesForm::PagesForm() : Form("frmPages") {
  Form::Caption = "Phones and pages";
  lblWhat.Caption =
      "Players ring in by their phones, the host reads along on a tablet, and the stream shows the scores. All of them "
      "must be in one local network with this computer, best in one of the show's own.";
  lblNetwork.Caption = "Network";
  chkKeepOn.Caption = "Keep on at the next start";
  lblPhonesPrompt.Caption = "Phones";
  lblPinPrompt.Caption = "PIN";
  lblHostPrompt.Caption = "Host's page, and its PIN";
  lblScoresPrompt.Caption = "Scores for the stream";
  lblSeats.Caption = "Seats";
  lblWeighing.Caption = "Phones";
  optWeighing[0].Caption = "By time pressed";
  optWeighing[1].Caption = "By arrival";
  optWeighing[0].Group = optWeighing[1].Group = {&optWeighing[0], &optWeighing[1]};
  optWeighing[0].ToolTipText =
      "A press counts when the phone's button went down, as far as its clock and its longest way can be known.";
  optWeighing[1].ToolTipText = "A press counts when it comes.";
  lstPages.ColumnHeaders = {"Page", "Address", "There and back"};
  chkControl.Caption = "Control interface for button boxes and show control";
  lblControlAddresses.Caption = "OSC from and to these addresses, parted by blanks";
  btnClose.Caption = "Close";
  for (std::size_t i = 0; i < kPlayers; ++i) {
    btnEmptySeat[i].Caption = "Empty";
    btnEmptySeat[i].ToolTipText = "Gives the seat to the next phone that takes it";
  }
}

}  // namespace pawnfield
