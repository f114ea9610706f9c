#include "platform/desktop/qt_file_system.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "platform/desktop/native_path.h"
#include "platform/desktop/windows_1252.h"

namespace pawnfield {

namespace {

RuntimeError Failure(int number) {
  switch (number) {
    case kErrorFileNotFound:
      return {number, "File not found"};
    case kErrorDiskFull:
      return {number, "Disk full"};
    case kErrorPathAccess:
      return {number, "Path/File access error"};
    case kErrorPathNotFound:
      return {number, "Path not found"};
    default:
      return {kErrorDeviceIo, "Device I/O error"};
  }
}

bool ParentExists(const QString& path) { return QFileInfo(QFileInfo(path).absolutePath()).isDir(); }

// What a failed open for reading means, asked of the disk because one error code stands for all of it.
int ReadErrorNumber(const QString& path) {
  const QFileInfo info(path);
  if (info.exists()) return kErrorPathAccess;
  return ParentExists(path) ? kErrorFileNotFound : kErrorPathNotFound;
}

int WriteErrorNumber(const QSaveFile& file, const QString& path) {
  if (!ParentExists(path)) return kErrorPathNotFound;
  if (file.error() == QFileDevice::ResourceError) return kErrorDiskFull;
  const QFileInfo target(path);
  const bool locked = (target.exists() && !target.isWritable()) || !QFileInfo(target.absolutePath()).isWritable();
  return locked || file.error() == QFileDevice::PermissionsError || target.isDir() ? kErrorPathAccess : kErrorDeviceIo;
}

}  // namespace

std::string QtFileSystem::Read(const std::string& path) const {
  const QString native = NativePath(path);
  QFile file(native);
  if (QFileInfo(native).isDir() || !file.open(QIODevice::ReadOnly)) throw Failure(ReadErrorNumber(native));
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) throw Failure(kErrorDeviceIo);
  return bytes.toStdString();
}

void QtFileSystem::Write(const std::string& path, const std::string& bytes) {
  const QString native = NativePath(path);
  QSaveFile file(native);
  const auto size = static_cast<qint64>(bytes.size());
  // The commit flushes to the disk before it renames; a file that is not committed leaves no trace.
  const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.commit();
  if (!written) throw Failure(WriteErrorNumber(file, native));
}

bool QtFileSystem::CanOpen(const std::string& path) const { return NativePlainFile(path).has_value(); }

bool QtFileSystem::FolderExists(const std::string& path) const { return QFileInfo(NativePath(path)).isDir(); }

void QtFileSystem::CreateFolder(const std::string& path) {
  const QString native = NativePath(path);
  if (QFileInfo::exists(native)) throw Failure(kErrorPathAccess);
  if (!ParentExists(native)) throw Failure(kErrorPathNotFound);
  if (!QDir().mkdir(native)) throw Failure(kErrorPathAccess);
}

std::vector<std::string> QtFileSystem::List(const std::string& folder, const std::string& extension) const {
  std::vector<std::string> names;
  const QString ending = FromWindows1252(extension);
  const QStringList entries = QDir(NativePath(folder)).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
  for (const QString& entry : entries) {
    // A name that the core can't spell could not be opened by it either.
    const auto name = ToWindows1252(entry);
    if (name && entry.endsWith(ending, Qt::CaseInsensitive)) names.push_back(*name);
  }
  return names;
}

}  // namespace pawnfield
