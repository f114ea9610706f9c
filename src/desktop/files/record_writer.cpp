#include "desktop/files/record_writer.h"

#include <QDir>
#include <QFile>
#include <chrono>
#include <utility>

#include "desktop/files/whole_file.h"

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

void RecordWriter::ReadBeside(const std::string& name, std::function<void(const std::string& bytes)> take,
                              std::function<void()> done) {
  readers_.setMaxThreadCount(1);
  readers_.start([this, name, take = std::move(take), done = std::move(done)] {
    take(Read(name));
    QMetaObject::invokeMethod(&home_, done, Qt::QueuedConnection);
  });
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
      static_cast<void>(QFile::resize(PathOf(job.Name), static_cast<qint64>(job.Bytes)));
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

}  // namespace pawnfield
