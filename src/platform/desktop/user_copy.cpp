#include "platform/desktop/user_copy.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSaveFile>

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

void WriteManifest(const QString& userFolder, const Manifest& manifest) {
  QSaveFile file(ManifestPath(userFolder));
  if (!file.open(QFile::WriteOnly)) return;
  for (auto entry = manifest.begin(); entry != manifest.end(); ++entry) {
    file.write(entry.value() + ' ' + entry.key().toUtf8() + '\n');
  }
  file.commit();
}

// Whole or not at all, and writable whatever the shipped file is.
bool CopyWhole(const QString& from, const QString& to) {
  QDir().mkpath(QFileInfo(to).path());
  QFile source(from);
  QSaveFile target(to);
  if (!source.open(QFile::ReadOnly) || !target.open(QFile::WriteOnly)) return false;
  const QByteArray content = source.readAll();
  return target.write(content) == content.size() && target.commit();
}

bool WasRemovedByOperator(const QString& path, const QByteArray& known) {
  return !known.isEmpty() && path.startsWith("Trivia Sets/");
}

// True when the user's file now is, or may be left as, what the manifest is to say.
bool UpdateFile(const QString& from, const QString& to, const QString& path, const QByteArray& known,
                const QByteArray& shipped) {
  if (!QFileInfo::exists(to)) return WasRemovedByOperator(path, known) || CopyWhole(from, to);
  if (known.isEmpty() || known == shipped || Digest(to) != known) return true;
  return CopyWhole(from, to);
}

}  // namespace

void UpdateUserCopy(const QString& shared, const QString& userFolder) {
  QDir().mkpath(userFolder);
  const Manifest before = ReadManifest(userFolder);
  Manifest manifest = before;
  QDirIterator files(shared, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString from = files.next();
    const QString path = QDir(shared).relativeFilePath(from);
    const QByteArray shipped = Digest(from);
    if (shipped.isEmpty()) continue;
    if (UpdateFile(from, userFolder + '/' + path, path, manifest.value(path), shipped)) manifest[path] = shipped;
  }
  if (manifest != before) WriteManifest(userFolder, manifest);
}

}  // namespace pawnfield
