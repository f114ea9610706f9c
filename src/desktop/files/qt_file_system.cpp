#include "desktop/files/qt_file_system.h"

#include <QDir>
#include <QFileInfo>
#include <cerrno>

#include "desktop/files/native_path.h"
#include "desktop/files/whole_file.h"
#include "desktop/files/windows_1252.h"
#include "platform/large_file.h"

namespace pawnfield {

std::string QtFileSystem::Read(const std::string& path) const {
  const QString native = NativePath(path);
  const QFileInfo info(native);
  // Reading a pipe or a device might never end.
  if (info.exists() && !info.isFile()) throw FileError(EISDIR);
  CheckSize(static_cast<std::uint64_t>(info.size()));
  return ReadFile(native).toStdString();
}

void QtFileSystem::Write(const std::string& path, const std::string& bytes) { ReplaceFile(NativePath(path), bytes); }

void QtFileSystem::WriteLike(const std::string& path, const std::string& bytes, const std::string& other) {
  ReplaceFile(NativePath(path), bytes, NativePath(other));
}

bool QtFileSystem::CanOpen(const std::string& path) const { return NativePlainFile(path).has_value(); }

bool QtFileSystem::FolderExists(const std::string& path) const { return QFileInfo(NativePath(path)).isDir(); }

void QtFileSystem::CreateFolder(const std::string& path) { MakeFolder(NativePath(path)); }

std::vector<std::string> QtFileSystem::List(const std::string& folder, const std::string& extension) const {
  std::vector<std::string> names;
  const QString ending = Unescape(extension);
  const QDir where(NativePath(folder));
  for (const QString& entry : where.entryList(QDir::Files, QDir::Name | QDir::IgnoreCase)) {
    // The toolkit takes a link to a device for a file.
    if (!QFileInfo(where, entry).isFile()) continue;
    if (entry.endsWith(ending, Qt::CaseInsensitive)) names.push_back(SpelledPath(entry));
  }
  return names;
}

}  // namespace pawnfield
