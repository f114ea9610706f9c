// Kills at random moments of random games: what the next start brings back is a moment of the game that was played, not
// more than a second before the kill.
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <functional>
#include <new>
#include <random>

#include "forms/main_form.h"
#include "modes.h"
#include "platform/text.h"
#include "record/capture.h"
#include "record/record_lines.h"
#include "record/snapshot_json.h"
#include "rig.h"
#include "show/show_record.h"

namespace pawnfield::faults {

namespace {

constexpr std::size_t kMoments = 4000;
constexpr std::int64_t kMostLostMs = 1000;

std::int64_t NowMs() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

// What the game stood at, and since when; shared with the process that plays.
struct Moment {
  std::int64_t AtMs = 0;
  std::array<char, 4096> Text{};
};
struct Played {
  std::atomic<std::size_t> Count = 0;
  std::array<Moment, kMoments> Moments;
};

// What the record holds of the show's standing, but for the cover and what it hides.
std::string TextOf(Snapshot snapshot) {
  snapshot.Covered = false;
  snapshot.Lit = snapshot.Cursor = 0;
  snapshot.Options = {};
  return JsonOf(snapshot).Text();
}

void Publish(Played& played, const Show& show) {
  const GameHistory& game = show.record->Game;
  const std::string text = TextOf(game.Events[game.Now].After);
  const std::size_t count = played.Count;
  if (count == kMoments || text.size() >= played.Moments[0].Text.size()) return;
  if (count > 0 && text == played.Moments[count - 1].Text.data()) return;
  played.Moments[count].AtMs = NowMs();
  std::memcpy(played.Moments[count].Text.data(), text.c_str(), text.size() + 1);
  played.Count = count + 1;
}

// One thing that an operator does in a game, by chance.
void Act(MainForm& form, std::mt19937& chance) {
  const auto below = [&chance](int count) { return std::uniform_int_distribution(0, count - 1)(chance); };
  switch (below(9)) {
    case 0:
    case 1:
      form.btnSelectPlayer[static_cast<std::size_t>(below(3))].Click();
      break;
    case 2:
      (below(3) == 0 ? form.btnQuestionIncorrect : form.btnQuestionCorrect).Click();
      break;
    case 3:
    case 4:
      form.img.At(below(5), below(5))->Click();
      break;
    case 5:
      form.btnContinue.Click();
      break;
    case 6:
      form.ScoreUp(1 + below(3))[static_cast<std::size_t>(below(6))].Click();
      break;
    case 7:
      (below(2) == 0 ? form.btnUndo : form.btnSkipQuestion).Click();
      break;
    default:
      form.KeyPress(below(2) == 0 ? 25 : 14);
  }
}

// A game of 100 questions, of a type that the seed decides.
void BeginShow(Rig& rig, unsigned seed) {
  rig.places.MakeFolders();
  std::string set;
  for (int i = 1; i <= 100; ++i)
    set += "Question " + std::to_string(i) + "?\r\nAnswer\r\nT#Courier New#28#True#True#16777215#\r\n";
  rig.files.Write(rig.show.platform.folders.App + "\\Trivia Sets\\Show.txt", set);
  Start(rig);
  MainForm& form = rig.show.frmMain;
  form.optGameType[2 + seed % 3].Click();
  form.cboList.DropDown();
  form.cboList.Select(1);
  form.btnStart.Click();
}

[[noreturn]] void Play(const QString& root, unsigned seed, Played& played) {
  std::mt19937 chance(seed);
  Rig rig(root);
  BeginShow(rig, seed);
  MainForm& form = rig.show.frmMain;
  while (true) {
    rig.sim.clock.Advance(100);
    QCoreApplication::processEvents();
    Publish(played, rig.show);
    usleep(std::uniform_int_distribution<useconds_t>(500, 12000)(chance));
    Act(form, chance);
    rig.sim.clock.Advance(60);
    Publish(played, rig.show);
  }
}

// The number of the moment that the record ends with; -1 for none of them.
int MomentOf(const Played& played, const std::string& text) {
  for (int i = static_cast<int>(played.Count) - 1; i >= 0; --i) {
    if (text == played.Moments[static_cast<std::size_t>(i)].Text.data()) return i;
  }
  return -1;
}

// What was played last goes to the disk beside the player, who may be killed before he has noted it: what stands before
// it in the record, as far back as one act reaches, is then the last that he noted.
bool IsYetToBeNoted(const GameHistory& game, const Played& played) {
  constexpr std::size_t kOfOneAct = 3;
  const std::string noted = played.Moments[played.Count - 1].Text.data();
  for (std::size_t back = 1; back <= std::min(kOfOneAct, game.Now); ++back) {
    if (TextOf(game.Events[game.Now - back].After) == noted) return true;
  }
  return false;
}

std::string BroughtBack(const QString& root) {
  Rig rig(root);
  Start(rig);
  return TextOf(Capture(rig.show));
}

// What is wrong with what a kill has left, empty when all is well.
std::string Judge(const QString& root, const Played& played, std::int64_t killedMs) {
  const RecordWriter records(root + "/data/Pawnfield/Shows");
  const auto names = records.List();
  if (names.empty()) return played.Count > 1 && killedMs - played.Moments[1].AtMs > kMostLostMs ? "no record" : "";
  const auto record = ParseRecord(records.Read(names.back()));
  if (!record || record->Game.Events.empty()) return "a record without a game";
  const Snapshot& last = record->Game.Events[record->Game.Now].After;
  // Killed before anything was noted there is nothing to hold it against.
  if (played.Count == 0) return {};
  const int moment = MomentOf(played, TextOf(last));
  if (moment < 0) return IsYetToBeNoted(record->Game, played) ? "" : "what the record ends with was never played";
  const auto next = static_cast<std::size_t>(moment) + 1;
  if (next < played.Count && killedMs - played.Moments[next].AtMs > kMostLostMs) return "more than a second is lost";
  if (last.Loaded && last.Started && BroughtBack(root) != TextOf(last)) return "another game came back";
  return {};
}

// Writes until the disk takes no byte more.
void FillDisk(const QString& path) {
  QFile filler(path);
  if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return;
  for (const qint64 size : {65536, 512, 1}) {
    while (filler.write(QByteArray(static_cast<qsizetype>(size), 'x')) == size) {
    }
  }
}

// One score key, the moment in which it is taken down, and so long for the writer.
void ScoreAndWait(Rig& rig, int ms) {
  rig.show.frmMain.ScoreUp(1)[0].Click();
  rig.sim.clock.Advance(100);
  QElapsedTimer waited;
  waited.start();
  while (waited.elapsed() < ms) {
    QCoreApplication::processEvents();
    usleep(2000);
  }
}

int Expect(bool held, const char* what) {
  if (!held) std::printf("record: %s\n", what);
  return held ? 0 : 1;
}

bool LastIsOnDisk(const Rig& rig) {
  const auto names = rig.records.List();
  const auto record = names.empty() ? std::nullopt : ParseRecord(rig.records.Read(names.back()));
  if (!record || record->Game.Events.empty()) return false;
  return TextOf(record->Game.Events[record->Game.Now].After) == TextOf(Capture(rig.show));
}

// What the operator is told while the disk fails and when it is back, and that the record is whole then.
int TryDisk(Rig& rig, const std::function<void()>& spoil, const std::function<void()>& mend) {
  MainForm& form = rig.show.frmMain;
  ScoreAndWait(rig, 300);
  int faults = Expect(LastIsOnDisk(rig), "isn't on a good disk");
  spoil();
  ScoreAndWait(rig, 300);
  const std::string told = form.lblStatusBar.Caption;
  faults += Expect(told.starts_with("The show's record can't be written: "), "failed and wasn't told of");
  faults += Expect(form.chpRecord.State.Get() == ChipState::Amber, "failed and the chip isn't amber");
  form.lblStatusBar.Caption = "";
  ScoreAndWait(rig, 1500);
  faults += Expect(form.lblStatusBar.Caption->empty(), "was told of twice");
  const double score = ParseNumber(form.Score(1).Caption).value_or(0);
  mend();
  ScoreAndWait(rig, 2500);
  faults += Expect(ParseNumber(form.Score(1).Caption).value_or(0) > score, "held the show up");
  faults +=
      Expect(form.lblStatusBar.Caption->starts_with("The show's record is written again"), "is back and not told");
  faults += Expect(LastIsOnDisk(rig), "isn't whole again");
  return faults;
}

}  // namespace

int RunRecordDisks(const QString& root) {
  int faults = 0;
  {
    Rig rig(root + "/full");
    BeginShow(rig, 0);
    const QString filler = root + "/filler";
    faults += TryDisk(
        rig, [&] { FillDisk(filler); }, [&] { QFile::remove(filler); });
  }
  QDir(root + "/full").removeRecursively();
  {
    Rig rig(root + "/gone");
    BeginShow(rig, 1);
    const QString folder = root + "/gone/data/Pawnfield";
    // A file in the folder's place is a disk that is gone: nothing can be made below it.
    const auto lose = [&] {
      QDir(folder).removeRecursively();
      QFile(folder).open(QIODevice::WriteOnly);
    };
    faults += TryDisk(rig, lose, [&] { QFile::remove(folder); });
  }
  std::printf("record: a full disk and one that went, %d wrong\n", faults);
  return faults;
}

int RunRecordKills(const QString& root, int kills) {
  void* memory = mmap(nullptr, sizeof(Played), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) return 1;
  std::mt19937 chance(7);
  int wrong = 0;
  std::size_t moments = 0;
  for (int i = 0; i < kills; ++i) {
    const QTemporaryDir folder(root + "/record-XXXXXX");
    auto* played = new (memory) Played;
    const pid_t child = fork();
    if (child == 0) Play(folder.path(), static_cast<unsigned>(i), *played);
    usleep(std::uniform_int_distribution<useconds_t>(150000, 900000)(chance));
    kill(child, SIGKILL);
    const std::int64_t killedMs = NowMs();
    waitpid(child, nullptr, 0);
    moments += played->Count;
    if (const std::string fault = Judge(folder.path(), *played, killedMs); !fault.empty()) {
      std::printf("kill %d after %zu moments: %s\n", i, played->Count.load(), fault.c_str());
      ++wrong;
    }
  }
  std::printf("record: %d kills after %zu moments of games, %d wrong\n", kills, moments, wrong);
  munmap(memory, sizeof(Played));
  return wrong;
}

}  // namespace pawnfield::faults
