// The house's colours that mean something, each by what it means. A colour is 0x00BBGGRR, as everywhere.
#pragma once

#include "data/players.h"
#include "platform/controls.h"

namespace pawnfield {

// From the usual notation, red first.
constexpr Color FromRgb(int rgb) { return ((rgb & 0xFF) << 16) | (rgb & 0xFF00) | ((rgb >> 16) & 0xFF); }

// The grounds of panels, of what is written in, and of the audience's screen where it is lightest.
inline constexpr Color kPanelGround = FromRgb(0x171F33);
inline constexpr Color kDeepGround = FromRgb(0x0B0F1A);
inline constexpr Color kBoardLight = FromRgb(0x24407C);
// Where the result is written: the same ground with less light, so that every player's colour is read on it.
inline constexpr Color kResultLight = FromRgb(0x172A56);
inline constexpr Color kBoardShade = FromRgb(0x0A1128);

inline constexpr Color kHouseText = FromRgb(0xE6EAF2);
inline constexpr Color kQuietText = FromRgb(0xA9B6D2);
inline constexpr Color kGold = FromRgb(0xF2B84B);

// Red, yellow and green of players 1, 2 and 3.
inline const PerPlayer<Color> kPlayerColors{FromRgb(0xFF6B70), FromRgb(0xFFD84D), FromRgb(0x46E08C)};

// The words of the two verdicts. Right is the lighter one by far, so that they differ where red and green don't.
inline constexpr Color kRightWords = FromRgb(0x9CFBC6);
inline constexpr Color kWrongWords = FromRgb(0xE8383E);
// The grounds of the two verdict buttons and what is written on them, by the same rule.
inline constexpr Color kRightGround = FromRgb(0x3CC47E);
inline constexpr Color kRightInk = FromRgb(0x04160C);
inline constexpr Color kWrongGround = FromRgb(0xA62A30);
inline constexpr Color kWrongInk = FromRgb(0xFFFFFF);

}  // namespace pawnfield
