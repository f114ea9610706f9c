// The small forms of start-up and game choice: loading, splash, the type-change question, the list of game types, and
// what the names dialog's settings need.
#pragma once

#include "platform/controls.h"

namespace pawnfield {

struct LoadingForm : Form {
  LoadingForm();
  Label lblLoading{*this, "lblLoading"};
};

struct AlwaysLoadedForm : Form {
  AlwaysLoadedForm();
  Timer tmrAlwaysLoaded{*this, "tmrAlwaysLoaded", 50};
};

struct SplashForm : Form {
  SplashForm();
  Image imgBG{*this, "imgBG"};
  ProgressBar oProgress{*this, "oProgress"};
  Timer tmrProgress{*this, "tmrProgress", 50};
  Timer tmrSplash{*this, "tmrSplash", 5600};
};

struct GameLoadingForm : Form {
  GameLoadingForm();
  Label lblPleaseWait{*this, "lblPleaseWait"};
  Timer tmrPleaseWait{*this, "tmrPleaseWait", 30000};
};

struct GameInProgressForm : Form {
  GameInProgressForm();
  Label lblPrompt{*this, "lblPrompt"};
  Button btnReset{*this, "btnReset"};
  Button btnCancel{*this, "btnCancel"};
};

struct GameTypeHelpForm : Form {
  GameTypeHelpForm();
  Label lblGameTypes{*this, "lblGameTypes"};
  Button btnOk{*this, "btnOk"};
};

struct PlayerNamesForm : Form {
  PlayerNamesForm();
  CheckBox chkPlayer1Penalty{*this, "chkPlayer1Penalty"};
  CheckBox chkPlayer2Penalty{*this, "chkPlayer2Penalty"};
  CheckBox chkPlayer3Penalty{*this, "chkPlayer3Penalty"};
  ComboBox cboPenaltyPoints{*this, "cboPenaltyPoints"};
};

}  // namespace pawnfield
