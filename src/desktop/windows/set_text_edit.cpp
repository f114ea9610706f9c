#include "desktop/windows/set_text_edit.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

#include "desktop/files/windows_1252.h"
#include "desktop/windows/spelling_marks.h"

namespace pawnfield {

namespace {

// A set has one line for a text, so that a line break becomes a blank.
QString OneLine(QString text) {
  text.replace("\r\n", " ");
  for (const QChar mark : {QChar('\r'), QChar('\n'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)}) {
    text.replace(mark, ' ');
  }
  return text.normalized(QString::NormalizationForm_C);
}

// The first character that no text of people holds; empty when there is none.
QString Unstorable(const QString& text) {
  for (const char32_t code : text.toUcs4()) {
    const bool control = (code < 0x20 && code != '\t') || code == 0x7F || (code >= 0xD800 && code <= 0xDFFF);
    if (control) return QString::fromUcs4(&code, 1);
  }
  return {};
}

// As the box has them: one end of a line, whatever it is in the set.
QString WithOneBreak(QString text) {
  text.replace("\r\n", "\n");
  return text.replace('\r', '\n');
}

// As many letters as the file has room for. A letter that Western European text doesn't have takes five bytes there.
QString Fitting(const QString& text, qsizetype room) {
  QString fitting;
  for (const char32_t code : text.toUcs4()) {
    const QString letter = QString::fromUcs4(&code, 1);
    room -= static_cast<qsizetype>(EscapeLines(letter).size());
    if (room < 0) break;
    fitting += letter;
  }
  return fitting;
}

QString NameOf(const QString& character) {
  const char32_t code = character.toUcs4().first();
  const QString number = "U+" + QString::number(code, 16).toUpper().rightJustified(4, '0');
  return character.at(0).isPrint() || character.size() > 1 ? '"' + character + "\" (" + number + ')' : number;
}

class SetTextBinding : public Observer {
 public:
  SetTextBinding(TextBox& box, SetTextEdit& view) : box_(box), view_(view) {
    view_.SetLimit(static_cast<qsizetype>(box.MaxLength));
    Changed(box, PropertyId::Text);
    box.AddObserver(*this);
    QObject::connect(&view_, &QPlainTextEdit::textChanged, &bound_, [this] { Edited(); });
    QObject::connect(&view_, &SetTextEdit::FocusLeft, &bound_, [this] { box_.LoseFocus(); });
  }

  void Changed(Control&, PropertyId id) override {
    view_.setVisible(box_.Visible);
    view_.setEnabled(box_.Enabled);
    if (id == PropertyId::Focus) view_.setFocus();
    const QString text = WithOneBreak(Unescape(box_.Text));
    if (id == PropertyId::Text && view_.Content() != text) {
      const QSignalBlocker quiet(view_);
      view_.setPlainText(text);
    }
  }

 private:
  void Edited() {
    const std::string bytes = EscapeLines(view_.Content());
    if (bytes != box_.Text.Get()) box_.Type(bytes);
  }

  TextBox& box_;
  SetTextEdit& view_;
  // A view outlives what binds it, and the marks of its spelling change its text once more when they go.
  QObject bound_;
};

}  // namespace

SetTextEdit::~SetTextEdit() = default;

SetTextEdit::SetTextEdit(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  // The editor takes back what was typed, with all else that was changed.
  setUndoRedoEnabled(false);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

// The toolkit's plain text would have its hard blanks changed into soft ones.
QString SetTextEdit::Content() const {
  return document()->toRawText().replace(QChar(QChar::ParagraphSeparator), QChar('\n'));
}

bool SetTextEdit::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    // The toolkit would keep these keys from the menu.
    if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) return false;
  }
  return QPlainTextEdit::event(event);
}

void SetTextEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    focusNextChild();
    return;
  }
  const bool command = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0 &&
                       event->modifiers() != (Qt::ControlModifier | Qt::AltModifier);
  if (command || event->text().isEmpty() || event->text().at(0) < ' ' || event->text().at(0) == QChar(0x7F)) {
    QPlainTextEdit::keyPressEvent(event);
  } else {
    Insert(event->text());
  }
}

void SetTextEdit::inputMethodEvent(QInputMethodEvent* event) {
  const QString committed = event->commitString();
  event->setCommitString(QString());
  QPlainTextEdit::inputMethodEvent(event);
  if (!committed.isEmpty()) Insert(committed);
}

void SetTextEdit::insertFromMimeData(const QMimeData* source) {
  if (source->hasText()) Insert(source->text());
}

void SetTextEdit::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  // A menu and another window leave the box as it was.
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) emit FocusLeft();
}

void SetTextEdit::Insert(const QString& text) {
  const QString line = OneLine(text);
  const QString refused = Unstorable(line);
  if (!refused.isEmpty()) {
    ShowNotice(NameOf(refused) + " can't be kept in a set file and was not taken.");
    return;
  }
  const auto bytesOf = [](const QString& of) { return static_cast<qsizetype>(EscapeLines(of).size()); };
  const QString selected = textCursor().selectedText();
  const qsizetype room = limit_ - (bytesOf(Content()) - bytesOf(selected));
  const QString fitting = limit_ == 0 ? line : Fitting(line, room);
  if (fitting != line) ShowNotice(NoticeOf(line));
  insertPlainText(fitting);
  ensureCursorVisible();
}

QString SetTextEdit::NoticeOf(const QString& line) const {
  const bool plain = ToWindows1252(line + Content()).has_value();
  return plain ? QString("Only %1 characters fit here. The rest was left out.").arg(limit_)
               : QString(
                     "Only %1 characters fit here, and letters of other alphabets count as five. The rest was left "
                     "out.")
                     .arg(limit_);
}

void SetTextEdit::SetSpeller(Speller* speller) {
  marks_ = speller == nullptr ? nullptr : std::make_unique<SpellingMarks>(*document(), *speller);
}

// A right click on a word that is marked offers others for it, above what a text box offers anyway.
void SetTextEdit::contextMenuEvent(QContextMenuEvent* event) {
  const std::unique_ptr<QMenu> menu(createStandardContextMenu());
  if (marks_)
    marks_->AddSuggestions(*menu, cursorForPosition(event->pos()),
                           [this](const QTextCursor& word, const QString& with) {
                             setTextCursor(word);
                             Insert(with);
                           });
  menu->exec(event->globalPos());
}

void SetTextEdit::ShowNotice(const QString& notice) {
  notice_ = notice;
  QToolTip::showText(mapToGlobal(QPoint(0, height())), notice, this);
}

std::unique_ptr<Observer> MakeSetTextBinding(TextBox& box, SetTextEdit& view) {
  return std::make_unique<SetTextBinding>(box, view);
}

}  // namespace pawnfield
