// Text of the core, which is Windows-1252, to and from Unicode. The only place where the two meet.
#pragma once

#include <QString>
#include <optional>
#include <string>

namespace pawnfield {

// Any text into the core and out of it again, unchanged: what has no byte is carried as an escape, and so is the mark
// of one where the text itself looks like an escape.
std::string Escape(const QString& text);
QString Unescape(const std::string& bytes);

// Escape for a text of a set, whose file has one line for it: breaks and other controls go as escapes too.
std::string EscapeLines(const QString& text);

// Every byte has a character; the five that the code page leaves open become the control characters of that number.
QString FromWindows1252(const std::string& bytes);
// Empty when a character has no byte. An accent that stands alone joins its letter.
std::optional<std::string> ToWindows1252(const QString& text);

}  // namespace pawnfield
