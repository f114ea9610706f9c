#include "desktop/files/user_copy.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>

#include "desktop/files/native_path.h"
#include "desktop/files/whole_file.h"
#include "platform/errors.h"

namespace pawnfield {

namespace {

// The digest of a shipped file that the user's was copied from, and of the one that is being copied. Both are empty for
// a file that is the operator's own.
struct Known {
  QByteArray Copied, Coming;
  bool operator==(const Known&) const = default;
};

// By the path below the folder.
using Manifest = QMap<QString, Known>;

// Before the digest of what is being copied.
constexpr char kComing = '+';

QString ManifestPath(const QString& userFolder) { return userFolder + "/Shipped.lst"; }

QByteArray Digest(const QString& path) {
  QFile file(path);
  QCryptographicHash hash(QCryptographicHash::Sha1);
  if (!file.open(QFile::ReadOnly) || !hash.addData(&file)) return {};
  return hash.result().toHex();
}

Manifest ReadManifest(const QString& userFolder) {
  Manifest manifest;
  QFile file(ManifestPath(userFolder));
  if (!file.open(QFile::ReadOnly)) return manifest;
  while (!file.atEnd()) {
    const QByteArray line = file.readLine().trimmed();
    const auto gap = line.indexOf(' ');
    if (gap <= 0) continue;
    Known& known = manifest[QString::fromUtf8(line.mid(gap + 1))];
    line.startsWith(kComing) ? known.Coming = line.mid(1, gap - 1) : known.Copied = line.left(gap);
  }
  return manifest;
}

QByteArray FormatManifest(const Manifest& manifest) {
  QByteArray bytes;
  for (auto entry = manifest.begin(); entry != manifest.end(); ++entry) {
    const QByteArray path = ' ' + entry.key().toUtf8() + '\n';
    if (!entry->Copied.isEmpty()) bytes += entry->Copied + path;
    if (!entry->Coming.isEmpty()) bytes += kComing + entry->Coming + path;
  }
  return bytes;
}

// Writes files until all is done, and keeps the first failure.
class Copier {
 public:
  bool Write(const QString& path, const QByteArray& bytes) {
    try {
      QDir().mkpath(QFileInfo(path).path());
      ReplaceFile(path, {bytes.data(), static_cast<std::size_t>(bytes.size())});
      return true;
    } catch (const RuntimeError& error) {
      if (!First) First = CopyFailure{error, path};
      return false;
    }
  }

  // Writable whatever the shipped file is.
  bool Copy(const QString& from, const QString& to) {
    QFile source(from);
    if (!source.open(QFile::ReadOnly)) return false;
    const QByteArray bytes = source.readAll();
    return source.error() == QFileDevice::NoError && Write(to, bytes);
  }

  std::optional<CopyFailure> First;
};

bool WasRemovedByOperator(const QString& path, const Known& known) {
  return !known.Copied.isEmpty() && path.startsWith("Trivia Sets/");
}

// Whether the shipped file is to take the place of the user's, or of none.
bool MustCopy(const QString& to, const QString& path, const Known& known, const QByteArray& shipped) {
  if (!QFileInfo::exists(to)) return !WasRemovedByOperator(path, known);
  const bool settled = known.Coming.isEmpty() && (known.Copied.isEmpty() || known.Copied == shipped);
  if (settled) return false;
  const QByteArray present = Digest(to);
  return present != shipped && (present == known.Copied || present == known.Coming);
}

// The digests of all that is shipped.
QMap<QString, QByteArray> Shipped(const QString& shared) {
  QMap<QString, QByteArray> shipped;
  QDirIterator files(shared, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString from = files.next();
    const QByteArray digest = Digest(from);
    if (!digest.isEmpty()) shipped[QDir(shared).relativeFilePath(from)] = digest;
  }
  return shipped;
}

}  // namespace

std::optional<CopyFailure> UpdateUserCopy(const QString& shared, const QString& userFolder) {
  Copier copier;
  const auto shipped = Shipped(shared);
  const Manifest before = ReadManifest(userFolder);
  Manifest coming = before, after = before;
  QStringList copied;
  for (auto file = shipped.begin(); file != shipped.end(); ++file) {
    const QString& path = file.key();
    if (MustCopy(userFolder + '/' + path, path, before.value(path), *file)) {
      copied << path;
      coming[path].Coming = *file;
    } else {
      after[path] = {*file, {}};
    }
  }
  // Kept first: what a copy that was cut off has written would else pass for the operator's own, with another version.
  const auto write = [&](const Manifest& manifest) {
    return copier.Write(ManifestPath(userFolder), FormatManifest(manifest));
  };
  if (coming != before && !write(coming)) return copier.First;
  for (const QString& path : copied) {
    if (copier.Copy(shared + '/' + path, userFolder + '/' + path)) after[path] = {shipped[path], {}};
  }
  if (after != coming) write(after);
  return copier.First;
}

void ReportCopyFailure(Dialogs& dialogs, const CopyFailure& failure) {
  ReportError(dialogs, failure.Error, "modMain", "UpdateUserCopy", SpelledPath(failure.File));
}

}  // namespace pawnfield
