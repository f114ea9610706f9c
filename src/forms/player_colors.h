// The players' colours as both screens write them.
#pragma once

#include "data/players.h"
#include "platform/controls.h"

namespace pawnfield {

// Red, yellow and green, light enough to be read on the lit box.
inline const PerPlayer<Color> kPlayerColors{0x706BFF, 0x4DD8FF, 0x8CE046};

}  // namespace pawnfield
