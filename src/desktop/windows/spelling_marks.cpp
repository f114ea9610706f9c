#include "desktop/windows/spelling_marks.h"

#include <QMenu>
#include <QRegularExpression>
#include <QTextBlock>

#include "desktop/windows/speller.h"

namespace pawnfield {

namespace {

struct Word {
  int Start = 0;
  QString Text;
};

QList<Word> WordsOf(const QString& text) {
  static const QRegularExpression kWord("[\\p{L}\\p{M}\\p{N}]+(?:['\\x{2019}][\\p{L}\\p{M}]+)*");
  QList<Word> words;
  for (auto found = kWord.globalMatch(text); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    words.append({static_cast<int>(match.capturedStart()), match.captured()});
  }
  return words;
}

}  // namespace

SpellingMarks::SpellingMarks(QTextDocument& text, Speller& speller) : QSyntaxHighlighter(&text), speller_(speller) {}

void SpellingMarks::highlightBlock(const QString& text) {
  QTextCharFormat wrong;
  wrong.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
  wrong.setUnderlineColor(QColor(0xF0, 0x6A, 0x70));
  for (const Word& word : WordsOf(text)) {
    if (!speller_.IsRight(word.Text)) setFormat(word.Start, static_cast<int>(word.Text.size()), wrong);
  }
}

void SpellingMarks::AddSuggestions(QMenu& menu, const QTextCursor& at,
                                   const std::function<void(QTextCursor, QString)>& replace) const {
  const int place = at.positionInBlock();
  for (const Word& word : WordsOf(at.block().text())) {
    const int end = word.Start + static_cast<int>(word.Text.size());
    if (place < word.Start || place > end || speller_.IsRight(word.Text)) continue;
    QTextCursor marked(at.block());
    marked.setPosition(at.block().position() + word.Start);
    marked.setPosition(at.block().position() + end, QTextCursor::KeepAnchor);
    QAction* first = menu.actions().isEmpty() ? nullptr : menu.actions().constFirst();
    const QStringList others = speller_.Suggestions(word.Text);
    for (const QString& other : others) {
      auto* action = new QAction(other, &menu);
      QObject::connect(action, &QAction::triggered, &menu, [replace, marked, other] { replace(marked, other); });
      menu.insertAction(first, action);
    }
    if (others.isEmpty()) {
      auto* none = new QAction("No suggestions", &menu);
      none->setEnabled(false);
      menu.insertAction(first, none);
    }
    menu.insertSeparator(first);
    return;
  }
}

}  // namespace pawnfield
