// How far two colours stand apart for the eye: the contrast of text and ground, and what each kind of colour-blind eye
// sees of a colour.
#pragma once

#include <array>

#include "platform/controls.h"

namespace pawnfield {

// The kinds of sight: the usual one, and those without the long, the middle or the short waves.
enum class Sight { Usual, NoRed, NoGreen, NoBlue };
inline constexpr std::array kAllSights{Sight::Usual, Sight::NoRed, Sight::NoGreen, Sight::NoBlue};

// Light given back, 0 for black to 1 for white.
double Luminance(Color color);
// From 1 for equally light colours to 21 for black and white.
double ContrastRatio(Color a, Color b);
// The colour that a usual eye would have to be shown to see what that sight sees.
Color SeenBy(Sight sight, Color color);
// How far apart two colours look, about 1 for what can just be told apart side by side and 100 for black and white.
double SeenDistance(Color a, Color b);
// The first colour with a share of the second one mixed in.
Color Mixed(Color color, Color other, double share);

}  // namespace pawnfield
