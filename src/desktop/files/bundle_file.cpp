#include "desktop/files/bundle_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "desktop/files/bundle_rules.h"
#include "desktop/files/native_path.h"
#include "desktop/files/whole_file.h"
#include "desktop/files/windows_1252.h"
#include "desktop/files/zip_file.h"

namespace pawnfield {

namespace {

constexpr const char* kAside = ".pawnset-";

[[noreturn]] void Refuse(const char* words) { throw RuntimeError(kErrorPathAccess, words); }

bool CopyEntry(const ZipReader& zip, std::size_t entry, const QString& path, std::uint64_t& left,
               const GoesOn& goesOn) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) Refuse("The folder can't be written to");
  bool goes = true;
  zip.Copy(entry, left, [&](std::string_view piece) {
    if (file.write(piece.data(), static_cast<qint64>(piece.size())) != static_cast<qint64>(piece.size())) {
      throw RuntimeError(kErrorDiskFull, "Disk full");
    }
    left -= piece.size();
    return goes = goesOn(1 - static_cast<double>(left) / static_cast<double>(kLargestBundle));
  });
  if (!file.flush()) throw RuntimeError(kErrorDiskFull, "Disk full");
  if (goes) KeepOnDisk(path);
  return goes;
}

// Fills the folder with all but the set, by the rules anew: the file may be another one by now.
bool UnpackInto(const QString& bundle, const QString& folder, const GoesOn& goesOn) {
  const ZipReader zip = ZipReader::OfFile(bundle.toStdString());
  LookInto(zip);
  std::uint64_t left = kLargestBundle;
  for (std::size_t i = 0; i < zip.Entries().size(); ++i) {
    const QString name = QString::fromStdString(zip.Entries()[i].Name);
    if (name.endsWith(".txt", Qt::CaseInsensitive)) continue;
    if (!CopyEntry(zip, i, folder + '/' + name, left, goesOn)) return false;
  }
  return true;
}

// What a process left that was killed amid an unpacking.
void RemoveAsides(const QString& parent) {
  const QString beginning = kAside;
  for (const QString& name : QDir(parent).entryList({beginning + '*'}, QDir::Dirs | QDir::Hidden)) {
    const qint64 owner = name.mid(beginning.size()).section('-', 0, 0).toLongLong();
    if (HasEnded(owner)) QDir(parent + '/' + name).removeRecursively();
  }
}

}  // namespace

bool WriteBundle(const QString& path, const std::string& setName, const std::string& setBytes,
                 const std::vector<PackedFile>& media, const GoesOn& goesOn) {
  std::vector<ZipContent> contents{{Unescape(setName).toStdString() + ".txt", "", setBytes}};
  std::uint64_t total = 0;
  for (const PackedFile& file : media) {
    const QString native = NativePath(file.Path);
    total += static_cast<std::uint64_t>(QFileInfo(native).size());
    contents.push_back({Unescape(file.Name).toStdString(), native.toStdString(), ""});
  }
  if (contents.size() > kMostBundled) Refuse("A bundle holds 1,000 files at most");
  if (total > kLargestBundle) Refuse("A bundle holds 2 GB at most");
  if (!QFileInfo(QFileInfo(path).absolutePath()).isWritable()) Refuse("The folder can't be written to");
  try {
    return ReplaceFileBy(path, [&](std::FILE* file) { return WriteZip(file, contents, goesOn); });
  } catch (const RuntimeError& error) {
    if (error.Number() == kErrorPathAccess) Refuse("The file can't be replaced");
    throw;
  }
}

bool UnpackBundle(const QString& bundle, const QString& folder, const GoesOn& goesOn) {
  const QString parent = QFileInfo(folder).absolutePath();
  if (QFileInfo::exists(folder)) Refuse("A folder of that name is there already");
  if (!QDir().mkpath(parent)) Refuse("The folder can't be made");
  RemoveAsides(parent);
  // What is not whole stands aside, and goes with this object.
  QTemporaryDir aside(parent + '/' + kAside + QString::number(QCoreApplication::applicationPid()) + "-XXXXXX");
  if (!aside.isValid()) Refuse("The folder can't be written to");
  if (!UnpackInto(bundle, aside.path(), goesOn)) return false;
  QFile::setPermissions(aside.path(), QFile::permissions(parent));
  SyncFolder(aside.path());
  if (!QDir().rename(aside.path(), folder)) Refuse("The folder can't be made");
  aside.setAutoRemove(false);
  SyncFolder(parent);
  return true;
}

}  // namespace pawnfield
