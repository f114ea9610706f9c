#include "desktop/files/windows_1252.h"

#include <QHash>
#include <QStringDecoder>
#include <algorithm>

#include "platform/escapes.h"

namespace pawnfield {

namespace {

constexpr int kBytes = 256;

// The toolkit's own code page, asked once: its converters are slow to make and not for two threads at a time.
struct CodePage {
  CodePage() {
    for (int value = 0; value < kBytes; ++value) {
      const char byte = static_cast<char>(value);
      QStringDecoder decoder("windows-1252");
      const QString decoded = decoder(QByteArrayView(&byte, 1));
      const QChar character = decoded.size() == 1 ? decoded.front() : QChar(value);
      characters += character;
      bytes.insert(character, byte);
    }
  }
  QString characters;
  QHash<QChar, char> bytes;
};

const CodePage& TheCodePage() {
  static const CodePage page;
  return page;
}

QChar CharacterOf(char byte) { return TheCodePage().characters.at(static_cast<unsigned char>(byte)); }

std::optional<char> ByteOf(char32_t code) {
  if (code > 0xFFFF) return std::nullopt;
  const auto& bytes = TheCodePage().bytes;
  const auto found = bytes.constFind(QChar(static_cast<char16_t>(code)));
  if (found == bytes.constEnd()) return std::nullopt;
  return *found;
}

// Whether the text itself holds a mark and digits there.
bool LooksLikeEscape(const QList<uint>& codes, qsizetype at) {
  std::string seen;
  if (codes[at] != static_cast<uint>(kEscapeMark)) return false;
  for (const uint code : codes.sliced(at).first(std::min<qsizetype>(kEscapeLength, codes.size() - at))) {
    seen += code < 0x80 ? static_cast<char>(code) : ' ';
  }
  return EscapeAt(seen, 0).has_value();
}

}  // namespace

std::string Escape(const QString& text) {
  std::string bytes;
  const QList<uint> codes = text.toUcs4();
  for (qsizetype i = 0; i < codes.size(); ++i) {
    const std::optional<char> byte = ByteOf(codes[i]);
    if (byte && !LooksLikeEscape(codes, i)) {
      bytes += *byte;
    } else {
      bytes += EscapeOf(codes[i]);
    }
  }
  return bytes;
}

std::string EscapeLines(const QString& text) {
  std::string line;
  for (const char byte : Escape(text)) {
    const bool control = static_cast<unsigned char>(byte) < ' ' && byte != '\t';
    line += control ? EscapeOf(static_cast<unsigned char>(byte)) : std::string(1, byte);
  }
  return line;
}

QString Unescape(const std::string& bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (std::size_t at = 0; at < bytes.size();) {
    const std::optional<char32_t> code = EscapeAt(bytes, at);
    if (code) {
      text += QChar::fromUcs4(*code);
    } else {
      text += CharacterOf(bytes[at]);
    }
    at += code ? kEscapeLength : 1;
  }
  return text;
}

QString FromWindows1252(const std::string& bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char byte : bytes) text += CharacterOf(byte);
  return text;
}

std::optional<std::string> ToWindows1252(const QString& text) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar character : text.normalized(QString::NormalizationForm_C)) {
    const auto byte = ByteOf(character.unicode());
    if (!byte) return std::nullopt;
    bytes.push_back(*byte);
  }
  return bytes;
}

}  // namespace pawnfield
