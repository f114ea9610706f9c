// The small forms of start-up and game choice: loading, splash, the type-change question and the list of game types.
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
  // Runs while reports to the companion wait.
  Timer tmrCompanion{*this, "tmrCompanion", 1};
  // Runs while values of the external keyboard program's key wait; long enough for a press to be seen and heard first.
  Timer tmrSharedKey{*this, "tmrSharedKey", 50};
  // Runs while an event of the game waits to be taken down, for the same reason.
  Timer tmrRecord{*this, "tmrRecord", 50};
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

}  // namespace pawnfield
