// Whether what is told by colour can be told apart, and read, by every eye.

#include "data/color_sight.h"

#include <gtest/gtest.h>

#include <string>

#include "data/house_colors.h"

namespace pawnfield {
namespace {

std::string Named(Sight sight) { return "sight " + std::to_string(static_cast<int>(sight)); }

TEST(ColorSight, KnowsTheRatiosThatTheRulesOfContrastGive) {
  EXPECT_NEAR(ContrastRatio(kBlack, kWhite), 21, 0.01);
  EXPECT_NEAR(ContrastRatio(FromRgb(0x767676), kWhite), 4.54, 0.01);
  EXPECT_NEAR(ContrastRatio(kRed, kWhite), 4.0, 0.01);
}

TEST(ColorSight, LeavesGreysAloneAndTakesRedFromGreenWhereItsConesAreMissing) {
  for (const Sight sight : kAllSights) {
    EXPECT_LT(SeenDistance(SeenBy(sight, FromRgb(0x808080)), FromRgb(0x808080)), 2) << Named(sight);
  }
  const Color dullRed = FromRgb(0xA05030);
  const Color dullGreen = FromRgb(0x607020);
  EXPECT_GT(SeenDistance(dullRed, dullGreen), 45);
  EXPECT_LT(SeenDistance(SeenBy(Sight::NoGreen, dullRed), SeenBy(Sight::NoGreen, dullGreen)), 20);
  const Color blue = FromRgb(0x2060A0);
  EXPECT_GT(SeenDistance(SeenBy(Sight::NoGreen, dullRed), SeenBy(Sight::NoGreen, blue)), 40);
}

TEST(HouseColors, TheTwoVerdictsStandApartByLightForEverySight) {
  for (const Sight sight : kAllSights) {
    EXPECT_GE(ContrastRatio(SeenBy(sight, kRightGround), SeenBy(sight, kWrongGround)), 2.5) << Named(sight);
    EXPECT_GE(ContrastRatio(SeenBy(sight, kRightWords), SeenBy(sight, kWrongWords)), 2.5) << Named(sight);
  }
}

TEST(HouseColors, EveryTwoPlayersLookDifferentToEverySight) {
  constexpr double kPlainlyApart = 10;
  for (const Sight sight : kAllSights) {
    for (const auto& [one, other] : {std::pair{1, 2}, {1, 3}, {2, 3}}) {
      const double apart = SeenDistance(SeenBy(sight, kPlayerColors[one]), SeenBy(sight, kPlayerColors[other]));
      EXPECT_GE(apart, kPlainlyApart) << Named(sight) << ", players " << one << " and " << other;
    }
  }
}

TEST(HouseColors, WhatIsWrittenOnAVerdictsButtonIsReadByEverySight) {
  for (const Sight sight : kAllSights) {
    EXPECT_GE(ContrastRatio(SeenBy(sight, kRightInk), SeenBy(sight, kRightGround)), 4.5) << Named(sight);
    EXPECT_GE(ContrastRatio(SeenBy(sight, kWrongInk), SeenBy(sight, kWrongGround)), 4.5) << Named(sight);
  }
}

}  // namespace
}  // namespace pawnfield
