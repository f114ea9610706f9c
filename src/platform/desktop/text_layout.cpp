#include "platform/desktop/text_layout.h"

#include <QFontMetricsF>
#include <algorithm>

#include "platform/desktop/windows_1252.h"

namespace pawnfield {

namespace {

// A text label breaks at the ends of its lines whatever their form.
QString WithLineSeparators(const std::string& text) {
  QString lines = FromWindows1252(text);
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

QFont ScaledFont(const Font& font, double pixelsPerTwip) {
  QFont result(FromWindows1252(font.Name));
  result.setPixelSize(std::max(1, static_cast<int>(font.Size * kTwipsPerPoint * pixelsPerTwip)));
  result.setBold(font.Bold);
  result.setItalic(font.Italic);
  result.setHintingPreference(QFont::PreferNoHinting);
  return result;
}

QFont TwipsFont(const Font& font) { return ScaledFont(font, 1); }

TextBlock::TextBlock(const Font& font, const std::string& text, double wrapWidth, Qt::Alignment alignment) {
  const QFont twips = TwipsFont(font);
  layout_.setFont(twips);
  layout_.setText(WithLineSeparators(text));
  QTextOption option(alignment);
  option.setWrapMode(QTextOption::WordWrap);
  option.setUseDesignMetrics(true);
  layout_.setTextOption(option);
  layout_.setCacheEnabled(true);
  // A hair more than the widest word, so that rounding within the layout never breaks a word in two.
  width_ = std::max(wrapWidth, WidestWord(layout_.text(), twips) + 1);
  layout_.beginLayout();
  for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
    line.setLineWidth(width_);
    line.setPosition(QPointF(0, height_));
    height_ += line.height();
  }
  layout_.endLayout();
}

void TextBlock::Draw(QPainter& painter, const QPointF& at) const { layout_.draw(&painter, at); }

}  // namespace pawnfield
