#include "snapshot.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include "desktop/files/zip_file.h"
#include "platform/ports.h"

namespace pawnfield::faults {

namespace {

bool IsWholePage(const QByteArray& bytes) {
  const QByteArray mark = "startxref\n";
  const auto place = bytes.lastIndexOf(mark);
  if (!bytes.startsWith("%PDF-") || !bytes.trimmed().endsWith("%%EOF") || place < 0) return false;
  const auto from = place + mark.size();
  const auto table = bytes.mid(from, bytes.indexOf('\n', from) - from).toLongLong();
  return bytes.mid(table, 4) == "xref";
}

// The files in a snapshot's one bundle, none where there is no bundle; a RuntimeError for a broken one.
Snapshot Packed(const Snapshot& bundle) {
  constexpr std::uint64_t kLimit = 64U << 20U;
  Snapshot files;
  if (bundle.isEmpty()) return files;
  const QByteArray& bytes = bundle.first();
  const ZipReader zip = ZipReader::OfBytes({bytes.constData(), static_cast<std::size_t>(bytes.size())});
  for (std::size_t i = 0; i < zip.Entries().size(); ++i) {
    files[QString::fromStdString(zip.Entries()[i].Name)] = QByteArray::fromStdString(zip.Read(i, kLimit));
  }
  return files;
}

}  // namespace

Snapshot Take(const QString& folder, const QStringList& files) {
  Snapshot snapshot;
  for (const QString& name : files) {
    QFile file(folder + '/' + name);
    if (file.open(QFile::ReadOnly)) snapshot[name] = file.readAll();
  }
  return snapshot;
}

Verdict JudgeFiles(const Snapshot& now, const Snapshot& before, const Snapshot& after) {
  if (now == after) return Verdict::New;
  if (now == before) return Verdict::Old;
  for (const QString& name : (QStringList(before.keys()) + after.keys() + now.keys())) {
    const bool isOld = now.contains(name) == before.contains(name) && now.value(name) == before.value(name);
    const bool isNew = now.contains(name) == after.contains(name) && now.value(name) == after.value(name);
    if (!isOld && !isNew) return Verdict::Torn;
  }
  return Verdict::Between;
}

Verdict JudgeCopy(const Snapshot& now, const Snapshot& before, const Snapshot& after) {
  constexpr const char* kList = "Shipped.lst";
  Snapshot files = now;
  const QByteArray list = files.take(kList);
  const QList<QByteArray> known = (before.value(kList) + after.value(kList)).split('\n');
  for (const QByteArray& line : list.split('\n')) {
    if (!known.contains(line.startsWith('+') ? line.mid(1) : line)) return Verdict::Torn;
  }
  const bool settled = list == before.value(kList) || list == after.value(kList);
  if (settled) return JudgeFiles(now, before, after);
  Snapshot old = before, fresh = after;
  old.remove(kList);
  fresh.remove(kList);
  return JudgeFiles(files, old, fresh) == Verdict::Torn ? Verdict::Torn : Verdict::Between;
}

Verdict JudgeSet(const Snapshot& now, const Snapshot& before, const Snapshot& after) {
  Snapshot sets[] = {now, before, after};
  QByteArray kept[3];
  for (int i = 0; i < 3; ++i) {
    for (const QString& name : sets[i].keys()) {
      if (name.endsWith(".bak")) kept[i] = sets[i].take(name);
    }
  }
  const bool known = before.isEmpty() || kept[0].isEmpty() || kept[0] == kept[1] || sets[1].values().contains(kept[0]);
  return known ? JudgeFiles(sets[0], sets[1], sets[2]) : Verdict::Torn;
}

Verdict JudgeBundle(const Snapshot& now, const Snapshot& before, const Snapshot& after) {
  try {
    const Snapshot files = Packed(now);
    if (files == Packed(after)) return Verdict::New;
    return files == Packed(before) ? Verdict::Old : Verdict::Torn;
  } catch (const RuntimeError&) {
    return Verdict::Torn;
  }
}

Verdict JudgePages(const Snapshot& now, const Snapshot& before, const Snapshot& after) {
  if (now == before) return Verdict::Old;
  if (now.isEmpty() || !IsWholePage(now.first())) return Verdict::Torn;
  const auto distance = [&](const Snapshot& other) {
    return qAbs(now.first().size() - (other.isEmpty() ? 0 : other.first().size()));
  };
  return distance(after) <= distance(before) ? Verdict::New : Verdict::Old;
}

QStringList Strays(const QString& folder, const QStringList& wanted) {
  QStringList strays;
  QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString name = QDir(folder).relativeFilePath(files.next());
    if (!wanted.contains(name)) strays << name;
  }
  return strays;
}

}  // namespace pawnfield::faults
