// Text laid out in twips with unhinted letters, so that what is measured at one scale is what is drawn at every other.
#pragma once

#include <QFont>
#include <QString>
#include <QTextLayout>

#include "platform/controls.h"

namespace pawnfield {

inline constexpr double kTwipsPerPixel = 15;
inline constexpr double kTwipsPerPoint = 20;

// Makes the substitutes of fonts that this machine need not have known to the font system. Called once, at start.
void SubstituteFonts();
// The font with a pixel size in twips, for use under a painter that is scaled to twips.
QFont TwipsFont(const Font& font);
// Twips font scaled to the given number of pixels a twip.
QFont ScaledFont(const Font& font, double pixelsPerTwip);

// One text broken at words into lines of the wrap width. A word wider than that keeps its line to itself.
class TextBlock {
 public:
  TextBlock(const Font& font, const std::string& text, double wrapWidth, Qt::Alignment alignment = Qt::AlignHCenter);
  double Width() const { return width_; }
  double Height() const { return height_; }
  // With the block's top left corner at the point; the painter's unit is the twip.
  void Draw(QPainter& painter, const QPointF& at) const;

 private:
  QTextLayout layout_;
  double width_ = 0;
  double height_ = 0;
};

}  // namespace pawnfield
