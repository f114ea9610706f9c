// How long a press takes to be heard: from PlayEvent to the first sample that a sound card takes from the sink. The
// sink is a pipe that is read at the pace of a card, because a sink without one takes sound ahead of its time.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <thread>

#include "desktop/desktop_platform.h"
#include "desktop/files/native_path.h"
#include "figures.h"
#include "media/sound_channels.h"
#include "show/show.h"

namespace pawnfield {

namespace {

using SteadyClock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int kPlays = 50;
constexpr const char* kCard = "format=s32le rate=48000 channels=2";
constexpr int kBytesPerMs = 48 * 2 * 4;
// One page, the least that a pipe holds: 11 ms of sound, as a card of two short periods.
constexpr int kPipeBytes = 4096;
constexpr std::int32_t kLoud = 200 << 16;
constexpr int kPatienceMs = 3000;
constexpr int kQuietMs = 200;
constexpr int kSettleMs = 700;

void Rest(int milliseconds) {
  const QDeadlineTimer timer(milliseconds);
  while (!timer.hasExpired()) QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

// The card: takes the sink's sound at its pace and notes when it is loud.
class Card {
 public:
  explicit Card(const QByteArray& pipe) : pipe_(open(pipe.constData(), O_RDONLY | O_NONBLOCK)) {
    fcntl(pipe_, F_SETPIPE_SZ, kPipeBytes);
    thread_ = std::thread([this] { Run(); });
  }
  ~Card() {
    ends_ = true;
    thread_.join();
    close(pipe_);
  }
  Card(const Card&) = delete;
  Card& operator=(const Card&) = delete;

  // The milliseconds from the act to the first loud sample after a silence; less than 0 when none is heard.
  double Time(const std::function<void()>& act) {
    for (const QDeadlineTimer patience(kPatienceMs); SinceLoud() < kQuietMs; Rest(5)) {
      if (patience.hasExpired()) return -1;
    }
    first_ = 0;
    const auto start = Now();
    act();
    const QDeadlineTimer patience(kPatienceMs);
    while (first_ == 0 && !patience.hasExpired()) {
      QCoreApplication::processEvents();
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return first_ == 0 ? -1 : Milliseconds(SteadyClock::duration(first_ - start)).count();
  }

 private:
  static SteadyClock::rep Now() { return SteadyClock::now().time_since_epoch().count(); }
  double SinceLoud() const { return Milliseconds(SteadyClock::duration(Now() - last_)).count(); }

  void Run() {
    std::array<char, kPipeBytes> bytes{};
    const auto start = SteadyClock::now();
    long long taken = 0;
    while (!ends_) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
      const auto due = kBytesPerMs * static_cast<long long>(Milliseconds(SteadyClock::now() - start).count());
      const auto want = std::min<long long>(due - taken, kPipeBytes);
      // What the sink did not have in time is lost, as it is to a card.
      taken = due;
      const auto got = read(pipe_, bytes.data(), static_cast<std::size_t>(want));
      if (got <= 0 || !IsLoud(bytes.data(), static_cast<std::size_t>(got))) continue;
      last_ = Now();
      if (first_ == 0) first_ = last_.load();
    }
  }

  static bool IsLoud(const char* bytes, std::size_t count) {
    for (std::size_t i = 0; i + 4 <= count; i += 4) {
      std::int32_t sample = 0;
      std::memcpy(&sample, bytes + i, 4);
      if (sample > kLoud || sample < -kLoud) return true;
    }
    return false;
  }

  int pipe_;
  std::thread thread_;
  std::atomic<bool> ends_ = false;
  // When the first and the last loud sample since the act was taken, by the steady clock.
  std::atomic<SteadyClock::rep> first_ = 1, last_ = 0;
};

bool Print(const std::string& name, const std::vector<double>& times) {
  if (*std::min_element(times.begin(), times.end()) < 0) {
    std::fprintf(stderr, "%s: a play was not heard\n", name.c_str());
    return false;
  }
  PrintMedian("SoundStart/" + name, times);
  PrintPercentile("SoundStart/" + name + "_95", times, 95);
  return true;
}

// The times of all plays of that act.
std::vector<double> TimeAll(
    Card& card, const std::function<void()>& act, const std::function<void()>& after = [] {}) {
  std::vector<double> times(kPlays);
  for (double& time : times) {
    time = card.Time(act);
    after();
  }
  return times;
}

// What the server says that its sink still holds while it is played to.
bool MeasureSink() {
  QProcess silence;
  silence.start("pacat", {"--raw", "/dev/zero"});
  Rest(kSettleMs);
  std::vector<double> times(kPlays);
  const QRegularExpression latency("Latency: (\\d+) usec");
  for (double& time : times) {
    QProcess control;
    control.start("pactl", {"list", "sinks"});
    control.waitForFinished();
    time = latency.match(control.readAllStandardOutput()).captured(1).toDouble() / 1000;
  }
  silence.kill();
  silence.waitForFinished();
  return Print("sink", times);
}

bool MeasurePlayEvent(Card& card, Show& show, const std::string& clip) {
  return Print("play_event", TimeAll(card, [&] { PlayEvent(show, clip); }));
}

// The plainest player that is warm: its stream is open, and it is given the clip's samples.
bool MeasureWarmPlayer(Card& card, const QByteArray& samples) {
  QProcess player;
  player.start("pacat", {"--raw", "--format=s16le", "--rate=48000", "--channels=1", "--latency-msec=10"});
  player.waitForStarted();
  Rest(kSettleMs);
  const auto times = TimeAll(card, [&] {
    player.write(samples);
    player.waitForBytesWritten();
  });
  player.kill();
  player.waitForFinished();
  return Print("warm_player", times);
}

// The plainest player as it is used: a program that is started with the file.
bool MeasureStartedPlayer(Card& card, const QString& file) {
  QProcess player;
  return Print("started_player", TimeAll(
                                     card, [&] { player.start("paplay", {file}); }, [&] { player.waitForFinished(); }));
}

bool MeasureAll(Card& card, const QString& folder) {
  Rest(kSettleMs);
  DesktopPlaces places;
  places.configFolder = places.runtimeFolder = folder;
  DesktopPlatform desktop(places, [] {});
  Show show(desktop.platform);
  const std::string clip = show.AppPath("\\Sound Effects\\RingsIn.mp3");
  const auto native = NativePlainFile(clip);
  const QString file = folder + "/clip.wav";
  if (!native || QProcess::execute("ffmpeg", {"-v", "error", "-i", *native, "-ar", "48000", "-ac", "1", file}) != 0) {
    return false;
  }
  QFile wave(file);
  if (!wave.open(QIODevice::ReadOnly)) return false;
  const QByteArray samples = wave.readAll().mid(44);
  return MeasureSink() && MeasurePlayEvent(card, show, clip) && MeasureWarmPlayer(card, samples) &&
         MeasureStartedPlayer(card, file);
}

}  // namespace

bool MeasureSoundStart() {
  const QTemporaryDir folder;
  const QString socket = folder.path() + "/native";
  const QByteArray pipe = QFile::encodeName(folder.path() + "/card");
  qputenv("PULSE_SERVER", ("unix:" + socket).toLocal8Bit());
  qputenv("PULSE_RUNTIME_PATH", folder.path().toLocal8Bit());
  qputenv("PULSE_STATE_PATH", folder.path().toLocal8Bit());
  mkfifo(pipe.constData(), 0600);
  QProcess server;
  server.start("pulseaudio", {"-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--log-level=error",
                              "-L", "module-native-protocol-unix auth-anonymous=1 socket=" + socket, "-L",
                              "module-pipe-sink file=" + QString::fromLocal8Bit(pipe) + ' ' + kCard});
  const QDeadlineTimer patience(kPatienceMs);
  while (!QFileInfo::exists(socket) && !patience.hasExpired()) Rest(20);
  bool heard = false;
  if (server.state() == QProcess::Running && QFileInfo::exists(socket)) {
    Card card(pipe);
    heard = MeasureAll(card, folder.path());
  }
  server.kill();
  server.waitForFinished();
  for (const char* name : {"PULSE_SERVER", "PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"}) qunsetenv(name);
  return heard;
}

}  // namespace pawnfield
