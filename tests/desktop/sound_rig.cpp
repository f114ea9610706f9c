#include "sound_rig.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>
#include <cmath>
#include <complex>
#include <cstring>
#include <numbers>

namespace pawnfield {

namespace {

constexpr double kWindow = 0.02;
constexpr double kHeard = 0.02;
constexpr int kPatienceMs = 120000;

}  // namespace

Recording::Recording(const QByteArray& raw) : samples_(static_cast<std::size_t>(raw.size()) / 2) {
  for (std::size_t i = 0; i < samples_.size(); ++i) {
    qint16 value = 0;
    std::memcpy(&value, raw.constData() + 2 * i, 2);
    samples_[i] = static_cast<float>(value) / 32768;
  }
}

double Recording::Level(double hertz, double from, double to) const {
  const auto first = static_cast<std::size_t>(std::max(0.0, from) * kSampleRate);
  const auto last = std::min(samples_.size(), static_cast<std::size_t>(std::max(0.0, to) * kSampleRate));
  if (last <= first) return 0;
  std::complex<double> sum;
  for (std::size_t i = first; i < last; ++i) {
    const double angle = 2 * std::numbers::pi * hertz * static_cast<double>(i) / kSampleRate;
    sum += std::polar(1.0, angle) * static_cast<double>(samples_[i]);
  }
  return 2 * std::abs(sum) / static_cast<double>(last - first);
}

double Recording::First(double hertz, double from, bool heard) const {
  double at = from;
  while (at + kWindow <= Seconds() && (Level(hertz, at, at + kWindow) > kHeard) != heard) at += kWindow;
  return at;
}

bool SoundRig::IsPossible() {
  return !QStandardPaths::findExecutable("pulseaudio").isEmpty() && !QStandardPaths::findExecutable("parec").isEmpty();
}

SoundRig::SoundRig() {
  qputenv("PULSE_SERVER", ("unix:" + Socket()).toLocal8Bit());
  for (const char* name : {"PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"}) qputenv(name, folder_.path().toLocal8Bit());
}

SoundRig::~SoundRig() {
  StopServer();
  for (const char* name : {"PULSE_SERVER", "PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"}) qunsetenv(name);
}

bool SoundRig::StartServer() {
  server_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  server_.start("pulseaudio",
                {"-n", "--daemonize=no", "--disable-shm=yes", "--use-pid-file=no", "--exit-idle-time=-1",
                 "--log-level=error", "-L", "module-native-protocol-unix auth-anonymous=1 socket=" + Socket()});
  if (!server_.waitForStarted() || !QTest::qWaitFor([&] { return QFileInfo::exists(Socket()); }, kPatienceMs)) {
    return false;
  }
  AddSink();
  return true;
}

void SoundRig::StopServer() {
  if (server_.state() == QProcess::NotRunning) return;
  server_.kill();
  server_.waitForFinished(kPatienceMs);
  QFile::remove(Socket());
}

Recording SoundRig::Record(int milliseconds, const std::function<void()>& work) {
  QProcess recorder;
  recorder.start("parec", {"--device=show.monitor", "--raw", "--format=s16le", "--rate=48000", "--channels=1",
                           "--latency-msec=20"});
  QByteArray bytes;
  const qsizetype wanted = static_cast<qsizetype>(2) * kSampleRate * milliseconds / 1000;
  const auto begun = [&recorder] { return recorder.bytesAvailable() > 0; };
  if (work && QTest::qWaitFor(begun, kPatienceMs)) work();
  // What is short of the wanted length counts as silence.
  [[maybe_unused]] const bool whole = QTest::qWaitFor(
      [&] {
        bytes += recorder.readAllStandardOutput();
        return bytes.size() >= wanted;
      },
      milliseconds + kPatienceMs);
  recorder.kill();
  recorder.waitForFinished();
  return Recording(bytes.left(wanted));
}

QByteArray ToneFile(double hertz, int milliseconds) {
  const int count = kSampleRate / 1000 * milliseconds;
  QByteArray wave("RIFF....WAVEfmt \x10\0\0\0\1\0\1\0\x80\xBB\0\0\0\x77\1\0\2\0\x10\0data....", 44);
  const auto put = [&wave](qsizetype at, qint32 value) { std::memcpy(wave.data() + at, &value, 4); };
  put(4, 36 + 2 * count);
  put(40, 2 * count);
  for (int i = 0; i < count; ++i) {
    const auto value = static_cast<qint16>(16384 * std::sin(2 * std::numbers::pi * hertz * i / kSampleRate));
    wave.append(reinterpret_cast<const char*>(&value), 2);
  }
  return wave;
}

}  // namespace pawnfield
