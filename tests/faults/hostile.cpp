// Sets that are meant to do harm: whatever lies in the folder of sets, reading it ends soon and the operator is told.
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <cstdio>

#include "desktop/files/native_path.h"
#include "forms/editor_form.h"
#include "forms/main_form.h"
#include "modes.h"
#include "rig.h"
#include "sets/missing_media.h"
#include "sets/set_file.h"

namespace pawnfield::faults {

namespace {

constexpr qint64 kLongestMs = 1000;
// A read that never ends is ended with the process, by the system.
constexpr unsigned kPatienceS = 30;
constexpr int kLargest = 4 * 1024 * 1024;

void Fill(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (file.open(QFile::WriteOnly)) file.write(bytes);
}

void MakeSparse(const QString& path, qint64 bytes) {
  QFile file(path);
  if (file.open(QFile::WriteOnly)) file.resize(bytes);
}

// Media that are pipes, devices, folders, and links that lead round.
QByteArray HostileMedia() {
  QByteArray set;
  for (const char* path :
       {".\\pipe.txt", "\\dev\\zero", "\\dev\\tty", ".\\loop.txt", ".\\folder.txt", ".\\round\\round\\none.jpg",
        "..\\..\\..\\..", "\\proc\\self\\fd\\0", "\\\\host\\share\\a.mp3", "http:\\\\host\\a.mp3"}) {
    set += QByteArray(path) + "\r\nA\r\nS\r\n";
  }
  return set + QByteArray(256, '.') + "\r\nA\r\nP\r\n";
}

QStringList MakeSets(const QString& folder) {
  const auto path = [&](const char* name) { return folder + '/' + name; };
  mkfifo(QFile::encodeName(path("pipe.txt")).constData(), 0644);
  QFile::link("/dev/zero", path("zero.txt"));
  QFile::link("/dev/tty", path("terminal.txt"));
  QFile::link(path("circle.txt"), path("loop.txt"));
  QFile::link(path("loop.txt"), path("circle.txt"));
  QFile::link(folder, path("round"));
  QDir().mkpath(path("folder.txt"));
  MakeSparse(path("gigabytes.txt"), qint64{3} << 30);
  MakeSparse(path("a byte more.txt"), kLargest + 1);
  Fill(path("one line.txt"), QByteArray(kLargest, 'q'));
  Fill(path("line ends.txt"), QByteArray(kLargest, '\r'));
  Fill(path("zeros.txt"), QByteArray(kLargest, '\0'));
  Fill(path("high bytes.txt"), QByteArray(kLargest, '\xC3'));
  Fill(path("media.txt"), HostileMedia());
  return {"pipe.txt",        "zero.txt",     "terminal.txt",  "loop.txt",  "folder.txt",     "gigabytes.txt",
          "a byte more.txt", "one line.txt", "line ends.txt", "zeros.txt", "high bytes.txt", "media.txt"};
}

struct Reading {
  const char* Way;
  void (*Read)(Rig& rig, const std::string& path);
};

void LoadInConsole(Rig& rig, const std::string& path) {
  if (LoadGameSet(rig.show, path)) ScanSetForMissingMedia(rig.show);
}

void ChooseInEditor(Rig& rig, const std::string& path, Button& button) {
  rig.dialogs.Chosen = path;
  rig.show.frmEditor.Reset();
  button.Click();
}

void OpenInEditor(Rig& rig, const std::string& path) { ChooseInEditor(rig, path, rig.show.frmEditor.btnFileOpen); }
void ImportInEditor(Rig& rig, const std::string& path) { ChooseInEditor(rig, path, rig.show.frmEditor.btnImport); }

// The milliseconds that the read took, and a fault where that is too long or a file was refused without a word.
int TryReading(Rig& rig, const Reading& reading, const QString& file, bool mustRefuse) {
  rig.dialogs.Messages.clear();
  rig.show.frmEditor.Visible = true;
  QElapsedTimer timer;
  timer.start();
  alarm(kPatienceS);
  reading.Read(rig, SpelledPath(file));
  alarm(0);
  const qint64 took = timer.elapsed();
  const bool silent = mustRefuse && rig.dialogs.Messages.empty();
  std::printf("%-18s %-8s %5lld ms  %s%s%s\n", QFileInfo(file).fileName().toLocal8Bit().constData(), reading.Way,
              static_cast<long long>(took), rig.dialogs.Messages.empty() ? "read" : "told",
              took > kLongestMs ? "  fault: too long" : "", silent ? "  fault: nothing was said" : "");
  std::fflush(stdout);
  return (took > kLongestMs ? 1 : 0) + (silent ? 1 : 0);
}

}  // namespace

int RunHostile(const QString& root) {
  constexpr int kNoSets = 7;
  constexpr Reading kReadings[] = {{"console", LoadInConsole}, {"editor", OpenInEditor}, {"import", ImportInEditor}};
  Rig rig(root);
  rig.places.MakeFolders();
  const QString folder = rig.places.App() + "/Trivia Sets";
  const QStringList sets = MakeSets(folder);
  int faults = 0;
  for (int i = 0; i < sets.size(); ++i) {
    for (const Reading& reading : kReadings) faults += TryReading(rig, reading, folder + '/' + sets[i], i < kNoSets);
  }
  alarm(kPatienceS);
  FillSetList(rig.show);
  alarm(0);
  for (const std::string& name : rig.show.frmMain.cboList.List.Get()) {
    const bool offered = name == "pipe" || name == "zero" || name == "loop" || name == "folder";
    if (offered && ++faults > 0) std::printf("fault: %s is offered as a set\n", name.c_str());
  }
  return faults;
}

}  // namespace pawnfield::faults
