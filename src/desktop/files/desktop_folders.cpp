#include "desktop/files/desktop_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "desktop/files/native_path.h"
#include "desktop/files/user_copy.h"

namespace pawnfield {

namespace {

constexpr const char* kSetsFolder = "Trivia Sets";

QString ProgramFolder() {
  QString beside = QCoreApplication::applicationDirPath();
  if (QFileInfo(beside + "/Images").isDir()) return beside;
  QString built = QStringLiteral(PAWNFIELD_ASSETS_DIR);
  if (!built.isEmpty() && QFileInfo(built + "/Images").isDir()) return built;
  return QDir::cleanPath(beside + "/../share/pawnfield");
}

// The convention for these folders has a variable that holds a relative path ignored.
QString Home(QStandardPaths::StandardLocation location, const char* variable, const char* otherwise) {
  const QString told = qEnvironmentVariable(variable);
  const bool odd = !told.isEmpty() && QDir::isRelativePath(told);
  return odd ? QDir::homePath() + otherwise : QStandardPaths::writableLocation(location);
}

QString DataHome() { return Home(QStandardPaths::GenericDataLocation, "XDG_DATA_HOME", "/.local/share"); }

}  // namespace

Folders FindFolders(std::optional<CopyFailure>& failure) {
  QString app = ProgramFolder();
  const bool writable = QFileInfo(app).isWritable() && QFileInfo(app + '/' + kSetsFolder).isWritable();
  if (!writable) {
    const QString shared = app;
    app = DataHome() + "/Pawnfield";
    failure = UpdateUserCopy(shared, app);
  }
  QDir().mkpath(DataHome());
  Folders folders;
  folders.App = SpelledPath(app);
  folders.DataRoot = SpelledPath(DataHome() + "/Ostara Show Kit Data");
  // Only a Windows says where it is installed.
  folders.SystemDrive = qEnvironmentVariable("SystemDrive").toStdString();
  return folders;
}

QString ConfigFolder() {
  return Home(QStandardPaths::GenericConfigLocation, "XDG_CONFIG_HOME", "/.config") + "/Pawnfield";
}

QString RuntimeFolder() {
  QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (folder.isEmpty()) folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  return folder + "/pawnfield";
}

}  // namespace pawnfield
