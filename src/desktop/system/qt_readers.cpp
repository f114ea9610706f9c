#include "desktop/system/qt_readers.h"

#include <QImageReader>
#include <QRandomGenerator>

#include "desktop/files/native_path.h"
#include "desktop/painting/text_layout.h"

namespace pawnfield {

TextSize QtTextMeasurer::Measure(const Font& font, const std::string& text, double wrapWidth) const {
  const TextBlock block(font, text, wrapWidth);
  return {block.Width(), block.Height()};
}

PixelSize QtPictureReader::Size(const std::string& path) const {
  const auto native = NativePlainFile(path);
  if (!native) throw RuntimeError(kErrorFileNotFound, "File not found");
  QImageReader reader(*native);
  reader.setDecideFormatFromContent(true);
  // The header alone may promise a picture that the rest of the file does not hold.
  const QImage image = reader.read();
  if (image.isNull()) throw RuntimeError(kErrorInvalidPicture, "Invalid picture");
  return {image.width(), image.height()};
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
