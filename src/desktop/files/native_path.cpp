#include "desktop/files/native_path.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <algorithm>

#include "desktop/files/windows_1252.h"
#include "platform/escapes.h"

namespace pawnfield {

namespace {

// The entry of the folder that the part names, or the part itself.
QString FindPart(const QString& folder, const QString& part) {
  QString direct = folder + part;
  if (part == "." || part == ".." || QFileInfo::exists(direct)) return direct;
  const QStringList entries = QDir(folder.isEmpty() ? QString(".") : folder)
                                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  for (const QString& entry : entries) {
    if (entry.compare(part, Qt::CaseInsensitive) == 0) return folder + entry;
  }
  return direct;
}

}  // namespace

QString NativePath(const std::string& spelled) {
  std::string slashed = spelled;
  std::replace(slashed.begin(), slashed.end(), '\\', '/');
  QString path = Unescape(slashed);
  if (path.isEmpty() || QFileInfo::exists(path)) return path;
  const QStringList parts = path.split('/', Qt::SkipEmptyParts);
  QString native = path.startsWith('/') ? QString("/") : QString();
  for (qsizetype i = 0; i < parts.size(); ++i) {
    native = FindPart(native, parts[i]);
    if (i + 1 < parts.size()) native += '/';
  }
  return native;
}

std::string SpelledPath(const QString& native) {
  std::string spelled;
  for (const char byte : Escape(native)) {
    if (byte == '\\') {
      spelled += EscapeOf(U'\\');
    } else {
      spelled += byte == '/' ? '\\' : byte;
    }
  }
  return spelled;
}

std::optional<QString> NativePlainFile(const std::string& spelled) {
  if (spelled.empty() || spelled.find('\0') != std::string::npos) return std::nullopt;
  const QString path = NativePath(spelled);
  // Opening a pipe or a device could block the show, so the kind is tested before anything is opened.
  if (!QFileInfo(path).isFile()) return std::nullopt;
  if (!QFile(path).open(QIODevice::ReadOnly)) return std::nullopt;
  return QFileInfo(path).absoluteFilePath();
}

}  // namespace pawnfield
