// What the fits are measured against and with: the search that steps down from the first size, a question of 256
// characters, and the boxes of both screens.
#pragma once

#include <string>

#include "platform/ports.h"
#include "presentation/text_fitting.h"

namespace pawnfield {

inline constexpr FitLimits kConsoleLimits{80, 6562, 6612, 4976};
inline constexpr FitLimits kAudienceLimits{120, 14092, 14142, 10268};

inline std::string LongQuestion() {
  std::string text;
  while (text.size() < 256) text += "Which of the rivers that rise in the Black Forest reaches a sea without tides? ";
  text.resize(255);
  return text + "?";
}

inline int PlainSearch(const TextMeasurer& measurer, const Font& font, const std::string& text,
                       const FitLimits& limits) {
  Font sized = font;
  int size = limits.FirstSize;
  for (; size >= 6; --size) {
    sized.Size = size;
    const TextSize measured = measurer.Measure(sized, text, limits.WrapWidth);
    if (measured.Height < limits.MaxHeight && measured.Width < limits.MaxWidth) break;
  }
  return size;
}

}  // namespace pawnfield
