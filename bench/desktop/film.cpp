// Whether the audience's picture of a film stays with the operator's: a film that counts its frames runs for more than
// a minute on both screens, and a process of its own looks at both of them at once, sixty times a second.

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <map>

#include "counted_film.h"
#include "desktop/files/native_path.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "figures.h"
#include "forms/main_form.h"
#include "media/media_on_demand.h"
#include "show_driver.h"

namespace pawnfield {

namespace {

constexpr int kFilmSeconds = 65;
constexpr int kLooksPerSecond = 60;
constexpr double kMsPerLook = 1000.0 / kLooksPerSecond;
constexpr int kTail = 10 * kCountedFramesPerSecond;
constexpr int kFilmKey = 'F' - 56;
constexpr int kLoadingMs = 10000;

// A strip of the desktop that crosses the film on both screens, over and over.
class Looks {
 public:
  Looks(const QString& file, int width, int top) : file_(file), width_(width) {
    recorder_.start("ffmpeg", {"-v", "error", "-y", "-f", "x11grab", "-draw_mouse", "0", "-framerate",
                               QString::number(kLooksPerSecond), "-video_size", QString("%1x2").arg(width), "-i",
                               QString("%1+0,%2").arg(qEnvironmentVariable("DISPLAY")).arg(top), "-pix_fmt", "gray",
                               "-f", "rawvideo", file});
  }
  // Each look is a picture two pixels high.
  std::vector<QImage> Take() {
    recorder_.terminate();
    recorder_.waitForFinished();
    QFile file(file_);
    std::vector<QImage> looks;
    if (!file.open(QIODevice::ReadOnly)) return looks;
    while (true) {
      const QByteArray line = file.read(static_cast<qint64>(width_) * 2);
      if (line.size() < width_ * 2) return looks;
      looks.push_back(
          QImage(reinterpret_cast<const uchar*>(line.constData()), width_, 2, width_, QImage::Format_Grayscale8)
              .copy());
    }
  }

 private:
  QProcess recorder_;
  QString file_;
  int width_;
};

// The look at which each frame was seen first.
using FirstSeen = std::map<int, int>;

void Note(FirstSeen& seen, int frame, int look) {
  if (frame >= 0) seen.emplace(frame, look);
}

void Report(const FirstSeen& console, const FirstSeen& audience) {
  std::vector<double> all, tail;
  int within = 0;
  for (const auto& [frame, look] : audience) {
    const auto found = console.find(frame);
    if (found == console.end()) continue;
    const double apart = std::abs(look - found->second) * kMsPerLook;
    all.push_back(apart);
    if (frame >= console.rbegin()->first - kTail) tail.push_back(apart);
    within += look == found->second ? 1 : 0;
  }
  if (tail.empty()) return;
  std::printf("film of %d frames: %zu seen on the console, %zu for the audience, %d of %zu at the same look\n",
              kFilmSeconds * kCountedFramesPerSecond, console.size(), audience.size(), within, all.size());
  PrintMedian("Film/apart", all);
  PrintPercentile("Film/apart_99", all, 99);
  PrintMedian("Film/apart_most_at_the_end", {*std::max_element(tail.begin(), tail.end())});
}

}  // namespace

bool MeasureFilm() {
  const QTemporaryDir folder;
  ShowDriver driver(folder.path());
  const QString path = folder.path() + "/film.mp4";
  if (!driver.Start() || !MakeCountedFilm(path, kFilmSeconds)) return false;
  Show& show = driver.TheShow();
  driver.Press("optGameType_0");
  driver.Press("btnStart");
  show.soundBanks[1][kFilmKey] = SpelledPath(path);
  PlayKeyMedia(show, kFilmKey);
  if (!driver.WaitFor([&] { return show.frmMain.MediaPlayer1.PlayState == 3; }, kLoadingMs)) return false;
  const QRectF console = ConsoleFilm(driver.Program().Console());
  const QRectF audience = AudienceFilm(driver.Program().Audience());
  Looks recorder(folder.path() + "/looks", static_cast<int>(audience.right()), static_cast<int>(console.center().y()));
  const bool ended = driver.WaitFor([&] { return !show.frmMain.picMOD.Visible; }, (kFilmSeconds + 5) * 1000);
  FirstSeen onConsole, forAudience;
  int look = 0;
  const auto at = [](const QRectF& film) { return QRectF(film.left(), 0, film.width(), 2); };
  for (const QImage& line : recorder.Take()) {
    Note(onConsole, CountedFrame(line, at(console)), ++look);
    Note(forAudience, CountedFrame(line, at(audience)), look);
  }
  Report(onConsole, forAudience);
  return ended && !forAudience.empty();
}

}  // namespace pawnfield
