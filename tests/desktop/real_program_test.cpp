// The program as a process of its own on a real display: how it starts, what surrounds it, and how the system ends it.

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

#include "desktop/files/bundle_file.h"
#include "desktop/files/whole_file.h"
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

// A desktop of the test's own that knows the program and its kind of file as the package tells it. The program stands
// in a folder that may be written to, with the sets beside it.
class DoubleClickTest : public RealProgramTest {
 protected:
  void SetUp() override {
    RealProgramTest::SetUp();
    for (const char* tool : {"gio", "update-mime-database", "update-desktop-database"}) {
      if (QStandardPaths::findExecutable(tool).isEmpty()) GTEST_SKIP() << tool << " is not installed";
    }
    const QString shared = NativePath(DesktopPlaces().folders.App);
    QDir().mkpath(Sets());
    for (const QString& name : QDir(shared).entryList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
      if (name != "Trivia Sets") QFile::link(shared + '/' + name, Native("program/" + name));
    }
    ASSERT_TRUE(QFile::copy(QCoreApplication::applicationDirPath() + "/pawnfield", Program()));
    environment_.insert("PATH", Native("program") + ':' + environment_.value("PATH"));
    environment_.insert("XDG_CURRENT_DESKTOP", "GNOME");
    Install("org.pawnfield.Pawnfield.desktop", "applications/org.pawnfield.Pawnfield.desktop");
    Install("org.pawnfield.Pawnfield.mime.xml", "mime/packages/org.pawnfield.Pawnfield.xml");
    Run("update-mime-database", {home_ + "/data/mime"});
    Run("update-desktop-database", {home_ + "/data/applications"});
    bundle_ = Native(QString::fromUtf8("My \u05D7\u05D9\u05D3\u05D5\u05DF.pawnset"));
    // One that plays: a look at the set's files beside the program ends in a box about those that can't.
    sound_ = ReadFile(shared + "/Sound Effects/Skip.Wav");
    ASSERT_FALSE(sound_.isEmpty());
    ASSERT_TRUE(WriteBundle(bundle_, "Clicked", "Who?\r\nMe\r\nT\r\ntune.wav\r\nA tune\r\nS\r\n",
                            {{SpelledPath(shared + "/Sound Effects/Skip.Wav"), "tune.wav"}},
                            [](double) { return true; }));
  }
  QString Program() const { return Native("program/pawnfield"); }
  QString Sets() const { return Native("program/Trivia Sets"); }
  void Install(const QString& file, const QString& place) {
    QDir().mkpath(QFileInfo(home_ + "/data/" + place).path());
    ASSERT_TRUE(QFile::copy(PAWNFIELD_PACKAGING_DIR + QString('/') + file, home_ + "/data/" + place));
  }
  QString Run(const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.setProcessEnvironment(environment_);
    process.start(tool, arguments);
    EXPECT_TRUE(process.waitForFinished(60000)) << tool.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
  }
  void StartHere(const QStringList& arguments = {}) {
    process_.setProcessEnvironment(environment_);
    process_.start(Program(), arguments);
    ASSERT_TRUE(process_.waitForStarted());
  }
  // The program's box that is in front, as its window's number; empty for none.
  QString Box() const {
    const QString front = Xdotool({"getactivewindow"}).trimmed();
    const bool own = Xdotool({"getwindowpid", front}).trimmed() == QString::number(process_.processId());
    const QString width = Xdotool({"getwindowgeometry", "--shell", front}).section("WIDTH=", 1).section('\n', 0, 0);
    return own && width.toInt() > 0 && width.toInt() < 1000 ? front : QString();
  }
  // Waits for another box than the one before and presses the button beside the one that stands ready.
  bool AnswersYes() {
    QString box;
    const auto another = [&] { return !(box = Box()).isEmpty() && box != answered_; };
    if (!QTest::qWaitFor(another, kStartMs)) return false;
    answered_ = box;
    QTest::qWait(200);
    const QString pictures = qEnvironmentVariable("PAWNFIELD_PICTURES");
    if (!pictures.isEmpty()) QGuiApplication::primaryScreen()->grabWindow(0).save(pictures + "/box-" + box + ".png");
    Xdotool({"key", "--clearmodifiers", "Tab", "sleep", "0.1", "key", "space"});
    return QTest::qWaitFor([&] { return Box() != answered_; }, kStartMs);
  }
  void IsAddedAndLoaded() {
    ASSERT_TRUE(AnswersYes()) << "the set is offered";
    EXPECT_TRUE(AnswersYes()) << "its loading is offered";
    EXPECT_TRUE(QTest::qWaitFor([this] { return Box().isEmpty(); }, kStartMs));
    EXPECT_TRUE(ReadFile(Sets() + "/Clicked.txt").contains("\r\n.\\Media\\Clicked\\tune.wav\r\nA tune\r\n"));
    EXPECT_EQ(ReadFile(Sets() + "/Media/Clicked/tune.wav"), sound_);
  }

  QString bundle_, answered_;
  QByteArray sound_;
};

TEST_F(DoubleClickTest, APackedSetIsOfferedByTheProgramThatRuns) {
  const QString kind = "application/vnd.pawnfield.set+zip";
  EXPECT_TRUE(Run("gio", {"info", "-a", "standard::content-type,standard::icon", bundle_}).contains(kind));
  EXPECT_TRUE(Run("gio", {"mime", kind}).contains("org.pawnfield.Pawnfield.desktop"));
  ASSERT_NO_FATAL_FAILURE(StartHere());
  ASSERT_TRUE(ConsoleComesUp());
  // As a file manager does; the second process hands the path over and ends.
  Run("gio", {"open", bundle_});
  ASSERT_NO_FATAL_FAILURE(IsAddedAndLoaded());
  const auto running = [this] {
    const QStringList all = QDir("/proc").entryList(QDir::Dirs);
    return std::count_if(all.begin(), all.end(), [this](const QString& one) {
      return QFile::symLinkTarget("/proc/" + one + "/exe") == Program();
    });
  };
  EXPECT_TRUE(QTest::qWaitFor([&] { return running() == 1; }, kStartMs)) << running();
  EXPECT_EQ(process_.state(), QProcess::Running);
}

TEST_F(DoubleClickTest, APackedSetStartsTheProgramThatThenOffersIt) {
  ASSERT_NO_FATAL_FAILURE(StartHere({bundle_}));
  ASSERT_TRUE(ConsoleComesUp());
  ASSERT_TRUE(AnswersYes());
  EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(Sets() + "/Clicked.txt"); }, kStartMs));
  EXPECT_EQ(ReadFile(Sets() + "/Media/Clicked/tune.wav"), sound_);
}

TEST_F(RealProgramTest, TellsOfItselfWithoutADisplay) {
  environment_.remove("DISPLAY");
  for (const auto& [option, words] : {std::pair{"--help", "[set]"}, {"--version", "Pawnfield 0."}}) {
    ASSERT_NO_FATAL_FAILURE(Start({option}));
    ASSERT_TRUE(process_.waitForFinished(60000));
    EXPECT_EQ(process_.exitCode(), 0);
    EXPECT_TRUE(QString::fromUtf8(process_.readAllStandardOutput()).contains(words)) << option;
  }
}

}  // namespace
}  // namespace pawnfield
