// The records of the shows: files that grow line by line, written and synced by a thread of their own.
#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <thread>

#include "platform/ports.h"

namespace pawnfield {

class RecordWriter : public RecordFiles {
 public:
  // The folder need not exist yet.
  explicit RecordWriter(QString folder) : folder_(std::move(folder)) {}
  // Brings what waits to the disk, if that can be done at once.
  ~RecordWriter() override;
  RecordWriter(const RecordWriter&) = delete;
  RecordWriter& operator=(const RecordWriter&) = delete;

  std::vector<std::string> List() const override;
  std::string Read(const std::string& name) const override;
  void ReadBeside(const std::string& name, std::function<void(const std::string& bytes)> take,
                  std::function<void()> done) override;
  void Append(const std::string& name, const std::string& lines) override;
  void CutTo(const std::string& name, std::size_t bytes) override;
  void Remove(const std::string& name) override;
  void LookAtPlace(std::function<void(const RecordPlace& place)> then) override;
  void Flush() override;

 private:
  enum class Work { Append, Cut, Remove, Look };
  struct Job {
    Work What;
    std::string Name;
    std::string Lines{};
    std::size_t Bytes = 0;
    std::function<void(const RecordPlace&)> Then{};
  };
  // The file that lines are added to; -1 for none.
  struct OpenFile {
    int Handle = -1;
    std::string Name;
    // What of it is whole, and what was added to it first by this program.
    std::size_t Length = 0;
    std::string Beginning;
  };

  void Add(Job job);
  void Run();
  // 0, or the system's error; the job is to be done again then.
  int Do(const Job& job);
  int AppendTo(const Job& job);
  int Open(const std::string& name);
  void CloseFile();
  int WriteWhole(const std::string& bytes);
  QString PathOf(const std::string& name) const;
  void Tell(int error);
  void TellPlace(const Job& job);

  QString folder_;
  // Home of what the thread tells the main one.
  QObject home_;
  OpenFile file_;
  bool fails_ = false;
  // Guards what follows it.
  std::mutex mutex_;
  std::deque<Job> jobs_;
  bool busy_ = false, ends_ = false, failedOnce_ = false;
  std::condition_variable wake_, idle_;
  std::thread writer_;
  // Reads what is asked for, one record at a time; gone before what it reports to.
  QThreadPool readers_;
};

}  // namespace pawnfield
