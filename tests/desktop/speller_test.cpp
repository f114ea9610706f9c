// Spelling in the editor's boxes: which dictionary is taken, which words are marked, and what a right click offers.

#include "desktop/windows/speller.h"

#include <QMenu>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>

#include "desktop/windows/spelling_marks.h"
#include "places.h"

namespace pawnfield {
namespace {

// Dictionaries of a few words.
class SpellerTest : public FolderTest {
 protected:
  SpellerTest() {
    Dictionary("en_US", "UTF-8", "4\nwho\nwon\nthe\ncup\n");
    Dictionary("de_DE", "ISO8859-1", "2\nM\xFCll\nwer\n");
    Dictionary("el_GR", "UTF-8", QByteArray("1\n\xCE\xBD\xCE\xB1\xCE\xB9\n"));
  }
  void Dictionary(const QString& name, const char* encoding, const QByteArray& words) {
    Make("words/" + name + ".aff", QByteArray("SET ") + encoding + "\nTRY esianrtolcdugmphbyfvkwz\n");
    Make("words/" + name + ".dic", words);
  }
  Speller In(const QStringList& languages) const { return Speller({Native("none"), Native("words")}, languages); }
};

TEST_F(SpellerTest, TakesTheDictionaryOfTheDesktopsLanguageOrEnglishOrSaysThatThereIsNone) {
  const std::pair<QStringList, const char*> cases[] = {
      {{"de-DE", "de", "en-US"}, "de_DE"}, {{"de-AT", "de"}, "de_DE"}, {{"fr-FR", "fr"}, "en_US"}, {{}, "en_US"}};
  for (const auto& [languages, taken] : cases) EXPECT_EQ(In(languages).Language(), taken);
  EXPECT_EQ(In({"en-US"}).Problem(), "");
  const Speller none({Native("none")}, {"en-US"});
  EXPECT_EQ(none.Problem(), "No dictionary is installed (a package such as hunspell-en-us).");
}

TEST_F(SpellerTest, MarksMisspeltWordsOfItsLettersAndNothingElse) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"en-US", "who wun the cup?", "wun"},
      {"en-US", "who 1969 x 3rd \u03BD\u03B1\u03B9 \u05D0\u05D1", ""},
      {"de-DE", "Wer M\u00FCll Mull", "Mull"},
      {"el-GR", "\u03BD\u03B1\u03B9 \u03BD\u03BF\u03B9 who", "\u03BD\u03BF\u03B9"},
      {"en-US", "\u201Cthe\u201D th\u00E9", "th\u00E9"},
  };
  for (const auto& [language, text, wrong] : cases) {
    Speller speller = In({language});
    QPlainTextEdit edit;
    edit.setPlainText(QString::fromUtf8(text));
    SpellingMarks marks(*edit.document(), speller);
    marks.rehighlight();
    QString marked;
    for (const auto& range : edit.document()->firstBlock().layout()->formats()) {
      marked += edit.toPlainText().mid(range.start, range.length);
    }
    EXPECT_EQ(marked.toStdString(), wrong) << text;
  }
}

TEST_F(SpellerTest, ARightClickOffersWordsAndPutsTheChosenOneInItsPlace) {
  Speller speller = In({"en-US"});
  QPlainTextEdit edit;
  edit.setPlainText("who wun it");
  SpellingMarks marks(*edit.document(), speller);
  QTextCursor at(edit.document());
  at.setPosition(5);
  QMenu menu;
  menu.addAction("Copy");
  marks.AddSuggestions(menu, at, [](QTextCursor word, const QString& with) { word.insertText(with); });
  ASSERT_GE(menu.actions().size(), 3);
  EXPECT_EQ(menu.actions().constFirst()->text(), "won");
  EXPECT_EQ(menu.actions().constLast()->text(), "Copy");
  menu.actions().constFirst()->trigger();
  EXPECT_EQ(edit.toPlainText(), "who won it");
  at.setPosition(1);
  QMenu right;
  marks.AddSuggestions(right, at, [](const QTextCursor&, const QString&) {});
  EXPECT_TRUE(right.actions().isEmpty());
}

}  // namespace
}  // namespace pawnfield
