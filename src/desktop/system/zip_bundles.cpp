#include "desktop/system/zip_bundles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <filesystem>

#include "desktop/files/bundle_rules.h"
#include "desktop/files/native_path.h"
#include "desktop/files/windows_1252.h"
#include "desktop/files/zip_file.h"
#include "desktop/system/work_beside.h"
#include "platform/ports.h"

namespace pawnfield {

namespace {

std::string Utf8(const QString& text) { return text.toStdString(); }

void CopyEntry(const ZipReader& zip, std::size_t entry, const QString& path, std::uint64_t& left, WorkProgress& work) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
    throw RuntimeError(kErrorPathAccess, "The folder can't be written to");
  }
  zip.Copy(entry, left, [&](std::string_view piece) {
    if (file.write(piece.data(), static_cast<qint64>(piece.size())) != static_cast<qint64>(piece.size())) {
      throw RuntimeError(kErrorDiskFull, "Disk full");
    }
    left -= piece.size();
    work.Tell(1 - static_cast<double>(left) / static_cast<double>(kLargestBundle));
    return !work.IsStopped();
  });
  if (!file.flush()) throw RuntimeError(kErrorDiskFull, "Disk full");
}

// Fills the folder with all but the set, by the rules anew: the file may be another one by now.
void UnpackInto(const QString& bundle, const QString& folder, WorkProgress& work) {
  const ZipReader zip = ZipReader::OfFile(Utf8(bundle));
  LookInto(zip);
  std::uint64_t left = kLargestBundle;
  for (std::size_t i = 0; i < zip.Entries().size() && !work.IsStopped(); ++i) {
    const QString name = QString::fromStdString(zip.Entries()[i].Name);
    if (!name.endsWith(".txt", Qt::CaseInsensitive)) CopyEntry(zip, i, folder + '/' + name, left, work);
  }
}

}  // namespace

bool ZipBundles::Pack(const std::string& path, const std::string& setName, const std::string& setBytes,
                      const std::vector<PackedFile>& media) {
  std::vector<ZipContent> contents{{Utf8(Unescape(setName) + ".txt"), "", setBytes}};
  std::uint64_t total = 0;
  for (const PackedFile& file : media) {
    const QString native = NativePath(file.Path);
    total += static_cast<std::uint64_t>(QFileInfo(native).size());
    contents.push_back({Utf8(Unescape(file.Name)), Utf8(native), ""});
  }
  if (contents.size() > kMostBundled) throw RuntimeError(kErrorPathAccess, "A bundle holds 1,000 files at most");
  if (total > kLargestBundle) throw RuntimeError(kErrorPathAccess, "A bundle holds 2 GB at most");
  const QString target = NativePath(path);
  if (!QFileInfo(QFileInfo(target).path()).isWritable()) {
    throw RuntimeError(kErrorPathAccess, "The folder can't be written to");
  }
  const QString part = QFileInfo(target).path() + "/." + QFileInfo(target).fileName() + ".part";
  bool packed = false;
  try {
    packed = WorkBeside("Packing the set...", [&](WorkProgress& work) {
      return WriteZip(Utf8(part), contents, [&work](double done) {
        work.Tell(done);
        return !work.IsStopped();
      });
    });
    if (packed) std::filesystem::rename(Utf8(part), Utf8(target));
  } catch (const std::filesystem::filesystem_error&) {
    QFile::remove(part);
    throw RuntimeError(kErrorPathAccess, "The file can't be replaced");
  } catch (const RuntimeError&) {
    QFile::remove(part);
    throw;
  }
  if (!packed) QFile::remove(part);
  return packed;
}

BundleContents ZipBundles::Look(const std::string& path) const {
  return LookInto(ZipReader::OfFile(Utf8(NativePath(path))));
}

bool ZipBundles::Unpack(const std::string& path, const std::string& folder) {
  const QString target = NativePath(folder), bundle = NativePath(path);
  const QString parent = QFileInfo(target).path();
  if (QFileInfo::exists(target)) throw RuntimeError(kErrorPathAccess, "A folder of that name is there already");
  if (!QDir().mkpath(parent)) throw RuntimeError(kErrorPathAccess, "The folder can't be made");
  // What is not whole stands aside, and goes with this object.
  QTemporaryDir aside(parent + "/.pawnset-XXXXXX");
  if (!aside.isValid()) throw RuntimeError(kErrorPathAccess, "The folder can't be written to");
  const bool done = WorkBeside("Unpacking the set...", [&](WorkProgress& work) {
    UnpackInto(bundle, aside.path(), work);
    return !work.IsStopped();
  });
  if (!done) return false;
  QFile::setPermissions(aside.path(), QFile::permissions(parent));
  if (!QDir().rename(aside.path(), target)) throw RuntimeError(kErrorPathAccess, "The folder can't be made");
  aside.setAutoRemove(false);
  return true;
}

}  // namespace pawnfield
