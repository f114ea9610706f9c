#include "desktop/system/qt_readers.h"

#include <QFontMetrics>
#include <QRandomGenerator>
#include <QRawFont>

#include "desktop/files/windows_1252.h"
#include "desktop/painting/text_layout.h"

namespace pawnfield {

TextSize QtTextMeasurer::Measure(const Font& font, const std::string& text, double wrapWidth) const {
  const TextBlock block(font, text, wrapWidth);
  return {block.Width(), block.Height()};
}

// The toolkit borrows the letters that a font lacks from others; one that draws nothing but a box has no glyph in any.
LackedLetters QtTextMeasurer::Lacked(const Font& font, const std::string& text) const {
  const QFont wanted = LayoutFont(font);
  const QRawFont alone = QRawFont::fromFont(wanted);
  const QFontMetrics together(wanted);
  QString borrowed, missing;
  for (const char32_t code : Unescape(text).toUcs4()) {
    const QString letter = QString::fromUcs4(&code, 1);
    if (code < ' ' || QChar::isSpace(code) || !QChar::isPrint(code) || alone.supportsCharacter(code)) continue;
    QString& to = together.inFontUcs4(code) ? borrowed : missing;
    if (!to.contains(letter)) to += letter;
  }
  return {Escape(borrowed), Escape(missing)};
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
