#include "desktop/files/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <csignal>
#include <cstdio>

namespace pawnfield {

namespace {

constexpr const char* kPartEnding = ".part";

int ErrorNumber(int systemError) {
  switch (systemError) {
    case ENOSPC:
    case EDQUOT:
      return kErrorDiskFull;
    case ENOENT:
    case ENOTDIR:
      return kErrorPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EEXIST:
    case ETXTBSY:
    case ELOOP:
    case ENAMETOOLONG:
      return kErrorPathAccess;
    default:
      return kErrorDeviceIo;
  }
}

const char* Words(int number) {
  switch (number) {
    case kErrorDiskFull:
      return "Disk full";
    case kErrorPathNotFound:
      return "Path not found";
    case kErrorPathAccess:
      return "Path/File access error";
    default:
      return "Device I/O error";
  }
}

// What a failed open for reading means, asked of the disk because one error code stands for all of it.
RuntimeError ReadError(const QString& path) {
  const QFileInfo info(path);
  if (info.exists()) return FileError(EACCES);
  const bool parentExists = QFileInfo(info.absolutePath()).isDir();
  return parentExists ? RuntimeError(kErrorFileNotFound, "File not found") : FileError(ENOENT);
}

[[noreturn]] void Fail() { throw FileError(errno); }

// A disk that can't be told to keep its bytes keeps them in its own time.
bool Sync(int file) { return fsync(file) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP; }

// The new bytes on their way: a hidden file beside the target, which goes with the object unless it has been moved.
class Part {
 public:
  Part(const QString& path, mode_t mode) : path_(QFile::encodeName(path)) {
    file_ = open(path_.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, mode);
    if (file_ < 0) Fail();
  }
  ~Part() {
    if (file_ >= 0) close(file_);
    if (!moved_) unlink(path_.constData());
  }
  Part(const Part&) = delete;
  Part& operator=(const Part&) = delete;

  // Another's file may be given to its owner by root alone, and to a group by those who are in it; what may not be
  // stays this user's. The rights come last, as a change of the owner takes some of them away.
  void TakeAfter(const struct stat& old) {
    const bool both = fchown(file_, old.st_uid, old.st_gid) == 0;
    [[maybe_unused]] const bool group = both || fchown(file_, static_cast<uid_t>(-1), old.st_gid) == 0;
    if (fchmod(file_, old.st_mode & 07777) != 0) Fail();
  }

  void Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t count = write(file_, bytes.data(), bytes.size());
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) Fail();
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
  }

  bool WriteBy(const std::function<bool(std::FILE*)>& write) {
    std::FILE* stream = fdopen(fcntl(file_, F_DUPFD_CLOEXEC, 0), "w");
    if (stream == nullptr) Fail();
    bool wanted = false;
    try {
      wanted = write(stream);
    } catch (...) {
      std::fclose(stream);
      throw;
    }
    if (std::fclose(stream) != 0 && wanted) Fail();
    return wanted;
  }

  // A disk across a network may report only now, or at the close, that it is full.
  void Finish() {
    if (!Sync(file_)) Fail();
    if (close(std::exchange(file_, -1)) != 0) Fail();
  }

  void MoveTo(const QByteArray& target) {
    if (rename(path_.constData(), target.constData()) != 0) Fail();
    moved_ = true;
  }

 private:
  QByteArray path_;
  int file_ = -1;
  bool moved_ = false;
};

// The longest name that the folder's disk takes, in bytes.
qsizetype LongestName(const QFileInfo& target) {
  constexpr long kUsual = 255;
  const long told = pathconf(QFile::encodeName(target.absolutePath()).constData(), _PC_NAME_MAX);
  return told > 0 ? told : kUsual;
}

// What all parts of the target begin with; cut, so that a long name leaves room for the process and the ending.
QString PartBeginning(const QFileInfo& target) {
  constexpr qsizetype kRest = 24;
  QString name = target.fileName();
  while (QFile::encodeName(name).size() > LongestName(target) - kRest) name.chop(name.back().isLowSurrogate() ? 2 : 1);
  return '.' + name + '.';
}

void RemoveParts(const QFileInfo& target) {
  const QString beginning = PartBeginning(target);
  for (const QString& name : QDir(target.absolutePath()).entryList(QDir::Files | QDir::Hidden)) {
    if (!name.startsWith(beginning) || !name.endsWith(kPartEnding)) continue;
    const QString owner = name.mid(beginning.size()).chopped(static_cast<qsizetype>(qstrlen(kPartEnding)));
    if (HasEnded(owner.toLongLong())) QFile::remove(target.absolutePath() + '/' + name);
  }
}

// A link stays one: what it points at is replaced, or made.
QFileInfo Target(const QString& path) {
  constexpr int kLongestChain = 40;
  QFileInfo target(path);
  for (int i = 0; target.isSymLink(); ++i) {
    if (i == kLongestChain) throw FileError(ELOOP);
    target = QFileInfo(target.symLinkTarget());
  }
  return target;
}

bool Replace(const QString& path, const QString& like, const std::function<bool(Part&)>& write) {
  const QFileInfo target = Target(path);
  const QByteArray name = QFile::encodeName(target.absoluteFilePath());
  struct stat old {};
  const bool exists = stat(name.constData(), &old) == 0;
  if (exists && !S_ISREG(old.st_mode)) throw FileError(EISDIR);
  if (exists && access(name.constData(), W_OK) != 0) Fail();
  if (!like.isEmpty() && stat(QFile::encodeName(like).constData(), &old) != 0) Fail();
  const bool hasModel = exists || !like.isEmpty();
  RemoveParts(target);
  // Nobody reads the part who may not read the file.
  Part part(target.absolutePath() + '/' + PartBeginning(target) + QString::number(getpid()) + kPartEnding,
            hasModel ? 0600 : 0666);
  if (hasModel) part.TakeAfter(old);
  if (!write(part)) return false;
  part.Finish();
  part.MoveTo(name);
  SyncFolder(target.absolutePath());
  return true;
}

}  // namespace

RuntimeError FileError(int systemError) {
  const int number = ErrorNumber(systemError);
  return {number, Words(number)};
}

QByteArray ReadFile(const QString& path) {
  QFile file(path);
  if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly)) throw ReadError(path);
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) throw FileError(EIO);
  return bytes;
}

void MakeFolder(const QString& path) {
  if (mkdir(QFile::encodeName(path).constData(), 0777) != 0) Fail();
}

void KeepOnDisk(const QString& path) {
  const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
  if (file < 0) Fail();
  const bool kept = Sync(file);
  const int error = errno;
  close(file);
  if (!kept) throw FileError(error);
}

void SyncFolder(const QString& path) {
  const int folder = open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  fsync(folder);
  close(folder);
}

bool HasEnded(qint64 process) { return process > 0 && kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH; }

void ReplaceFile(const QString& path, std::string_view bytes, const QString& like) {
  Replace(path, like, [bytes](Part& part) {
    part.Write(bytes);
    return true;
  });
}

bool ReplaceFileBy(const QString& path, const std::function<bool(std::FILE*)>& write) {
  return Replace(path, {}, [&write](Part& part) { return part.WriteBy(write); });
}

}  // namespace pawnfield
