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

// What was shipped: the content's digest by the path below the folder.
using Manifest = QMap<QString, QByteArray>;

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
    if (gap > 0) manifest[QString::fromUtf8(line.mid(gap + 1))] = line.left(gap);
  }
  return manifest;
}

QByteArray FormatManifest(const Manifest& manifest) {
  QByteArray bytes;
  for (auto entry = manifest.begin(); entry != manifest.end(); ++entry) {
    bytes += entry.value() + ' ' + entry.key().toUtf8() + '\n';
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

bool WasRemovedByOperator(const QString& path, const QByteArray& known) {
  return !known.isEmpty() && path.startsWith("Trivia Sets/");
}

// True when the user's file now is, or may be left as, what the manifest is to say.
bool UpdateFile(const QString& from, const QString& to, const QString& path, const QByteArray& known,
                const QByteArray& shipped, Copier& copier) {
  if (!QFileInfo::exists(to)) return WasRemovedByOperator(path, known) || copier.Copy(from, to);
  if (known.isEmpty() || known == shipped || Digest(to) != known) return true;
  return copier.Copy(from, to);
}

}  // namespace

std::optional<CopyFailure> UpdateUserCopy(const QString& shared, const QString& userFolder) {
  Copier copier;
  const Manifest before = ReadManifest(userFolder);
  Manifest manifest = before;
  QDirIterator files(shared, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString from = files.next();
    const QString path = QDir(shared).relativeFilePath(from);
    const QByteArray shipped = Digest(from);
    if (shipped.isEmpty()) continue;
    if (UpdateFile(from, userFolder + '/' + path, path, manifest.value(path), shipped, copier)) {
      manifest[path] = shipped;
    }
  }
  if (manifest != before) copier.Write(ManifestPath(userFolder), FormatManifest(manifest));
  return copier.First;
}

void ReportCopyFailure(Dialogs& dialogs, const CopyFailure& failure) {
  ReportError(dialogs, failure.Error, "modMain", "UpdateUserCopy", SpelledPath(failure.File));
}

}  // namespace pawnfield
