// Text laid out at one large size without hinting, and scaled from there: what is measured grows in proportion to the
// font's size, and what is drawn breaks its lines where it was measured, at every scale.
#pragma once

#include <QFont>
#include <QString>
#include <QTextLayout>

#include "platform/controls.h"

namespace pawnfield {

inline constexpr double kTwipsPerPoint = 20;

// Makes the substitutes of fonts that this machine need not have known to the font system. Called once, at start.
void SubstituteFonts();
// The machine's font for that of a model, at the size that texts are laid out with.
QFont LayoutFont(const Font& font);
enum class Breaks { AtWords, AnywhereIfNeeded, Never };

// One text broken at words into lines of the wrap width. A word wider than that keeps its line to itself.
class TextBlock {
 public:
  // Its lines may stand closer, by a share of the font's own distance.
  TextBlock(const Font& font, const std::string& text, double wrapWidth, Qt::Alignment alignment = Qt::AlignHCenter,
            Breaks breaks = Breaks::AtWords, double pitch = 1);
  // In twips.
  double Width() const { return width_ * scale_; }
  double Height() const { return height_ * scale_; }
  // Of the letters of its widest line alone.
  double WidthOfLetters() const;
  // Of the lines that fit into the given height whole.
  double WholeLines(double height) const;
  // Of a capital.
  double LetterHeight() const;
  // With the block's top left corner at the point; the painter's unit is the twip.
  void Draw(QPainter& painter, const QPointF& at) const;
  // An edge around the letters, to be drawn before them.
  void Outline(QPainter& painter, const QPointF& at, const QColor& color) const;

 private:
  // From the reference size to twips.
  double scale_ = 1;
  QTextLayout layout_;
  double pitch_ = 1;
  double width_ = 0;
  double height_ = 0;
};

}  // namespace pawnfield
