#include "desktop/system/qt_readers.h"

#include <QRandomGenerator>

#include "desktop/painting/text_layout.h"

namespace pawnfield {

TextSize QtTextMeasurer::Measure(const Font& font, const std::string& text, double wrapWidth) const {
  const TextBlock block(font, text, wrapWidth);
  return {block.Width(), block.Height()};
}

void SeededRandom::Randomize() { state_ = QRandomGenerator::system()->generate64(); }

// SplitMix64: short, and good enough for the order of pictures and the spot of a bonus.
double SeededRandom::Next() {
  state_ += 0x9E3779B97F4A7C15U;
  std::uint64_t mixed = state_;
  mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
  mixed ^= mixed >> 31U;
  return static_cast<double>(mixed >> 11U) * 0x1.0p-53;
}

}  // namespace pawnfield
