#include "desktop/painting/text_layout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/files/windows_1252.h"

namespace pawnfield {

namespace {

// Large enough that rounding to the layout's 64ths of a pixel does not show.
constexpr int kReferencePixels = 1000;

// A text label breaks at the ends of its lines whatever their form.
QString WithLineSeparators(const std::string& text) {
  QString lines = Unescape(text);
  lines.replace("\r\n", "\n");
  lines.replace('\r', '\n');
  lines.replace('\n', QChar::LineSeparator);
  return lines;
}

double WidestWord(const QString& text, const QFont& font) {
  const QFontMetricsF metrics(font);
  double widest = 0;
  qsizetype start = 0;
  for (qsizetype i = 0; i <= text.size(); ++i) {
    if (i < text.size() && !text[i].isSpace()) continue;
    if (i > start) widest = std::max(widest, metrics.horizontalAdvance(text.mid(start, i - start)));
    start = i + 1;
  }
  return widest;
}

}  // namespace

void SubstituteFonts() {
  QFont::insertSubstitution("Segoe UI", "Inter");
  QFont::insertSubstitution("Courier New", "Liberation Mono");
  QFont::insertSubstitution("Comic Sans MS", "Comic Neue");
  QFont::insertSubstitution("Arial", "Liberation Sans");
  QFont::insertSubstitution("Times New Roman", "Liberation Serif");
  QFont::insertSubstitution("MS Sans Serif", "Liberation Sans");
}

QFont LayoutFont(const Font& font) {
  QFont result(Unescape(font.Name));
  result.setPixelSize(kReferencePixels);
  result.setBold(font.Bold);
  result.setItalic(font.Italic);
  result.setHintingPreference(QFont::PreferNoHinting);
  return result;
}

TextBlock::TextBlock(const Font& font, const std::string& text, double wrapWidth, Qt::Alignment alignment,
                     Breaks breaks, double pitch)
    : pitch_(pitch) {
  if (font.Size <= 0) return;
  const QFont reference = LayoutFont(font);
  scale_ = font.Size * kTwipsPerPoint / kReferencePixels;
  layout_.setFont(reference);
  layout_.setText(WithLineSeparators(text));
  QTextOption option(alignment);
  const bool atWords = breaks == Breaks::AtWords;
  option.setWrapMode(breaks == Breaks::Never ? QTextOption::NoWrap
                     : atWords               ? QTextOption::WordWrap
                                             : QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setUseDesignMetrics(true);
  // By the text's own letters, and not by the desktop's.
  option.setTextDirection(Qt::LayoutDirectionAuto);
  layout_.setTextOption(option);
  layout_.setCacheEnabled(true);
  // A hair more than the widest word, so that rounding within the layout never breaks a word in two.
  width_ = wrapWidth / scale_;
  if (atWords) width_ = std::max(width_, WidestWord(layout_.text(), reference) + 1);
  layout_.beginLayout();
  for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
    line.setLineWidth(width_);
    const double taken = line.height() * pitch_;
    line.setPosition(QPointF(0, height_ + (taken - line.height()) / 2));
    height_ += taken;
  }
  layout_.endLayout();
}

double TextBlock::WidthOfLetters() const {
  double widest = 0;
  for (int i = 0; i < layout_.lineCount(); ++i) widest = std::max(widest, layout_.lineAt(i).naturalTextWidth());
  return widest * scale_;
}

double TextBlock::WholeLines(double height) const {
  double whole = 0;
  for (int i = 0; i < layout_.lineCount(); ++i) {
    const QTextLine line = layout_.lineAt(i);
    const double bottom = (line.y() + line.height() * (1 + pitch_) / 2) * scale_;
    if (bottom <= height) whole = bottom;
  }
  return whole;
}

double TextBlock::LetterHeight() const { return QFontMetricsF(layout_.font()).capHeight() * scale_; }

void TextBlock::Draw(QPainter& painter, const QPointF& at) const {
  painter.save();
  painter.translate(at);
  painter.scale(scale_, scale_);
  layout_.draw(&painter, QPointF(0, 0));
  painter.restore();
}

void TextBlock::Outline(QPainter& painter, const QPointF& at, const QColor& color) const {
  constexpr double kEdge = 0.03 * kReferencePixels;
  painter.save();
  painter.translate(at);
  painter.scale(scale_, scale_);
  painter.setPen(color);
  for (int step = 0; step < 8; ++step) {
    const double turn = step * std::acos(-1.0) / 4;
    layout_.draw(&painter, QPointF(std::cos(turn), std::sin(turn)) * kEdge);
  }
  painter.restore();
}

}  // namespace pawnfield
