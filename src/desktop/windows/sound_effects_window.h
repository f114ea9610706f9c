// frmSoundEffects' window: the grid of the sound table, made for a table that is filled in one evening.
#pragma once

#include "desktop/windows/form_window.h"

namespace pawnfield {

struct SoundEffectsForm;

class SoundEffectsWindow : public FormWindow {
 public:
  SoundEffectsWindow(SoundEffectsForm& form, FormWindows& windows);
};

}  // namespace pawnfield
