// Windows-1252, the text of the core, to and from Unicode. The only place where the two meet.
#pragma once

#include <QString>
#include <optional>
#include <string>

namespace pawnfield {

// Every byte has a character; the five that the code page leaves open become the control characters of that number.
QString FromWindows1252(const std::string& bytes);
// Empty when a character has no byte.
std::optional<std::string> ToWindows1252(const QString& text);

}  // namespace pawnfield
