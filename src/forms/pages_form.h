// frmPages: phones and pages on the local network; the address and its code, the PINs, the seats, who is connected, and
// the control interface.
#pragma once

#include "data/players.h"
#include "platform/controls.h"

namespace pawnfield {

struct PagesForm : Form {
  PagesForm();

  Label lblWhat{*this, "lblWhat"};
  Label lblNetwork{*this, "lblNetwork"};
  ComboBox cboAddress{*this, "cboAddress"};
  Button btnSwitch{*this, "btnSwitch"};
  CheckBox chkKeepOn{*this, "chkKeepOn"};
  Label lblPagesStatus{*this, "lblPagesStatus"};
  // The phones' address, which the window also shows as a QR code, and what each page asks for.
  Label lblPhonesPrompt{*this, "lblPhonesPrompt"};
  Label lblPhonesAddress{*this, "lblPhonesAddress"};
  Label lblPinPrompt{*this, "lblPinPrompt"};
  Label lblPin{*this, "lblPin"};
  Label lblHostPrompt{*this, "lblHostPrompt"};
  Label lblHostAddress{*this, "lblHostAddress"};
  Label lblHostPin{*this, "lblHostPin"};
  Label lblScoresPrompt{*this, "lblScoresPrompt"};
  Label lblScoresAddress{*this, "lblScoresAddress"};

  Label lblSeats{*this, "lblSeats"};
  ControlArray<Label, kPlayers> lblSeatName{*this, "lblSeatName"};
  ControlArray<Label, kPlayers> lblSeat{*this, "lblSeat"};
  ControlArray<Button, kPlayers> btnEmptySeat{*this, "btnEmptySeat"};
  ControlArray<Button, kPlayers> btnLockSeat{*this, "btnLockSeat"};
  Label lblWeighing{*this, "lblWeighing"};
  ControlArray<OptionButton, 2> optWeighing{*this, "optWeighing"};
  ListView lstPages{*this, "lstPages"};

  CheckBox chkControl{*this, "chkControl"};
  Label lblControlToken{*this, "lblControlToken"};
  Label lblControlAddresses{*this, "lblControlAddresses"};
  TextBox txtControlAddresses{*this, "txtControlAddresses"};
  Button btnClose{*this, "btnClose"};

  // The exchanges of times with the phones, and the wait of the first press for those that may have been earlier.
  Timer tmrPing{*this, "tmrPing", 1000};
  Timer tmrWeigh{*this, "tmrWeigh", 1};
  // What a control device wants of the operator is asked for behind the event that brought it.
  Timer tmrControl{*this, "tmrControl", 1};
};

}  // namespace pawnfield
