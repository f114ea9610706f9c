#include "desktop/system/desktop_processes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>

#include "desktop/files/native_path.h"
#include "desktop/files/windows_1252.h"
#include "desktop/system/own_processes.h"

namespace pawnfield {

namespace {

constexpr int kConnectMs = 500;
constexpr qint64 kLongestPath = 16384;

}  // namespace

DesktopProcesses::DesktopProcesses(QString runtimeFolder, std::function<void()> onActivate, QStringList programFolders)
    : runtimeFolder_(std::move(runtimeFolder)),
      onActivate_(std::move(onActivate)),
      programFolders_(std::move(programFolders)) {}

bool DesktopProcesses::AnotherInstanceRuns() {
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

void DesktopProcesses::Listen() {
  QLocalServer::removeServer(SocketPath());
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
    while (QLocalSocket* caller = server_.nextPendingConnection()) Answer(*caller);
    onActivate_();
  });
  server_.listen(SocketPath());
}

std::vector<ProcessInfo> DesktopProcesses::List() const { return OwnProcesses(); }

std::int64_t DesktopProcesses::CurrentId() const { return QCoreApplication::applicationPid(); }

void DesktopProcesses::Activate(std::int64_t id) {
  if (id != 0) return;
  QLocalSocket socket;
  socket.connectToServer(SocketPath());
  socket.waitForConnected(kConnectMs);
}

// A caller that wants more than the front sends a path and a line's end, and then hangs up.
void DesktopProcesses::Answer(QLocalSocket& caller) {
  caller.setReadBufferSize(kLongestPath);
  const auto take = [this, &caller] {
    if (!caller.canReadLine()) return;
    const QString path = QString::fromUtf8(caller.readLine(kLongestPath)).chopped(1);
    // What follows may hold the program by a question; the line is done with here.
    const auto open = [this, path] {
      if (OnHandedOver) OnHandedOver(SpelledPath(path));
    };
    if (!path.isEmpty()) QMetaObject::invokeMethod(&server_, open, Qt::QueuedConnection);
  };
  QObject::connect(&caller, &QLocalSocket::readyRead, &caller, take);
  QObject::connect(&caller, &QLocalSocket::disconnected, &caller, &QObject::deleteLater);
  take();
  if (caller.state() == QLocalSocket::UnconnectedState) caller.deleteLater();
}

bool DesktopProcesses::HandOver(const std::string& path) {
  QLocalSocket socket;
  socket.connectToServer(SocketPath());
  if (!socket.waitForConnected(kConnectMs)) return false;
  socket.write(NativePath(path).toUtf8() + '\n');
  return socket.waitForBytesWritten(kConnectMs);
}

bool DesktopProcesses::StartHelper(const std::string& name, const std::string& argument) {
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
void DesktopProcesses::Start(const std::string& path) {
  const QString program = NativePath(path);
  if (QProcess::startDetached(program, {}, QFileInfo(program).path())) return;
  throw RuntimeError(kErrorPathAccess, "The program can't be started: " + path);
}

void DesktopProcesses::EndProgram() {
  // Queued, so that an end asked for before the message loop runs is not lost.
  QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
}

}  // namespace pawnfield
