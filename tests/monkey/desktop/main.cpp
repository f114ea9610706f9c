// Runs the random operator on the real windows: pawnfield_window_monkey SEED ACTIONS [LOG [keys|moments]]; with "keys"
// he does hardly anything but strike Space, Enter, Tab and letters, and with "moments" the log tells each moment of the
// game for tools/check-window-kills, which kills him. "pawnfield_window_monkey back FOLDER" tells what the next start
// brings back. Needs a display with two monitors. The seed decides what he tries; how the machine keeps time decides
// the rest, so that a run need not repeat. A failing run prints its seed and the last actions; the log has them all,
// after a crash too.
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "desktop/system/end_signals.h"
#include "forms/main_form.h"
#include "monkey/desktop/moments.h"
#include "monkey/desktop/window_monkey.h"
#include "program/start_up.h"

namespace {

using namespace pawnfield;

// In the place of the system's browser.
class NoBrowser : public QObject {
  Q_OBJECT
 public slots:
  void Open(const QUrl&) {}
};

int Work(WatchedApplication& application, std::uint32_t seed, int actions, QFile& log, bool onlyKeys, bool recorded) {
  Chance chance(seed);
  World world(chance);
  DesktopProgram program(world.Places());
  WindowMonkey monkey(application, program, world, chance, log);
  if (onlyKeys) monkey.StrikeKeys();
  Moments moments(program.TheShow(), log);
  // As the real program ends by a signal and with the display.
  Show& show = program.TheShow();
  const EndSignals endSignals([&show] { EndWithoutAsking(show); });
  const LastWords lastWords(show.frmMain, [&show] { SaveSettingsAtDeath(show); });
  if (recorded) {
    world.Keep();
    log.write("FOLDER " + QDir::currentPath().toLocal8Bit() + '\n');
    monkey.AfterEach = [&moments] { moments.Look(); };
  }
  const QString broken = monkey.Run(actions);
  const auto& came = monkey.Came();
  std::printf("seed %u, %d actions, %d checks, %d events, %d questions, %d squares, %d winners: %s\n", seed, actions,
              came.Checks, came.Events, came.Questions, came.Claims, came.Winners,
              broken.isEmpty() ? "all held" : qPrintable(broken));
  if (broken.isEmpty()) return 0;
  for (const QString& action : monkey.LastActions()) std::printf("  %s\n", qPrintable(action));
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: pawnfield_window_monkey SEED ACTIONS [LOG [keys]]\n");
    return 2;
  }
  QFile log(argc > 3 ? argv[3] : "");
  if (argc > 3 && !log.open(QIODevice::WriteOnly)) return 2;
  // What a dialog writes in the user's home by itself.
  const QTemporaryDir home;
  qputenv("HOME", home.path().toLocal8Bit());
  WatchedApplication application(argc, argv);
  PrepareApplication();
  if (std::string_view(argv[1]) == "back") return TellWhatComesBack(QString::fromLocal8Bit(argv[2]));
  NoBrowser browser;
  for (const char* scheme : {"http", "https", "file"}) QDesktopServices::setUrlHandler(scheme, &browser, "Open");
  const bool onlyKeys = argc > 4 && std::string_view(argv[4]) == "keys";
  const bool recorded = argc > 4 && std::string_view(argv[4]) == "moments";
  const auto seed = static_cast<std::uint32_t>(std::strtoul(argv[1], nullptr, 10));
  const int status = Work(application, seed, std::atoi(argv[2]), log, onlyKeys, recorded);
  for (const char* scheme : {"http", "https", "file"}) QDesktopServices::unsetUrlHandler(scheme);
  QProcess::execute("xrandr", {"--output", "DUMMY1", "--mode", "1920x1080", "--pos", "1280x0"});
  return status;
}

#include "main.moc"
