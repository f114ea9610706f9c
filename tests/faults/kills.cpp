// Kills at random moments of writing.
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <random>

#include "desktop/system/desktop_processes.h"
#include "modes.h"
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
  return faults + KillMark(root, kills);
}

}  // namespace pawnfield::faults
