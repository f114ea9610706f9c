// A sound server of the test's own with one sink, whose sound is recorded and taken apart into tones.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <vector>

namespace pawnfield {

inline constexpr int kSampleRate = 48000;

// Samples of -1..1 of one channel.
class Recording {
 public:
  explicit Recording(const QByteArray& raw);
  double Seconds() const { return static_cast<double>(samples_.size()) / kSampleRate; }
  // How loud a tone of so many hertz is between two moments, 1 for a full sine.
  double Level(double hertz, double from, double to) const;
  // When the tone is heard first, and when it falls silent after that; the recording's end when it never is.
  double Begin(double hertz) const { return First(hertz, 0, true); }
  double End(double hertz) const { return First(hertz, Begin(hertz), false); }

 private:
  double First(double hertz, double from, bool heard) const;

  std::vector<float> samples_;
};

class SoundRig {
 public:
  SoundRig();
  ~SoundRig();
  // False where no sound server is installed.
  static bool IsPossible();

  bool StartServer();
  void StopServer();
  void AddSink() { Control({"load-module", "module-null-sink", "sink_name=show", "rate=48000", "channels=1"}); }
  void RemoveSink() { Control({"unload-module", "module-null-sink"}); }
  // Records the sink for so long while the program runs, and does the work once that has begun.
  Recording Record(int milliseconds, const std::function<void()>& work = {});

 private:
  static void Control(const QStringList& arguments) { QProcess::execute("pactl", arguments); }
  QString Socket() const { return folder_.path() + "/native"; }

  QTemporaryDir folder_;
  QProcess server_;
};

// A sound file of that tone at half of full scale.
QByteArray ToneFile(double hertz, int milliseconds);

}  // namespace pawnfield
