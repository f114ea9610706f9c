// The program as a process of its own on a real display: how it starts, what surrounds it, and how the system ends it.

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

#include "places.h"

namespace pawnfield {
namespace {

constexpr int kStartMs = 120000;

class RealProgramTest : public FolderTest {
 protected:
  void SetUp() override {
    for (const char* name : {"run", "home"}) QDir().mkpath(Native(name));
    QFile::setPermissions(Native("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    Home(Native("home"));
    environment_.insert("XDG_RUNTIME_DIR", Native("run"));
  }
  void TearDown() override {
    if (process_.state() == QProcess::NotRunning) return;
    process_.kill();
    process_.waitForFinished();
  }

  // The whole of the program's world lies below it. The missing hardware has been told before.
  void Home(const QString& home) {
    home_ = home;
    environment_.insert("HOME", home);
    environment_.insert("XDG_DATA_HOME", home + "/data");
    environment_.insert("XDG_CONFIG_HOME", home + "/config");
    QDir().mkpath(home + "/config/Pawnfield");
    QFile settings(Settings());
    ASSERT_TRUE(settings.open(QFile::WriteOnly) && settings.write("[Settings]\nNoHardwareTold=True\n") > 0);
  }
  QString Settings() const { return home_ + "/config/Pawnfield/pawnfield.ini"; }
  QString SavedSettings() const {
    QFile file(Settings());
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
  }

  void Start(const QStringList& arguments = {}) {
    process_.setProcessEnvironment(environment_);
    process_.setWorkingDirectory(home_);
    process_.start(QCoreApplication::applicationDirPath() + "/pawnfield", arguments);
    ASSERT_TRUE(process_.waitForStarted());
  }
  // Number 0 would go to this process and all its kin.
  void Signal(int number) {
    const auto id = static_cast<pid_t>(process_.processId());
    ASSERT_GT(id, 0) << "it has ended already";
    kill(id, number);
  }
  static QString Xdotool(const QStringList& arguments) {
    QProcess tool;
    tool.start("xdotool", arguments);
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput());
  }
  // The width of the widest of the program's windows on the display; 0 for none.
  int WidestWindow() const {
    int widest = 0;
    const QStringList windows =
        Xdotool({"search", "--onlyvisible", "--pid", QString::number(process_.processId())}).split('\n');
    for (const QString& window : windows) {
      if (window.isEmpty()) continue;
      const QString width = Xdotool({"getwindowgeometry", "--shell", window}).section("WIDTH=", 1).section('\n', 0, 0);
      // The audience's window fills the larger monitor.
      if (width.toInt() < 1900) widest = std::max(widest, width.toInt());
    }
    return widest;
  }
  // Clicks on the splash until the console stands in its place.
  bool ConsoleComesUp() {
    QElapsedTimer elapsed;
    elapsed.start();
    while (process_.state() == QProcess::Running && elapsed.elapsed() < kStartMs) {
      const int width = WidestWindow();
      if (width > 1000) return true;
      if (width > 500) Xdotool({"mousemove", "640", "380", "click", "1"});
      QTest::qWait(100);
    }
    return false;
  }

  QString home_;
  QProcess process_;
  QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

TEST_F(RealProgramTest, EachEndingSignalEndsItInOrderWithItsSettingsSaved) {
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
    Home(Native("home"));
    ASSERT_NO_FATAL_FAILURE(Start());
    ASSERT_TRUE(ConsoleComesUp()) << number;
    EXPECT_FALSE(SavedSettings().contains("GridControl"));
    ASSERT_NO_FATAL_FAILURE(Signal(number));
    EXPECT_TRUE(process_.waitForFinished(60000)) << number;
    EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit) << number;
    EXPECT_EQ(process_.exitCode(), 0) << number;
    EXPECT_TRUE(SavedSettings().contains("GridControl=\"5\"")) << number;
  }
}

TEST_F(RealProgramTest, TheDeathOfTheDisplaysServerLosesNoSetting) {
  const char* script =
      "\"$0\" & p=$!\n"
      "geometry() { for w in $(xdotool search --onlyvisible --pid $p); do xdotool getwindowgeometry $w; done; }\n"
      "until geometry | grep -qE 'Geometry: 12[0-9][0-9]x'; do\n"
      "  kill -0 $p || exit 1; sleep 0.2\n"
      "done\n"
      "kill -9 $(cat /tmp/.X${DISPLAY#:}-lock)\n"
      "wait $p; exit 0";
  process_.setProcessEnvironment(environment_);
  process_.start(PAWNFIELD_VIRTUAL_DISPLAY,
                 {"sh", "-c", script, QCoreApplication::applicationDirPath() + "/pawnfield"});
  ASSERT_TRUE(process_.waitForFinished(2 * kStartMs));
  EXPECT_TRUE(SavedSettings().contains("GridControl=\"5\""));
}

TEST_F(RealProgramTest, AReaderOfStandardErrorThatGoesAwayEndsNothing) {
  environment_.insert("QT_DEBUG_PLUGINS", "1");
  process_.closeReadChannel(QProcess::StandardError);
  ASSERT_NO_FATAL_FAILURE(Start());
  EXPECT_TRUE(ConsoleComesUp());
  EXPECT_EQ(process_.state(), QProcess::Running);
}

TEST_F(RealProgramTest, ABusThatNeverAnswersDoesNotKeepTheConsoleAway) {
  const int silent = socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un name{AF_UNIX, {}};
  const QByteArray path = QFile::encodeName(Native("bus"));
  std::copy(path.begin(), path.end(), name.sun_path);
  ASSERT_EQ(bind(silent, reinterpret_cast<const sockaddr*>(&name), sizeof name), 0);
  ASSERT_EQ(listen(silent, 20), 0);
  environment_.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path);
  ASSERT_NO_FATAL_FAILURE(Start());
  EXPECT_TRUE(ConsoleComesUp());
  ASSERT_NO_FATAL_FAILURE(Signal(SIGTERM));
  EXPECT_TRUE(process_.waitForFinished(60000));
  close(silent);
}

TEST_F(RealProgramTest, RunsWithAHomeOfAnyAlphabetAndASetNamedSoAtTheStart) {
  for (const QString& folder : kForeignNames) {
    Home(Native(folder));
    const QString set = home_ + '/' + folder + ".txt";
    QFile file(set);
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write("Who?\r\nMe\r\nT\r\n") > 0);
    ASSERT_NO_FATAL_FAILURE(Start({folder + ".txt"}));
    ASSERT_TRUE(ConsoleComesUp()) << folder.toStdString();
    EXPECT_TRUE(QFileInfo(home_ + "/data/Ostara Show Kit Data/Pawnfield").isDir()) << folder.toStdString();
    ASSERT_NO_FATAL_FAILURE(Signal(SIGTERM));
    ASSERT_TRUE(process_.waitForFinished(60000)) << "waits in a box: " << folder.toStdString();
  }
}

TEST_F(RealProgramTest, TellsOfItselfWithoutADisplay) {
  environment_.remove("DISPLAY");
  for (const auto& [option, words] : {std::pair{"--help", "[set]"}, {"--version", "Pawnfield 0."}}) {
    ASSERT_NO_FATAL_FAILURE(Start({option}));
    ASSERT_TRUE(process_.waitForFinished(10000));
    EXPECT_EQ(process_.exitCode(), 0);
    EXPECT_TRUE(QString::fromUtf8(process_.readAllStandardOutput()).contains(words)) << option;
  }
}

}  // namespace
}  // namespace pawnfield
