#include "desktop/files/ini_text.h"

#include <QUrl>

namespace pawnfield {

namespace {

// Kept out of names in the file, where they would mean something else.
QByteArray FormatName(const QString& name) { return QUrl::toPercentEncoding(name, " "); }
QString ParseName(const QString& text) { return QUrl::fromPercentEncoding(text.trimmed().toUtf8()); }

QString FormatValue(const QString& value) {
  QString text = "\"";
  for (const QChar character : value) {
    if (character == '"' || character == '\\') {
      text += QString("\\") + character;
    } else if (character < ' ') {
      // The mark that ends the number keeps a digit that follows out of it.
      text += "\\x" + QString::number(character.unicode(), 16) + "\\;";
    } else {
      text += character;
    }
  }
  return text + '"';
}

// One escape, which begins at the place after the backslash; the place moves behind it.
QString ParseEscape(const QString& text, qsizetype& at) {
  constexpr QLatin1String kLetters("nrtabfv0"), kMeanings("\n\r\t\a\b\f\v\0", 8);
  const QChar letter = text[at++];
  if (letter == ';') return {};
  if (letter != 'x') {
    const auto place = kLetters.indexOf(letter);
    return place < 0 ? QString(letter) : QString(QChar(kMeanings[place]));
  }
  const auto from = at;
  while (at < text.size() && (text[at].isDigit() || QString("abcdef").contains(text[at].toLower()))) ++at;
  return QChar(text.mid(from, at - from).toUShort(nullptr, 16));
}

QString ParseValue(const QString& line) {
  const QString text = line.trimmed();
  const bool quoted = text.startsWith('"');
  QString value;
  for (qsizetype at = quoted ? 1 : 0; at < text.size();) {
    if (quoted && text[at] == '"') break;
    if (text[at] == '\\' && at + 1 < text.size()) {
      value += ParseEscape(text, ++at);
    } else {
      value += text[at++];
    }
  }
  return value;
}

}  // namespace

IniValues ParseIni(const QByteArray& bytes) {
  IniValues values;
  QString section;
  for (const QString& line : QString::fromUtf8(bytes).split('\n')) {
    const QString text = line.trimmed();
    const auto gap = text.indexOf('=');
    if (text.startsWith('[') && text.endsWith(']')) {
      section = ParseName(text.mid(1, text.size() - 2));
    } else if (gap > 0 && !text.startsWith(';') && !text.startsWith('#')) {
      values[section][ParseName(text.left(gap))] = ParseValue(text.mid(gap + 1));
    }
  }
  return values;
}

QByteArray FormatIni(const IniValues& values) {
  QByteArray bytes;
  for (auto section = values.begin(); section != values.end(); ++section) {
    // Keys before the first section have none.
    if (!section.key().isEmpty()) bytes += '[' + FormatName(section.key()) + "]\n";
    for (auto entry = section->begin(); entry != section->end(); ++entry) {
      bytes += FormatName(entry.key()) + '=' + FormatValue(entry.value()).toUtf8() + '\n';
    }
  }
  return bytes;
}

}  // namespace pawnfield
