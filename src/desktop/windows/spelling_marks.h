// Underlines the misspelt words of a text box and offers others for them.
#pragma once

#include <QSyntaxHighlighter>
#include <QTextCursor>
#include <functional>

class QMenu;

namespace pawnfield {

class Speller;

class SpellingMarks : public QSyntaxHighlighter {
  Q_OBJECT
 public:
  SpellingMarks(QTextDocument& text, Speller& speller);

  // Puts what a misspelt word under the cursor could be at the menu's head; `replace` is called with the word and the
  // one that was chosen. Nothing for a right word.
  void AddSuggestions(QMenu& menu, const QTextCursor& at,
                      const std::function<void(QTextCursor word, QString with)>& replace) const;

 protected:
  void highlightBlock(const QString& text) override;

 private:
  Speller& speller_;
};

}  // namespace pawnfield
