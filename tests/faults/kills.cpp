// Kills at random moments of writing.
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <random>

#include "desktop/files/native_path.h"
#include "desktop/system/desktop_processes.h"
#include "modes.h"
#include "sets/set_bundles.h"
#include "writers.h"

namespace pawnfield::faults {

namespace {

// Shared with the process that writes: counts of writes begun and ended.
struct Progress {
  std::atomic<int> Begun = 0;
  std::atomic<int> Ended = 0;
};

Progress* SharedProgress() {
  void* memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  return memory == MAP_FAILED ? nullptr : new (memory) Progress;
}

// Runs the work in a process of its own and kills it after a random time, at most that many microseconds.
void KillAmid(const std::function<void()>& work, std::mt19937& chance, useconds_t longest) {
  const pid_t child = fork();
  if (child == 0) {
    while (true) work();
  }
  usleep(std::uniform_int_distribution<useconds_t>(300, longest)(chance));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
}

struct Counts {
  int Old = 0, New = 0, Between = 0, Torn = 0;
  void Add(Verdict verdict) {
    ++(verdict == Verdict::Old ? Old : verdict == Verdict::New ? New : verdict == Verdict::Between ? Between : Torn);
  }
};

// What each variant leaves, written in peace, and the microseconds of a write.
struct Reference {
  explicit Reference(const Writer& writer);
  std::vector<Snapshot> Left;
  useconds_t WriteTime = 0;
};

Reference::Reference(const Writer& writer) {
  const QTemporaryDir folder;
  Rig rig(folder.path());
  rig.places.MakeFolders();
  QElapsedTimer timer;
  timer.start();
  // What a file leaves beside it comes from the one before, the first one's from the last.
  for (int write = 0; write < 2 * kVariants; ++write) {
    writer.Write(rig, write % kVariants);
    if (write >= kVariants) Left.push_back(Take(folder.path() + '/' + writer.Folder, writer.Files));
  }
  WriteTime = static_cast<useconds_t>(timer.nsecsElapsed() / 1000 / (2 * kVariants));
}

int KillWriter(const Writer& writer, const QString& root, int kills, Progress& progress) {
  const Reference reference(writer);
  const auto variant = [&](int write) -> const Snapshot& {
    return reference.Left[static_cast<std::size_t>(write % kVariants)];
  };
  Rig rig(root);
  rig.places.MakeFolders();
  writer.Write(rig, 0);
  progress.Begun = 1;
  progress.Ended = 1;
  std::mt19937 chance(1);
  Counts counts;
  // A few writes long, so that kills fall on each of a write's steps.
  const useconds_t longest = std::max<useconds_t>(5000, 3 * reference.WriteTime);
  const QString folder = root + '/' + writer.Folder;
  // The last write that was begun, also when the process after it was killed before it began anything.
  int begun = 1;
  int unhealed = 0;
  for (int i = 0; i < kills; ++i) {
    // A write that was cut off is done again first, as after a restart.
    progress.Begun = progress.Ended.load();
    KillAmid(
        [&] {
          ++progress.Begun;
          writer.Write(rig, (progress.Begun - 1) % kVariants);
          progress.Ended = progress.Begun.load();
        },
        chance, longest);
    begun = std::max(begun, progress.Begun.load());
    const Snapshot now = Take(folder, writer.Files);
    const Verdict verdict = writer.JudgedBy(now, variant(progress.Ended - 1), variant(begun - 1));
    counts.Add(verdict);
    // What was on its way may have arrived.
    if (now == variant(begun - 1)) progress.Ended = begun;
    if (verdict != Verdict::Between) continue;
    // Another one comes next, as an update does that is installed after one was cut off.
    writer.Write(rig, begun % kVariants);
    progress.Ended = ++begun;
    if (writer.JudgedBy(Take(folder, writer.Files), {}, variant(begun - 1)) != Verdict::New) ++unhealed;
  }
  const auto left = Strays(folder, writer.Files).size();
  const std::vector<std::string> odd = NextStart(root);
  writer.Write(rig, (begun - 1) % kVariants);
  if (writer.JudgedBy(Take(folder, writer.Files), {}, variant(begun - 1)) != Verdict::New) ++unhealed;
  if (unhealed > 0) std::printf("  %d times not whole after the next write\n", unhealed);
  const auto stays = Strays(folder, writer.Files).size();
  std::printf("%-24s %6d %9d %9d %8d %5d %10lld %10lld %9zu\n", writer.Kind.c_str(), kills, counts.Old, counts.New,
              counts.Between, counts.Torn, left, stays, odd.size());
  for (const std::string& text : odd) std::printf("  next start: %s\n", text.c_str());
  for (const std::string& text : rig.dialogs.Messages) std::printf("  told: %s\n", text.c_str());
  std::fflush(stdout);
  return counts.Torn + unhealed + static_cast<int>(stays + left / 2 + odd.size() + rig.dialogs.Messages.size());
}

// The mark of a running program, which must not outlive it.
int KillMark(const QString& root, int kills) {
  int wrong = 0;
  std::mt19937 chance(2);
  for (int i = 0; i < kills; ++i) {
    KillAmid([&] { DesktopProcesses(root + "/run", [] {}).AnotherInstanceRuns(); }, chance, 3000);
    if (DesktopProcesses(root + "/run", [] {}).AnotherInstanceRuns()) ++wrong;
  }
  std::printf("%-24s %6d: %d starts refused\n", "mark of a running copy", kills, wrong);
  return wrong;
}

// A bundle of a set and its pictures, each of one byte over and over.
std::string MakeBundle(Rig& rig, int pictures) {
  const std::string path = SpelledPath(rig.places.Root + "/Quiz.pawnset");
  std::string set;
  std::vector<PackedFile> media;
  for (int i = 1; i <= pictures; ++i) {
    const QString name = QString("picture %1.jpg").arg(i);
    QFile file(rig.places.Root + '/' + name);
    if (file.open(QFile::WriteOnly)) file.write(QByteArray(30000 * i, static_cast<char>('a' + i)));
    set += name.toStdString() + "\r\nA\r\nP\r\n";
    media.push_back({SpelledPath(rig.places.Root + '/' + name), name.toStdString()});
  }
  rig.bundles.Pack(path, "Quiz", set, media);
  return path;
}

// Whether each folder of media is whole, and each set has one. Takes them all away, for the next look.
bool AllAreWhole(const QString& sets, int pictures) {
  bool whole = true;
  for (const QString& name : QDir(sets).entryList({"Quiz*.txt"}, QDir::Files)) {
    whole = whole && QDir(sets + "/Media/" + name.chopped(4)).exists();
    QFile::remove(sets + '/' + name);
  }
  for (const QString& name : QDir(sets + "/Media").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    QDir folder(sets + "/Media/" + name);
    for (int i = 1; i <= pictures; ++i) {
      QFile file(folder.filePath(QString("picture %1.jpg").arg(i)));
      whole =
          whole && file.open(QFile::ReadOnly) && file.readAll() == QByteArray(30000 * i, static_cast<char>('a' + i));
    }
    folder.removeRecursively();
  }
  return whole;
}

// The opening of a bundle: a set is there with all its media or not at all, and what was cut off goes with the next.
int KillUnpacking(const QString& root, int kills) {
  constexpr int kPictures = 6;
  constexpr useconds_t kLongest = 30000;
  Rig rig(root);
  rig.places.MakeFolders();
  const std::string bundle = MakeBundle(rig, kPictures);
  const QString sets = rig.places.App() + "/Trivia Sets";
  std::mt19937 chance(3);
  int torn = 0;
  qsizetype most = 0;
  for (int i = 0; i < kills; ++i) {
    KillAmid([&] { OfferBundle(rig.show, bundle); }, chance, kLongest);
    most = std::max(most, QDir(sets + "/Media").entryList({".pawnset-*"}, QDir::Dirs | QDir::Hidden).size());
    if (!AllAreWhole(sets, kPictures)) ++torn;
  }
  OfferBundle(rig.show, bundle);
  const auto stays = Strays(sets + "/Media", {}).size() - kPictures;
  if (!AllAreWhole(sets, kPictures)) ++torn;
  std::printf("%-24s %6d: %d not whole, %lld half ones at once, %lld files stay\n", "bundle, opened", kills, torn, most,
              stays);
  for (const std::string& text : rig.dialogs.Messages) std::printf("  told: %s\n", text.c_str());
  return torn + static_cast<int>(stays + (most > 1 ? most : 0)) + static_cast<int>(rig.dialogs.Messages.size());
}

}  // namespace

int RunKills(const QString& root, int kills) {
  Progress* progress = SharedProgress();
  if (progress == nullptr) return 1;
  std::printf("%-24s %6s %9s %9s %8s %5s %10s %10s %9s\n", "kind", "kills", "whole old", "whole new", "between", "torn",
              "left over", "left after", "messages");
  int faults = 0;
  for (const Writer& writer : AllWriters()) {
    faults += KillWriter(writer, root + '/' + QString::fromStdString(writer.Kind), kills, *progress);
  }
  return faults + KillMark(root, kills) + KillUnpacking(root + "/bundle", kills);
}

}  // namespace pawnfield::faults
