#include "desktop/system/linux_processes.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <algorithm>

#include "desktop/files/native_path.h"
#include "desktop/files/windows_1252.h"

namespace pawnfield {

namespace {

constexpr int kConnectMs = 500;

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

LinuxProcesses::LinuxProcesses(QString runtimeFolder, std::function<void()> onActivate, QStringList programFolders)
    : runtimeFolder_(std::move(runtimeFolder)),
      onActivate_(std::move(onActivate)),
      programFolders_(std::move(programFolders)) {}

bool LinuxProcesses::AnotherInstanceRuns() {
  QDir().mkpath(runtimeFolder_);
  const QString place = runtimeFolder_ + "/pawnfield.lock";
  if (QFileInfo(place).isDir()) {
    Listen();
    throw RuntimeError(kErrorPathAccess, "A folder stands where the program's lock belongs: " + Escape(place));
  }
  lock_ = std::make_unique<QLockFile>(place);
  // Only a lock whose process is gone is stale, however old it is.
  lock_->setStaleLockTime(0);
  qint64 owner = 0;
  QString host, program;
  bool locked = lock_->tryLock();
  // A mark that names nobody was left by a program that ended amid its making, unless its maker holds it still.
  if (!locked && !lock_->getLockInfo(&owner, &host, &program) && lock_->removeStaleLockFile())
    locked = lock_->tryLock();
  if (!locked && lock_->error() == QLockFile::LockFailedError) return true;
  Listen();
  return false;
}

void LinuxProcesses::Listen() {
  QLocalServer::removeServer(SocketPath());
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
    while (QLocalSocket* caller = server_.nextPendingConnection()) caller->deleteLater();
    onActivate_();
  });
  server_.listen(SocketPath());
}

std::vector<ProcessInfo> LinuxProcesses::List() const {
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

std::int64_t LinuxProcesses::CurrentId() const { return QCoreApplication::applicationPid(); }

void LinuxProcesses::Activate(std::int64_t id) {
  if (id != 0) return;
  QLocalSocket socket;
  socket.connectToServer(SocketPath());
  socket.waitForConnected(kConnectMs);
}

bool LinuxProcesses::StartHelper(const std::string& name, const std::string& argument) {
  QString plain = Unescape(name);
  if (plain.endsWith(".exe", Qt::CaseInsensitive)) plain.chop(4);
  for (const QString& folder : programFolders_) {
    const QFileInfo file(folder + '/' + plain);
    if (!file.isFile() || !file.isExecutable()) continue;
    QProcess helper;
    helper.setProgram(file.absoluteFilePath());
    helper.setArguments({Unescape(argument)});
    helper.setStandardInputFile(QProcess::nullDevice());
    helper.setStandardOutputFile(QProcess::nullDevice());
    helper.setStandardErrorFile(QProcess::nullDevice());
    return helper.startDetached();
  }
  return false;
}

// The window manager gives a new program the focus; whether its window is maximised is its own affair here.
void LinuxProcesses::Start(const std::string& path) {
  const QString program = NativePath(path);
  if (QProcess::startDetached(program, {}, QFileInfo(program).path())) return;
  throw RuntimeError(kErrorPathAccess, "The program can't be started: " + path);
}

void LinuxProcesses::EndProgram() {
  // Queued, so that an end asked for before the message loop runs is not lost.
  QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
}

}  // namespace pawnfield
