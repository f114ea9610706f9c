// What the machine knows of text, and chance.
#pragma once

#include "platform/ports.h"

namespace pawnfield {

class QtTextMeasurer : public TextMeasurer {
 public:
  TextSize Measure(const Font& font, const std::string& text, double wrapWidth) const override;
  LackedLetters Lacked(const Font& font, const std::string& text) const override;
};

class SeededRandom : public RandomSource {
 public:
  void Randomize() override;
  double Next() override;

 private:
  std::uint64_t state_ = 1;
};

}  // namespace pawnfield
