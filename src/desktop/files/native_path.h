// Paths as the program spells them (backslashes, any case), turned into paths of this machine. The only place where
// that is done.
#pragma once

#include <QString>
#include <optional>
#include <string>

namespace pawnfield {

// Takes both separators. Each part that does not exist as spelled is looked for without regard to case; from the first
// part that is not there at all, the rest stays as spelled.
QString NativePath(const std::string& spelled);
// With backslashes, and such that NativePath leads back: a backslash in a name goes as an escape.
std::string SpelledPath(const QString& native);
// NativePath, when a plain file stands there that can be opened for reading.
std::optional<QString> NativePlainFile(const std::string& spelled);

}  // namespace pawnfield
