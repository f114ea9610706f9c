#include "desktop/files/record_writer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <cerrno>

#include "desktop/files/whole_file.h"
#include "desktop/files/windows_1252.h"

namespace pawnfield {

void RecordWriter::TellPlace(const Job& job) {
  RecordPlace place{Escape(QDir::toNativeSeparators(folder_))};
  QDir().mkpath(folder_);
  const QByteArray folder = QFile::encodeName(folder_);
  struct statvfs room {};
  if (::statvfs(folder.constData(), &room) == 0) {
    place.FreeBytes = static_cast<std::int64_t>(room.f_bavail) * static_cast<std::int64_t>(room.f_frsize);
  }
  if (::access(folder.constData(), W_OK | X_OK) != 0) place.Problem = FileError(errno).what();
  QMetaObject::invokeMethod(
      &home_, [then = job.Then, place] { then(place); }, Qt::QueuedConnection);
}

void RecordWriter::CloseFile() {
  if (file_.Handle >= 0) ::close(file_.Handle);
  file_.Handle = -1;
}

int RecordWriter::Open(const std::string& name) {
  if (file_.Name != name) file_ = {-1, name, 0, {}};
  QDir().mkpath(folder_);
  file_.Handle = ::open(QFile::encodeName(PathOf(name)).constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
  if (file_.Handle < 0) return errno;
  struct stat facts {};
  if (::fstat(file_.Handle, &facts) != 0) return errno;
  file_.Length = static_cast<std::size_t>(facts.st_size);
  return 0;
}

// All of it, or nothing and the system's error.
int RecordWriter::WriteWhole(const std::string& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t written = ::write(file_.Handle, bytes.data() + done, bytes.size() - done);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) {
      const int error = written < 0 ? errno : EIO;
      // What can't be cut off either stays as a torn line, which a reader drops.
      [[maybe_unused]] const int cut = ::ftruncate(file_.Handle, static_cast<off_t>(file_.Length));
      return error;
    }
    done += static_cast<std::size_t>(written);
  }
  file_.Length += bytes.size();
  return 0;
}

int RecordWriter::AppendTo(const Job& job) {
  struct stat facts {};
  // A file that was removed, or whose disk has gone, is made anew.
  const bool stands =
      file_.Handle >= 0 && file_.Name == job.Name && ::fstat(file_.Handle, &facts) == 0 && facts.st_nlink > 0;
  if (!stands) {
    const std::string known = file_.Name == job.Name ? file_.Beginning : std::string();
    CloseFile();
    if (const int error = Open(job.Name); error != 0) {
      CloseFile();
      file_.Beginning = known;
      return error;
    }
    file_.Beginning = known;
    if (file_.Length == 0 && !known.empty()) {
      if (const int error = WriteWhole(known); error != 0) return error;
    }
  }
  if (const int error = WriteWhole(job.Lines); error != 0) {
    if (error != ENOSPC && error != EDQUOT) CloseFile();
    return error;
  }
  if (file_.Beginning.empty()) file_.Beginning = job.Lines;
  // The lines are in the file and would only be written twice; what a sync can't do, the next write fails at.
  static_cast<void>(::fdatasync(file_.Handle));
  return 0;
}

}  // namespace pawnfield
