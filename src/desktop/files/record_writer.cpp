#include "desktop/files/record_writer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <cerrno>
#include <chrono>
#include <utility>

#include "desktop/files/whole_file.h"
#include "desktop/files/windows_1252.h"

namespace pawnfield {

namespace {

constexpr auto kTryAgainAfter = std::chrono::seconds(1);
constexpr auto kLongestFlush = std::chrono::seconds(3);
// A record that is larger was not written by this program.
constexpr qint64 kLargest = 64 * 1024 * 1024;

QString FileName(const std::string& name) { return QString::fromLatin1(name.c_str()); }

}  // namespace

RecordWriter::~RecordWriter() {
  Flush();
  {
    const std::lock_guard lock(mutex_);
    ends_ = true;
  }
  wake_.notify_all();
  if (writer_.joinable()) writer_.join();
  CloseFile();
}

QString RecordWriter::PathOf(const std::string& name) const { return folder_ + "/" + FileName(name); }

std::vector<std::string> RecordWriter::List() const {
  std::vector<std::string> names;
  const QStringList found = QDir(folder_).entryList({QString("*") + kRecordEnding}, QDir::Files, QDir::Name);
  for (const QString& name : found) names.push_back(name.toStdString());
  return names;
}

std::string RecordWriter::Read(const std::string& name) const {
  QFile file(PathOf(name));
  if (!file.open(QIODevice::ReadOnly) || file.size() > kLargest) return {};
  return file.readAll().toStdString();
}

void RecordWriter::Append(const std::string& name, const std::string& lines) { Add({Work::Append, name, lines}); }

void RecordWriter::CutTo(const std::string& name, std::size_t bytes) { Add({Work::Cut, name, {}, bytes}); }

void RecordWriter::Remove(const std::string& name) { Add({Work::Remove, name}); }

// On the writing thread, as a disk may take its time to answer.
void RecordWriter::LookAtPlace(std::function<void(const RecordPlace& place)> then) {
  Job look{Work::Look, {}};
  look.Then = std::move(then);
  Add(std::move(look));
}

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

void RecordWriter::Add(Job job) {
  {
    const std::lock_guard lock(mutex_);
    // What waits for a full disk holds no look up.
    job.What == Work::Look ? jobs_.push_front(std::move(job)) : jobs_.push_back(std::move(job));
  }
  if (!writer_.joinable()) writer_ = std::thread([this] { Run(); });
  wake_.notify_all();
}

void RecordWriter::Flush() {
  std::unique_lock lock(mutex_);
  failedOnce_ = false;
  wake_.notify_all();
  idle_.wait_for(lock, kLongestFlush, [this] { return (jobs_.empty() && !busy_) || failedOnce_; });
}

void RecordWriter::Run() {
  std::unique_lock lock(mutex_);
  while (!ends_) {
    wake_.wait(lock, [this] { return ends_ || !jobs_.empty(); });
    if (ends_) return;
    // All that waits for one file goes in one piece, which is synced once.
    Job job = std::move(jobs_.front());
    jobs_.pop_front();
    while (job.What == Work::Append && !jobs_.empty() && jobs_.front().What == Work::Append &&
           jobs_.front().Name == job.Name) {
      job.Lines += jobs_.front().Lines;
      jobs_.pop_front();
    }
    busy_ = true;
    lock.unlock();
    const int error = Do(job);
    if (job.What != Work::Look) Tell(error);
    lock.lock();
    busy_ = false;
    if (error != 0) {
      jobs_.push_front(std::move(job));
      failedOnce_ = true;
    }
    idle_.notify_all();
    if (error != 0) wake_.wait_for(lock, kTryAgainAfter, [this] { return ends_; });
  }
}

// Once for each change between well and ill.
void RecordWriter::Tell(int error) {
  if ((error != 0) == fails_) return;
  fails_ = error != 0;
  QMetaObject::invokeMethod(
      &home_,
      [this, error] {
        if (error != 0 && OnFailed) OnFailed(FileError(error));
        if (error == 0 && OnBack) OnBack();
      },
      Qt::QueuedConnection);
}

int RecordWriter::Do(const Job& job) {
  switch (job.What) {
    case Work::Append:
      return AppendTo(job);
    case Work::Cut:
      if (file_.Name == job.Name) CloseFile();
      // A record that can't be cut has a torn line in it, which its reader passes over.
      static_cast<void>(::truncate(QFile::encodeName(PathOf(job.Name)).constData(), static_cast<off_t>(job.Bytes)));
      return 0;
    case Work::Remove:
      QFile::remove(PathOf(job.Name));
      return 0;
    case Work::Look:
      TellPlace(job);
      return 0;
  }
  return 0;
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
      static_cast<void>(::ftruncate(file_.Handle, static_cast<off_t>(file_.Length)));
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
