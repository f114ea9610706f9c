// Disks that are full, folders and files that may not be written, and folders that are gone.
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <set>

#include "desktop/system/desktop_processes.h"
#include "forms/main_form.h"
#include "modes.h"
#include "writers.h"

namespace pawnfield::faults {

namespace {

constexpr int kPage = 4096;

// The box's text on one line, from its number on.
std::string OneLine(std::string text) {
  for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n")) text.replace(at, 2, " | ");
  const std::size_t number = text.find("Error Number");
  return number == std::string::npos ? text : text.substr(number);
}

// One kind of file under one kind of fault.
class Trial {
 public:
  Trial(const Writer& writer, const QString& root, int number)
      : writer_(writer), number_(number), root_(root + '/' + QString::fromStdString(writer.Kind)), rig_(root_) {
    const QTemporaryDir peace;
    Rig other(peace.path());
    other.places.MakeFolders();
    for (int variant = 0; variant < kVariants; ++variant) {
      writer_.Write(other, variant);
      reference_.push_back(Take(peace.path() + '/' + writer_.Folder, writer_.Files));
    }
    rig_.places.MakeFolders();
  }

  QString Folder() const { return root_ + '/' + writer_.Folder; }
  const QString& Root() const { return root_; }
  const Writer& Kind() const { return writer_; }

  // A write that nothing hinders: no message, the new file, and nothing beside it.
  void WriteInPeace(int variant) {
    Write(variant);
    if (!messages_.empty() || !IsNew(variant)) Fault("not written though nothing hinders it");
    const QStringList strays = Strays(Folder(), writer_.Files);
    if (!strays.isEmpty()) Fault("left behind: " + strays.join(", ").toStdString());
  }

  // A write that may be refused: then the old file is there and the operator was told; otherwise the new one.
  void WriteHindered(int variant) {
    const Snapshot before = Take(Folder(), writer_.Files);
    Write(variant);
    ++tries_;
    const Snapshot now = Take(Folder(), writer_.Files);
    if (messages_.empty()) {
      if (IsNew(variant)) {
        ++new_;
      } else {
        ++torn_;
        Fault("not written, and nothing was said");
      }
      return;
    }
    ++refused_;
    CheckMessages();
    const Verdict verdict = writer_.JudgedBy(now, before, reference_[static_cast<std::size_t>(variant)]);
    ++(verdict == Verdict::Torn ? torn_ : old_);
    if (verdict == Verdict::Torn) Fault("torn");
  }

  // Prints the line and gives the faults found. A fault that hinders nothing is one of the trial's own.
  int Finish(bool mustRefuse) {
    if (mustRefuse && refused_ == 0) Fault("never refused");
    std::printf("%-24s %5d %8d %10d %10d %5d   %s\n", writer_.Kind.c_str(), tries_, refused_, old_, new_, torn_,
                message_.c_str());
    for (const std::string& fault : std::set<std::string>(faults_.begin(), faults_.end())) {
      std::printf("  fault: %s\n", fault.c_str());
    }
    std::fflush(stdout);
    return static_cast<int>(faults_.size());
  }

 private:
  void Write(int variant) {
    rig_.dialogs.Messages.clear();
    writer_.Write(rig_, variant);
    messages_ = rig_.dialogs.Messages;
  }

  bool IsNew(int variant) const {
    return writer_.JudgedBy(Take(Folder(), writer_.Files), {}, reference_[static_cast<std::size_t>(variant)]) ==
           Verdict::New;
  }

  // A handler that writes two files reports each.
  void CheckMessages() {
    bool fits = false;
    for (const std::string& text : messages_) {
      if (!Fits(text)) continue;
      fits = true;
      message_ = OneLine(text);
    }
    if (!fits) Fault("another message: " + OneLine(messages_.front()));
    if (std::set<std::string>(messages_.begin(), messages_.end()).size() < messages_.size()) Fault("told twice");
  }

  bool Fits(const std::string& text) const {
    if (!writer_.Refusal.empty()) {
      const bool hasReason = number_ != kErrorDiskFull || text.find("Disk full") != std::string::npos;
      return hasReason && text.find(writer_.Refusal) != std::string::npos;
    }
    if (number_ == kErrorPathAccess && !writer_.NoAccessText.empty()) {
      return text.find(writer_.NoAccessText) != std::string::npos;
    }
    return text.find("Error Number: " + std::to_string(number_)) != std::string::npos &&
           text.find("Procedure: " + writer_.Procedure) != std::string::npos;
  }

  void Fault(const std::string& what) { faults_.push_back(what); }

  const Writer& writer_;
  int number_;
  QString root_;
  Rig rig_;
  std::vector<Snapshot> reference_;
  std::vector<std::string> messages_, faults_;
  std::string message_;
  int tries_ = 0, refused_ = 0, old_ = 0, new_ = 0, torn_ = 0;
};

void Heading(const char* fault) {
  std::printf("%-24s %5s %8s %10s %10s %5s   %s\n", fault, "tries", "refused", "whole old", "whole new", "torn",
              "message");
}

int EachWriter(const QString& root, int number, void (*tries)(Trial&), bool (*mustRefuse)(const Writer&)) {
  int faults = 0;
  const std::vector<Writer> writers = AllWriters();
  for (const Writer& writer : writers) {
    Trial trial(writer, root, number);
    tries(trial);
    faults += trial.Finish(mustRefuse(writer));
    QDir(trial.Root()).removeRecursively();
  }
  return faults;
}

bool Always(const Writer&) { return true; }
bool UnlessRemade(const Writer& writer) { return !writer.RemakesFolder; }

// Leaves that many pages of the disk free; the file goes with the object.
class Ballast {
 public:
  Ballast(const QString& folder, int freePages) : file_(folder + "/ballast") {
    if (!file_.open(QFile::WriteOnly | QFile::Unbuffered)) return;
    const QByteArray page(kPage, 'x');
    while (file_.write(page) == page.size()) {
    }
    file_.resize(qMax<qint64>(0, file_.size() - qint64{kPage} * freePages));
  }
  ~Ballast() { file_.remove(); }
  Ballast(const Ballast&) = delete;
  Ballast& operator=(const Ballast&) = delete;

 private:
  QFile file_;
};

// Room for bytes, and none for one more file.
class ManyFiles {
 public:
  explicit ManyFiles(const QString& folder) : folder_(folder + "/many") {
    QDir().mkpath(folder_);
    for (int i = 0; QFile(folder_ + '/' + QString::number(i)).open(QFile::WriteOnly); ++i) {
    }
  }
  ~ManyFiles() { QDir(folder_).removeRecursively(); }
  ManyFiles(const ManyFiles&) = delete;
  ManyFiles& operator=(const ManyFiles&) = delete;

 private:
  QString folder_;
};

void FillDisk(Trial& trial) {
  trial.WriteInPeace(0);
  int variant = 1;
  for (const int pages : {0, 1, 2, 3, 5, 8, 13, 21, 34, 55, 89}) {
    const Ballast ballast(trial.Root(), pages);
    trial.WriteHindered(variant++);
  }
  {
    const ManyFiles files(trial.Root());
    trial.WriteHindered(variant++);
  }
  trial.WriteInPeace(variant);
}

// Sets the rights of the folder and all below it.
void SetRights(const QString& folder, mode_t folders, mode_t files) {
  QDirIterator entries(folder, QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
  while (entries.hasNext()) {
    const QString path = entries.next();
    chmod(QFile::encodeName(path).constData(), entries.fileInfo().isDir() ? folders : files);
  }
  chmod(QFile::encodeName(folder).constData(), folders);
}

void CloseAccess(Trial& trial) {
  trial.WriteInPeace(0);
  SetRights(trial.Folder(), 0555, 0644);
  trial.WriteHindered(1);
  SetRights(trial.Folder(), 0755, 0444);
  trial.WriteHindered(2);
  SetRights(trial.Folder(), 0555, 0444);
  trial.WriteHindered(3);
  SetRights(trial.Folder(), 0755, 0644);
  trial.WriteInPeace(4);
}

void Vanish(Trial& trial) {
  trial.WriteInPeace(0);
  QDir(trial.Folder()).removeRecursively();
  trial.WriteHindered(1);
  Places(trial.Root()).MakeFolders();
  trial.WriteInPeace(2);
}

// The program starts and ends in such a place: the console comes up, the exit ends it, and what could not be kept is
// told.
int StartAndEnd(const QString& root) {
  std::vector<std::string> faults;
  if (DesktopProcesses(Places(root).Runtime(), [] {}).AnotherInstanceRuns()) faults.push_back("taken for another copy");
  Rig rig(root);
  Start(rig);
  const std::size_t atStart = rig.dialogs.Messages.size() - 1;
  if (!rig.show.frmMain.Visible) faults.push_back("no console");
  rig.show.frmMain.mnuFileExit.Click();
  const std::size_t atExit = rig.dialogs.Messages.size() - 1 - atStart;
  if (!rig.sim.processes.Ended) faults.push_back("no end");
  std::printf("%-24s %zu messages at the start, %zu at the exit\n", "start and exit", atStart, atExit);
  for (const std::string& text : rig.dialogs.Messages) std::printf("  %s\n", OneLine(text).c_str());
  for (const std::string& fault : faults) std::printf("  fault: %s\n", fault.c_str());
  return static_cast<int>(faults.size());
}

QString StartFolder(const QString& root) { return root + "/start"; }

// What an earlier run left, but for the data's folder.
QString MakeStartFolder(const QString& root) {
  const Places places(StartFolder(root));
  places.MakeFolders();
  QDir(places.Data()).removeRecursively();
  return places.Root;
}

}  // namespace

int RunFullDisk(const QString& root) {
  Heading("FULL DISK");
  const int faults = EachWriter(root, kErrorDiskFull, FillDisk, Always);
  const QString start = MakeStartFolder(root);
  const ManyFiles files(root);
  const Ballast ballast(root, 0);
  return faults + StartAndEnd(start);
}

int RunNoAccess(const QString& root) {
  if (geteuid() == 0) {
    std::printf("Rights mean nothing to root: run this as another user.\n");
    return 1;
  }
  Heading("READ-ONLY FOLDER, FILE");
  const int faults = EachWriter(root, kErrorPathAccess, CloseAccess, Always);
  const QString start = MakeStartFolder(root);
  SetRights(start, 0555, 0444);
  const int atStart = StartAndEnd(start);
  SetRights(start, 0755, 0644);
  return faults + atStart;
}

int PrepareReadOnly(const QString& root) {
  for (const Writer& writer : AllWriters()) {
    Rig rig(root + '/' + QString::fromStdString(writer.Kind));
    rig.places.MakeFolders();
    writer.Write(rig, 0);
  }
  MakeStartFolder(root);
  return 0;
}

int RunReadOnly(const QString& root) {
  Heading("READ-ONLY DISK");
  int faults = 0;
  for (const Writer& writer : AllWriters()) {
    Trial trial(writer, root, kErrorPathAccess);
    trial.WriteHindered(1);
    faults += trial.Finish(true);
  }
  return faults + StartAndEnd(StartFolder(root));
}

int RunVanished(const QString& root) {
  Heading("FOLDER GONE");
  const int faults = EachWriter(root, kErrorPathNotFound, Vanish, UnlessRemade);
  return faults + StartAndEnd(StartFolder(root));
}

}  // namespace pawnfield::faults
