#include "desktop/system/own_processes.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "desktop/files/windows_1252.h"

namespace pawnfield {

namespace {

// The program's file name, or what the kernel calls it when it has no command line.
QString CaptionOf(const QString& processFolder) {
  QFile commandLine(processFolder + "/cmdline");
  if (commandLine.open(QIODevice::ReadOnly)) {
    const QByteArray first = commandLine.readAll().split('\0').first();
    if (!first.isEmpty()) return QFileInfo(QFile::decodeName(first)).fileName();
  }
  QFile name(processFolder + "/comm");
  return name.open(QIODevice::ReadOnly) ? QString::fromUtf8(name.readAll()).trimmed() : QString();
}

}  // namespace

std::vector<ProcessInfo> OwnProcesses() {
  std::vector<ProcessInfo> processes;
  for (const QString& entry : QDir("/proc").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    bool isNumber = false;
    const qlonglong id = entry.toLongLong(&isNumber);
    if (!isNumber || QFileInfo("/proc/" + entry).ownerId() != geteuid()) continue;
    const std::string caption = Escape(CaptionOf("/proc/" + entry));
    if (!caption.empty()) processes.push_back({caption, id});
  }
  std::sort(processes.begin(), processes.end(),
            [](const ProcessInfo& a, const ProcessInfo& b) { return a.Handle < b.Handle; });
  return processes;
}

}  // namespace pawnfield
