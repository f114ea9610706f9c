// frmShowCheck: a row for each thing that a show needs, with a light, a sentence and what tries or mends it; the boxes
// of the players who press their buttons once, and what the check of the set has found.
#pragma once

#include <array>
#include <cstddef>

#include "data/players.h"
#include "platform/controls.h"

namespace pawnfield {

// The rows from the top. A further one is a value here and a name in the source, a sentence and what its buttons do in
// program/show_check.
enum class CheckRow { Audience, Buzzers, Sound, Set, Questions, Awake, Disk, Emergency };
inline constexpr std::size_t kCheckRows = 8;

struct ShowCheckForm : Form {
  ShowCheckForm();

  // By row, however the controls are counted.
  template <typename T>
  static T& Of(ControlArray<T, kCheckRows>& controls, CheckRow row) {
    return controls[static_cast<std::size_t>(row)];
  }

  Label lblReady{*this, "lblReady"};
  // The light in words; the thing; what is to be said of it; what mends it and what tries it.
  ControlArray<Chip, kCheckRows> chpLight{*this, "chpLight"};
  ControlArray<Label, kCheckRows> lblThing{*this, "lblThing"};
  ControlArray<Label, kCheckRows> lblSentence{*this, "lblSentence"};
  ControlArray<Button, kCheckRows> btnMend{*this, "btnMend"};
  ControlArray<Button, kCheckRows> btnTry{*this, "btnTry"};
  // While each presses once: a box for each player, whose ground turns green at his press.
  ControlArray<Label, kPlayers> lblPress{*this, "lblPress"};
  Label lblPressNote{*this, "lblPressNote"};
  // Question and sentence; a click opens the editor there.
  ListView lstFindings{*this, "lstFindings"};
  CheckBox chkInFront{*this, "chkInFront"};
  Button btnClose{*this, "btnClose"};

  Timer tmrTestPicture{*this, "tmrTestPicture", 10000};
  // Until the next of the five sounds.
  Timer tmrSounds{*this, "tmrSounds", 1500};
  // Looks again at what doesn't announce its changes.
  Timer tmrLook{*this, "tmrLook", 3000};
};

}  // namespace pawnfield
