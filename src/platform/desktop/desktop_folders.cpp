#include "platform/desktop/desktop_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/desktop/native_path.h"

namespace pawnfield {

namespace {

constexpr const char* kSetsFolder = "Trivia Sets";

QString ProgramFolder() {
  const QString beside = QCoreApplication::applicationDirPath();
  if (QFileInfo(beside + "/Images").isDir()) return beside;
  const QString built = PAWNFIELD_ASSETS_DIR;
  if (QFileInfo(built + "/Images").isDir()) return built;
  return QDir::cleanPath(beside + "/../share/pawnfield");
}

void CopyMissing(const QString& from, const QString& to) {
  QDir().mkpath(to);
  const QFileInfoList entries = QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
  for (const QFileInfo& entry : entries) {
    const QString target = to + '/' + entry.fileName();
    if (entry.isDir()) {
      CopyMissing(entry.filePath(), target);
    } else if (!QFileInfo::exists(target) && QFile::copy(entry.filePath(), target)) {
      QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
    }
  }
}

QString DataHome() { return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation); }

}  // namespace

QString MakeUserCopy(const QString& shared, const QString& userFolder) {
  QDir().mkpath(userFolder);
  const QFileInfoList entries = QDir(shared).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
  for (const QFileInfo& entry : entries) {
    const QString target = userFolder + '/' + entry.fileName();
    if (entry.fileName() == kSetsFolder) continue;
    // A link that is left from a version at another place would hide this one's pictures.
    if (QFileInfo(target).isSymLink()) QFile::remove(target);
    if (!QFileInfo::exists(target)) QFile::link(entry.absoluteFilePath(), target);
  }
  CopyMissing(shared + '/' + kSetsFolder, userFolder + '/' + kSetsFolder);
  return userFolder;
}

Folders FindFolders() {
  QString app = ProgramFolder();
  const bool writable = QFileInfo(app).isWritable() && QFileInfo(app + '/' + kSetsFolder).isWritable();
  if (!writable) app = MakeUserCopy(app, DataHome() + "/Pawnfield");
  QDir().mkpath(DataHome());
  Folders folders;
  folders.App = SpelledPath(app).value_or("");
  folders.DataRoot = SpelledPath(DataHome() + "/Ostara Show Kit Data/").value_or("");
  return folders;
}

QString ConfigFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Pawnfield";
}

QString RuntimeFolder() {
  QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (folder.isEmpty()) folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  return folder + "/pawnfield";
}

}  // namespace pawnfield
