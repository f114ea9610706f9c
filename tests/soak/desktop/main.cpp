// A long show in the real windows: pawnfield_soak MINUTES. Needs a display with two monitors. Sound goes into a server
// of its own and is listened to. Logs each minute what the process holds, and fails when that grows after the first
// tenth.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "desktop/files/native_path.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "presentation/both_screens.h"
#include "soak/desktop/window_hands.h"
#include "soak/gauge.h"
#include "sound_rig.h"

namespace {

using namespace pawnfield;

constexpr qint64 kMinuteMs = 60000;
constexpr double kSoundHertz = 800;
constexpr double kMusicHertz = 2300;
// One picture of the whole audience's screen more or less is 8 MB, and the players' libraries keep some buffers and now
// and then a thread of a pool. What each game, picture or film leaves behind adds up to more within half an hour.
constexpr Reading kBound{12288, 12288, 4, 4};

std::string MakeTone(const QString& path, double hertz, int milliseconds) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(ToneFile(hertz, milliseconds));
  return SpelledPath(path);
}

std::string MakeFilm(const QString& path) {
  QProcess::execute("ffmpeg", {"-v", "error", "-y", "-f", "lavfi", "-i", "testsrc2=size=960x540:rate=25:duration=6",
                               "-f", "lavfi", "-i", "sine=duration=6", path});
  return SpelledPath(path);
}

// The key's sound, in the next two seconds.
bool IsHeard(SoundRig& rig, Hands& hands) {
  hands.Type('q');
  return rig.Record(2000).Begin(kSoundHertz) >= 0;
}

class LongShow {
 public:
  LongShow(const QString& folder, SoundRig& rig) : folder_(folder), rig_(rig), driver_(folder) {}

  bool Run(int minutes) {
    if (!driver_.Start()) return false;
    WindowHands hands(driver_);
    Operator person(driver_.TheShow(), hands, {250, 60});
    person.Prepare({MakeTone(folder_ + "/sound.wav", kSoundHertz, 1500),
                    driver_.TheShow().AppPath("\\Question Backgrounds\\7.jpg"), MakeFilm(folder_ + "/film.mp4"),
                    MakeTone(folder_ + "/music.wav", kMusicHertz, 20000)});
    FillPictureCache(hands);
    Gauge gauge(kBound);
    int heard = 0;
    QElapsedTimer clock;
    clock.start();
    for (int minute = 1; minute <= minutes; ++minute) {
      while (clock.elapsed() < minute * kMinuteMs) person.PlayGame();
      person.Rest();
      gauge.Read("minute " + std::to_string(clock.elapsed() / kMinuteMs) + ", " + std::to_string(person.Games()) +
                 " games");
      if (IsHeard(rig_, hands)) ++heard;
    }
    std::printf(
        "%d games, %d of them to their winner, %d squares claimed, %d media on demand, %d films of them, heard at %d "
        "of %d "
        "readings, %d error boxes\n",
        person.Games(), person.Winners(), person.Claims(), person.MediaPlayed(), person.Films(), heard, minutes,
        Errors());
    return gauge.ReportVerdict() && person.Films() > 0 && heard == minutes && Errors() == 0;
  }

 private:
  // Every background once, so that what the program keeps of pictures is at its limit from the start.
  void FillPictureCache(Hands& hands) {
    Show& show = driver_.TheShow();
    const std::string folder = show.AppPath("\\Question Backgrounds");
    HidePanel(show, Panel::Standby);
    ShowPanel(show, Panel::Question);
    for (const std::string& name : show.platform.files.List(folder, ".jpg")) {
      show.frmMain.imgQuestionBackground.Picture = folder + "\\" + name;
      show.frmFSMain.imgQuestionBackground.Picture = folder + "\\" + name;
      hands.Wait(100);
    }
    HidePanel(show, Panel::Question);
    ShowPanel(show, Panel::Standby);
  }
  int Errors() const { return static_cast<int>(driver_.BoxTexts().filter("An untrapped error").size()); }

  QString folder_;
  SoundRig& rig_;
  ShowDriver driver_;
};

}  // namespace

int main(int argc, char** argv) {
  const int minutes = argc == 2 ? std::atoi(argv[1]) : 0;
  if (minutes <= 0) {
    std::fprintf(stderr, "usage: pawnfield_soak MINUTES\n");
    return 2;
  }
  QApplication application(argc, argv);
  PrepareApplication();
  const QTemporaryDir folder;
  SoundRig rig;
  if (!SoundRig::IsPossible() || !rig.StartServer()) {
    std::fprintf(stderr, "pawnfield_soak: no sound server could be started\n");
    return 2;
  }
  return LongShow(folder.path(), rig).Run(minutes) ? 0 : 1;
}
