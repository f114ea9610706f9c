// The desktop's ports: text, paths, files, settings, measures, time, folders and sound.

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QSysInfo>
#include <QTest>
#include <csignal>

#include "desktop/devices/qt_device_watch.h"
#include "desktop/files/user_copy.h"
#include "desktop/files/whole_file.h"
#include "desktop/files/windows_1252.h"
#include "desktop/painting/text_layout.h"
#include "desktop/system/bus_finder.h"
#include "places.h"
#include "sound_rig.h"

namespace pawnfield {
namespace {

template <typename F>
int ErrorOf(F&& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

// The full stop of a text: where its row of ink begins, as a share of the ink's width.
double PlaceOfFullStop(const char* text) {
  constexpr double kTwips = 8000;
  const TextBlock block({"Liberation Sans", 28, false, false}, Escape(QString::fromUtf8(text)), kTwips, Qt::AlignLeft,
                        Breaks::AtWords);
  QImage paper(800, 80, QImage::Format_RGB32);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  painter.scale(0.1, 0.1);
  block.Draw(painter, {});
  painter.end();
  // Letters stand high on the line and a full stop low, so that its columns are white above.
  int first = -1, last = -1, stop = -1;
  for (int x = 0; x < paper.width(); ++x) {
    int highest = paper.height(), ink = 0;
    for (int y = paper.height() - 1; y >= 0; --y) {
      if (qGray(paper.pixel(x, y)) > 128) continue;
      ++ink;
      highest = y;
    }
    if (ink == 0) continue;
    if (first < 0) first = x;
    last = x;
    if (ink <= 8 && highest > 35) stop = x;
  }
  return last > first ? double(stop - first) / (last - first) : -1;
}

TEST(TextBlockTest, ATextGoesTheWayOfItsOwnLetters) {
  EXPECT_GT(PlaceOfFullStop("HHHHH."), 0.8);
  EXPECT_LT(PlaceOfFullStop("\u05DD\u05DD\u05DD\u05DD\u05DD."), 0.2) << "Hebrew ends on the left";
}

TEST(Windows1252Test, EachOfThe256BytesIsTheCodePagesCharacter) {
  // 0x80 to 0x9F; all other bytes are the character of the same number.
  const QString middle = QString::fromUtf16(
      u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
      u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178");
  for (int value = 0; value < 256; ++value) {
    const std::string byte(1, static_cast<char>(value));
    const QChar character = value >= 0x80 && value < 0xA0 ? middle[value - 0x80] : QChar(value);
    EXPECT_EQ(FromWindows1252(byte), QString(character)) << value;
    EXPECT_EQ(Unescape(byte), QString(character)) << value;
    EXPECT_EQ(ToWindows1252(character), byte) << value;
    EXPECT_EQ(Escape(character), byte) << value;
  }
  EXPECT_EQ(ToWindows1252(QString::fromUtf16(u"cafe\u0301")), "caf\xE9");
  for (const char16_t* text : {u"\u4e2d", u"a\u03b1", u"\U0001F600"}) {
    EXPECT_EQ(ToWindows1252(QString::fromUtf16(text)), std::nullopt);
  }
}

TEST(EscapeTest, AnyTextComesBackAlsoOneThatLooksEscapedItself) {
  for (const QString& text :
       kForeignNames + QStringList{"", "plain", QString::fromUtf16(u"cafe\u0301 \U0001F600\u20AC"), "\x7F",
                                   "\x7F"
                                   "00a2",
                                   "\x7F\x7F"
                                   "00a2",
                                   "\x7F"
                                   "00a"}) {
    EXPECT_EQ(Unescape(Escape(text)), text) << text.toStdString();
  }
  EXPECT_EQ(Escape("\x7F"
                   "00a"),
            "\x7F"
            "00a")
      << "what is no escape stays as it is";
}

using NativePathTest = FolderTest;

TEST_F(NativePathTest, IsFoundWhateverItsCaseAndSeparatorsTheExactNameFirst) {
  for (const char* name : {"Images/ScoreBoxRed.bmp", "A.txt", "a.txt"}) Make(name, "x");
  const std::pair<const char*, const char*> cases[] = {
      {"\\images\\scoreboxred.bmp", "Images/ScoreBoxRed.bmp"},
      {"/IMAGES/SCOREBOXRED.BMP", "Images/ScoreBoxRed.bmp"},
      {"\\\\images\\\\scoreboxred.bmp", "Images/ScoreBoxRed.bmp"},
      {"\\a.txt", "a.txt"},
      {"\\A.txt", "A.txt"},
      {"\\New Folder\\Set.TXT", "New Folder/Set.TXT"},
  };
  for (const auto& [spelled, native] : cases) EXPECT_EQ(NativePath(Spelled(spelled)), Native(native));
}

TEST_F(NativePathTest, OnlyPlainFilesCountAsFiles) {
  ASSERT_EQ(mkfifo(QFile::encodeName(Native("pipe")).constData(), 0600), 0);
  Make("plain", "");
  EXPECT_TRUE(NativePlainFile(Spelled("\\plain")));
  for (const std::string& path : {Spelled("\\pipe"), Spelled(""), std::string(), Spelled("\\plain") + '\0'}) {
    EXPECT_FALSE(NativePlainFile(path)) << path;
  }
}

using FileSystemTest = FolderTest;

TEST_F(FileSystemTest, FoldersAndFilesOfAnyAlphabetAreMadeWrittenListedAndRead) {
  QtFileSystem files;
  for (const QString& name : kForeignNames) {
    const std::string folder = SpelledPath(Native(name));
    files.CreateFolder(folder);
    files.Write(folder + "\\" + Escape(name) + ".txt", "text");
    EXPECT_TRUE(QFileInfo(Native(name + '/' + name + ".txt")).isFile()) << name.toStdString();
    EXPECT_EQ(files.List(folder, ".txt"), std::vector<std::string>{SpelledPath(name) + ".txt"});
    EXPECT_EQ(files.Read(folder + "\\" + SpelledPath(name) + ".TXT"), "text");
    EXPECT_EQ(NativePath(folder), Native(name));
  }
  Make("a\\b.txt", "a backslash is a letter here");
  EXPECT_EQ(files.Read(SpelledPath(Native("a\\b.txt"))), "a backslash is a letter here");
}

TEST_F(FileSystemTest, EachFailureHasItsNumber) {
  Make("file.txt", "x");
  QtFileSystem files;
  EXPECT_EQ(ErrorOf([&] { files.Read(Spelled("\\none.txt")); }), kErrorFileNotFound);
  EXPECT_EQ(ErrorOf([&] { files.Read(Spelled("\\none\\none.txt")); }), kErrorPathNotFound);
  EXPECT_EQ(ErrorOf([&] { files.Read(Spelled("")); }), kErrorPathAccess);
  EXPECT_EQ(ErrorOf([&] { files.Write(Spelled("\\none\\set.txt"), "x"); }), kErrorPathNotFound);
  EXPECT_EQ(ErrorOf([&] { files.Write(Spelled(""), "x"); }), kErrorPathAccess);
  EXPECT_EQ(ErrorOf([&] { files.CreateFolder(Spelled("\\file.txt")); }), kErrorPathAccess);
  EXPECT_EQ(ErrorOf([&] { files.CreateFolder(Spelled("\\a\\b")); }), kErrorPathNotFound);
}

TEST_F(FileSystemTest, FailedWriteLeavesTheOldFileWhole) {
  Make("set.txt", "old");
  // A limit on the size of files stands in for the full disk.
  signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit small{4096, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  // A short text would fit a buffer, and a long one fails at once.
  for (const std::size_t size : {6000U, 200000U}) {
    EXPECT_NE(ErrorOf([&] { QtFileSystem().Write(Spelled("\\set.txt"), std::string(size, 'x')); }), 0) << size;
  }
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(QtFileSystem().Read(Spelled("\\set.txt")), "old");
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"set.txt"});
}

TEST_F(FileSystemTest, WritesTheBytesOverTheFileThatDiffersInCaseAndListsOneKindSorted) {
  for (const char* name : {"b.txt", "A.TXT", "c.jpg", "d.txt/inside"}) Make(name, "x");
  const std::string bytes("a\0\r\n\xE9", 5);
  QtFileSystem files;
  files.Write(Spelled("\\a.txt"), bytes);
  EXPECT_EQ(files.Read(Spelled("\\B.txt")), "x");
  EXPECT_EQ(files.Read(Spelled("\\a.Txt")), bytes);
  EXPECT_EQ(files.List(Spelled(""), ".txt"), (std::vector<std::string>{"A.TXT", "b.txt"}));
  EXPECT_TRUE(files.List(Spelled("\\none"), ".txt").empty());
}

using PlacesTest = FolderTest;

TEST_F(PlacesTest, ARelativeFolderOfTheEnvironmentIsIgnored) {
  const QByteArray home = qgetenv("HOME"), data = qgetenv("XDG_DATA_HOME"), config = qgetenv("XDG_CONFIG_HOME");
  qputenv("HOME", QFile::encodeName(Native("home")));
  const auto places = [] {
    std::optional<CopyFailure> failure;
    return NativePath(FindFolders(failure).DataRoot) + " " + ConfigFolder();
  };
  for (const char* odd : {"here", "./here", "../here"}) {
    qputenv("XDG_DATA_HOME", odd);
    qputenv("XDG_CONFIG_HOME", odd);
    EXPECT_EQ(places(), Native("home/.local/share/Ostara Show Kit Data ") + Native("home/.config/Pawnfield")) << odd;
  }
  qputenv("XDG_DATA_HOME", QFile::encodeName(Native("d")));
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(Native("c")));
  EXPECT_EQ(places(), Native("d/Ostara Show Kit Data ") + Native("c/Pawnfield"));
  for (const auto& [name, value] : {std::pair{"HOME", home}, {"XDG_DATA_HOME", data}, {"XDG_CONFIG_HOME", config}}) {
    value.isNull() ? qunsetenv(name) : qputenv(name, value);
  }
}

using SettingsTest = FolderTest;

TEST_F(SettingsTest, KeysAreCaseBlindAndValuesComeBack) {
  const QString folder = Native("config/Pawnfield");
  for (const char* value : {"plain", "with, comma", "\xC9t\xE9 \x93quoted\x94", "@odd", " blanks ", "", "a\\b;c=d#e"}) {
    QtSettingsStore(folder).SaveSetting("Pawnfield", "Settings", "KeyCorrect", value);
    // A store of its own reads what has reached the disk.
    EXPECT_EQ(QtSettingsStore(folder).GetSetting("Pawnfield", "SETTINGS", "keycorrect", "none"), value);
  }
  QtSettingsStore(folder).SaveSetting("Pawnfield", "settings", "KEYCORRECT", "new");
  EXPECT_EQ(QtSettingsStore(folder).GetSetting("Pawnfield", "Settings", "KeyCorrect", ""), "new");
}

TEST_F(SettingsTest, WhatIsKeptInPassingIsFoundAtOnceAndReachesTheDisk) {
  const QString folder = Native("kept");
  const auto onDisk = [&](const char* key) {
    return QtSettingsStore(folder).GetSetting("Pawnfield", "Settings", key, "none");
  };
  {
    QtSettingsStore store(folder);
    for (const char* value : {"2", "3"}) store.SaveSettingsAsync("Pawnfield", "Settings", {{"Players", value}});
    EXPECT_EQ(store.GetSetting("Pawnfield", "Settings", "players", ""), "3");
    store.Flush();
    EXPECT_EQ(onDisk("Players"), "3");
    store.SaveSettingsAsync("Pawnfield", "Settings", {{"GridControl", "4"}});
    store.SaveSetting("Pawnfield", "Settings", "SoundSet", "2");
    EXPECT_EQ(onDisk("GridControl") + onDisk("SoundSet"), "42") << "nothing overtakes what waits";
    store.SaveSettingsAsync("Pawnfield", "Settings", {{"GridControl", "5"}});
  }
  EXPECT_EQ(onDisk("GridControl"), "5") << "nor is it lost with the store";
}

TEST_F(SettingsTest, OnlyAPlainFileOfSettingsSizeIsReadAndNothingElseIsWrittenOver) {
  ASSERT_TRUE(QDir().mkpath(Native("folder/pawnfield.ini")) && QDir().mkpath(Native("pipe")));
  ASSERT_EQ(mkfifo(QFile::encodeName(Native("pipe/pawnfield.ini")).constData(), 0600), 0);
  Make("large/pawnfield.ini", "[Settings]\nPlayers=2\n" + QByteArray(2 * 1024 * 1024, ';'));
  ASSERT_TRUE(QDir().mkpath(Native("device")) && QFile::link("/dev/zero", Native("device/pawnfield.ini")));
  for (const char* name : {"folder", "pipe", "large", "device"}) {
    QtSettingsStore store(Native(name));
    EXPECT_EQ(store.GetSetting("Pawnfield", "Settings", "Players", "3"), "3") << name;
    EXPECT_NE(store.Problem("Pawnfield"), "") << name;
    EXPECT_NE(ErrorOf([&] { store.SaveSetting("Pawnfield", "Settings", "Players", "2"); }), 0) << name;
  }
  EXPECT_EQ(QFileInfo(Native("large/pawnfield.ini")).size(), 2 * 1024 * 1024 + 21);
}

TEST_F(SettingsTest, MissingAndBrokenStoresGiveTheFallbackAndAFolderThatCannotBeIsReported) {
  Make("broken/pawnfield.ini", QByteArray("\xFF\xFE[[[\0=]\n==", 11));
  for (const char* folder : {"none", "broken"}) {
    EXPECT_EQ(QtSettingsStore(Native(folder)).GetSetting("Pawnfield", "Settings", "Players", "3"), "3") << folder;
  }
  QtSettingsStore store(Make("file", "a file stands where the folder should"));
  EXPECT_NE(ErrorOf([&] { store.SaveSetting("Pawnfield", "Settings", "Players", "2"); }), 0);
}

TEST(TextMeasureTest, GrowsInProportionAndWrapsAtWords) {
  const QtTextMeasurer measurer;
  const std::string text = "Which planet has the shortest day of all that go round the sun?";
  for (const char* name : {"Courier New", "Comic Sans MS", "Segoe UI", "No Such Font"}) {
    const TextSize small = measurer.Measure({name, 20, true, false}, text, 4000);
    EXPECT_NEAR(measurer.Measure({name, 60, true, false}, text, 12000).Height, 3 * small.Height, 1) << name;
    EXPECT_GT(small.Height, 1.9 * measurer.Measure({name, 20, true, false}, text, 90000).Height) << name;
    EXPECT_DOUBLE_EQ(small.Width, 4000) << name;
  }
  const Font font{"Segoe UI", 30, false, false};
  EXPECT_GT(measurer.Measure(font, "incomprehensibilities a b", 500).Width, 3000) << "the widest word is the least";
  const double line = measurer.Measure(font, "a", 5000).Height;
  EXPECT_NEAR(measurer.Measure(font, "a\r\nb\nc", 5000).Height, 3 * line, 1);
  // The lines' height at 96 dots an inch: between one and two times the size of 20 twips a point.
  EXPECT_NEAR(line, 30 * 30, 30 * 10);
}

TEST(ClockTest, TimersFollowTheirModels) {
  Form form("frmTest");
  Timer timer(form, "tmrTest", 10);
  int fired = 0;
  timer.OnTimer = [&] { ++fired; };
  QtClock clock;
  clock.Attach(form);
  const auto fires = [&](int times, int ms) {
    fired = 0;
    return QTest::qWaitFor([&] { return fired >= times; }, ms);
  };
  EXPECT_FALSE(fires(1, 40));
  timer.Enabled = true;
  EXPECT_TRUE(fires(3, 30000));
  timer.Interval = 0;
  EXPECT_FALSE(fires(1, 40));
  timer.Interval = 10;
  EXPECT_TRUE(fires(1, 30000));
  clock.Detach(form);
  EXPECT_FALSE(fires(1, 40));
}

TEST(ClockTest, RelaxedTimersWakeTheProgramTogether) {
  Form form("frmTest");
  Timer first(form, "tmrFirst", 1000, true), second(form, "tmrSecond", 1000);
  first.Relaxed = second.Relaxed = true;
  QElapsedTimer since;
  qint64 firstAt = 0, secondAt = 0;
  first.OnTimer = [&] { firstAt = since.elapsed(); };
  second.OnTimer = [&] { secondAt = since.elapsed(); };
  QtClock clock;
  clock.Attach(form);
  since.start();
  QTest::qWait(300);
  second.Enabled = true;
  EXPECT_TRUE(QTest::qWaitFor([&] { return secondAt > 0 && std::abs(secondAt - firstAt) < 100; }, kSlowMachineMs));
}

using BusTest = FolderTest;

TEST_F(BusTest, OneThatAnswersIsFoundAndOneThatIsSilentIsGivenUpInTwoSeconds) {
  const QByteArray before = qgetenv("DBUS_SESSION_BUS_ADDRESS"), system = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
  // Callers get through to it, and nobody takes them.
  const int silent = socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un name{AF_UNIX, {}};
  const QByteArray path = QFile::encodeName(Native("silent"));
  std::copy(path.begin(), path.end(), name.sun_path);
  ASSERT_EQ(bind(silent, reinterpret_cast<const sockaddr*>(&name), sizeof name), 0);
  ASSERT_EQ(listen(silent, 5), 0);
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  ASSERT_TRUE(daemon.waitForStarted() && daemon.waitForReadyRead());
  const QByteArray answering = daemon.readLine().trimmed();
  for (const auto& [address, answers] : {std::pair{"unix:path=" + path, false}, {answering, true}}) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
    std::optional<bool> found;
    QElapsedTimer elapsed;
    elapsed.start();
    {
      const BusFinder finder([&](const QDBusConnection& session, const QDBusConnection& other) {
        found = session.isConnected() && other.isConnected();
      });
      EXPECT_LT(elapsed.elapsed(), 1500) << "the caller was kept waiting";
      EXPECT_TRUE(QTest::qWaitFor([&] { return found.has_value(); }, 60000));
    }
    EXPECT_EQ(found, answers) << address.toStdString();
    EXPECT_LT(elapsed.elapsed(), 12000) << "the bus's own patience is 25 seconds";
  }
  close(silent);
  for (const char* bus : {"qt_default_session_bus", "qt_default_system_bus"}) QDBusConnection::disconnectFromBus(bus);
  daemon.terminate();
  daemon.waitForFinished();
  for (const auto& [variable, value] :
       {std::pair{"DBUS_SESSION_BUS_ADDRESS", before}, {"DBUS_SYSTEM_BUS_ADDRESS", system}}) {
    value.isNull() ? qunsetenv(variable) : qputenv(variable, value);
  }
}

using ProcessesTest = FolderTest;

TEST_F(ProcessesTest, AFolderInTheMarksPlaceIsReportedAsOneAndTheProgramCanBeRaised) {
  QDir().mkpath(Native("run/pawnfield.lock"));
  int raised = 0;
  DesktopProcesses processes(Native("run"), [&] { ++raised; });
  try {
    processes.AnotherInstanceRuns();
    ADD_FAILURE() << "nothing was said";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), kErrorPathAccess);
    EXPECT_NE(std::string(error.what()).find("A folder stands"), std::string::npos) << error.what();
  }
  processes.Activate(0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return raised == 1; }, kSlowMachineMs));
}

TEST_F(ProcessesTest, OnlyThisUsersProcessesCount) {
  if (geteuid() != 0) GTEST_SKIP() << "another user's process takes root to start";
  QProcess own, others;
  const QStringList script{"-c", "exec -a \"$0\" sleep 30"};
  own.start("bash", script + QStringList{"ostara-own"});
  others.start("setpriv",
               QStringList{"--reuid=65534", "--clear-groups", "bash"} + script + QStringList{"ostara-others"});
  ASSERT_TRUE(own.waitForStarted() && others.waitForStarted());
  const auto caption = [](const QProcess& process) {
    QFile line(QString("/proc/%1/cmdline").arg(process.processId()));
    return line.open(QFile::ReadOnly) ? line.readAll().split('\0').first() : QByteArray();
  };
  ASSERT_TRUE(QTest::qWaitFor([&] { return caption(own) == "ostara-own" && caption(others) == "ostara-others"; },
                              kSlowMachineMs));
  const auto all = DesktopProcesses(Native("run"), [] {}).List();
  const auto listed = [&](const QProcess& process) {
    return std::any_of(all.begin(), all.end(),
                       [&](const ProcessInfo& one) { return one.Handle == process.processId(); });
  };
  EXPECT_TRUE(listed(own));
  EXPECT_FALSE(listed(others));
  for (QProcess* process : {&own, &others}) {
    process->kill();
    process->waitForFinished();
  }
}

TEST_F(ProcessesTest, ASecondInstanceRaisesTheFirstAndAMarkOfNobodyRefusesNone) {
  int raised = 0;
  {
    DesktopProcesses first(Native("run"), [&] { ++raised; }), second(Native("run"), [] {});
    EXPECT_FALSE(first.AnotherInstanceRuns());
    EXPECT_TRUE(second.AnotherInstanceRuns());
    second.Activate(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return raised == 1; }, kSlowMachineMs));
  }
  // What a crash leaves: a lock of a process that is gone, and one that was not yet written.
  for (const QByteArray& mark : {"999999999\npawnfield\n" + QSysInfo::machineHostName().toUtf8() + "\n", {}}) {
    Make("run/pawnfield.lock", mark);
    DesktopProcesses first(Native("run"), [] {});
    EXPECT_FALSE(first.AnotherInstanceRuns());
    EXPECT_TRUE(DesktopProcesses(Native("run"), [] {}).AnotherInstanceRuns());
  }
  const auto all = DesktopProcesses(Native("run"), [] {}).List();
  EXPECT_TRUE(std::any_of(all.begin(), all.end(), [](const ProcessInfo& process) {
    return process.Handle == getpid() && process.Caption == "pawnfield_desktop_tests";
  }));
}

using UserCopyTest = FolderTest;

TEST_F(UserCopyTest, FollowsTheShippedFilesAndKeepsTheOperators) {
  // A file as it is shipped first, what the operator makes of it, where empty is its removal, and what stays of it,
  // where null is as it is shipped then.
  const std::array<const char*, 4> files[] = {
      {"Images/a.bmp", "first", "", nullptr},
      {"Images/own.bmp", "first", "mine", "mine"},
      {"Trivia Sets/Edited.txt", "first", "my", "my"},
      {"Trivia Sets/Removed.txt", "first", "", "(none)"},
      {"Trivia Sets/New.txt", nullptr, "my", "my"},
      {"Trivia Sets/Later.txt", nullptr, nullptr, nullptr},
      {"Trivia Sets/Same.txt", "first", nullptr, nullptr},
  };
  for (const auto& [name, first, edited, kept] : files) {
    if (first != nullptr) Make(QString("shared/") + name, first);
  }
  QFile::setPermissions(Native("shared/Trivia Sets/Same.txt"), QFile::ReadOwner);
  UpdateUserCopy(Native("shared"), Native("user"));
  EXPECT_TRUE(QFile::permissions(Native("user/Trivia Sets/Same.txt")) & QFile::WriteOwner);
  for (const auto& [name, first, edited, kept] : files) {
    if (edited == nullptr) continue;
    const QString copy = Make(QString("user/") + name, edited);
    if (*edited == '\0') QFile::remove(copy);
  }
  for (const char* version : {"second", "third"}) {
    for (const auto& file : files) Make(QString("shared/") + file[0], version);
    UpdateUserCopy(Native("shared"), Native("user"));
    for (const auto& [name, first, edited, kept] : files) {
      QFile copy(Native(QString("user/") + name));
      const QByteArray now = copy.open(QFile::ReadOnly) ? copy.readAll() : "(none)";
      EXPECT_EQ(now, kept != nullptr ? kept : version) << name;
    }
  }
}

TEST_F(UserCopyTest, ACopyThatWasCutOffFollowsTheVersionThatIsInstalledNext) {
  const QStringList files{"a.bmp", "b.bmp", "Trivia Sets/c.txt", "d.bmp", "Trivia Sets/e.txt"};
  const auto install = [&](const char* version, int count) {
    for (int i = 0; i < count; ++i) Make("shared/" + files[i], version);
    UpdateUserCopy(Native("shared"), Native("user"));
    return ReadFile(Native("user/Shipped.lst"));
  };
  const QByteArray first = install("first", 3);
  const QByteArray second = install("second", 5);
  // As a kill leaves it: the list that is written before, half of the files, and of the new ones the first.
  QByteArray list = first;
  for (const QByteArray& line : second.trimmed().split('\n')) list += '+' + line + '\n';
  Make("user/Shipped.lst", list.constData());
  Make("user/b.bmp", "first");
  QFile::remove(Native("user/Trivia Sets/e.txt"));
  install("third", 5);
  for (const QString& name : files) EXPECT_EQ(ReadFile(Native("user/" + name)), "third") << name.toStdString();
}

TEST_F(UserCopyTest, WhatCannotBeMadeIsReportedOnce) {
  for (const char* name : {"shared/a.bmp", "shared/Trivia Sets/b.txt", "user"}) Make(name, "x");
  const auto failure = UpdateUserCopy(Native("shared"), Native("user"));
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->Error.Number(), kErrorPathNotFound);
  EXPECT_TRUE(failure->File.startsWith(Native("user/")));
}

TEST(DialogTest, FiltersAreTheToolkits) {
  EXPECT_EQ(FilterList("Pictures(*.bmp)|*.bmp;*.jpg|All|*.*"), "Pictures (*.bmp *.jpg);;All (*.*)");
}

using SoundTest = FolderTest;

TEST_F(SoundTest, PlaysToTheEndCutsAndStopsWithoutADevice) {
  Make("short.wav", ToneFile(0, 200));
  Make("long.wav", ToneFile(0, 20000));
  MpvChannel channel;
  const auto plays = [&] { return QTest::qWaitFor([&] { return channel.IsPlaying(); }, kSlowMachineMs); };
  const auto ends = [&](int count) {
    return QTest::qWaitFor([&] { return channel.Ended() == count; }, kSlowMachineMs);
  };
  channel.SetPosition(0);
  channel.SetUrl(Spelled("\\SHORT.WAV"));
  EXPECT_TRUE(ends(1));
  EXPECT_FALSE(channel.IsPlaying());
  channel.SetUrl(Spelled("\\long.wav"));
  EXPECT_TRUE(plays());
  channel.SetPosition(0);
  channel.SetUrl(Spelled("\\short.wav"));
  EXPECT_TRUE(ends(2));
  channel.SetUrl(Spelled("\\long.wav"));
  EXPECT_TRUE(plays());
  // Close to the end, so that the file is soon over.
  channel.SetPosition(19.9);
  EXPECT_TRUE(ends(3));
  channel.SetUrl(Spelled("\\long.wav"));
  channel.Stop();
  QTest::qWait(200);
  EXPECT_FALSE(channel.IsPlaying());
}

TEST_F(SoundTest, WhatIsNoSoundIsSilence) {
  Make("list.mp3", "#EXTM3U\nlong.wav\n");
  Make("folder/long.wav", ToneFile(0, 20000));
  Make("broken.wav", QByteArray(4000, '\x01'));
  MpvChannel channel;
  for (const std::string& path : {Spelled("\\list.mp3"), Spelled("\\folder"), Spelled("\\none.wav"), std::string()}) {
    channel.SetUrl(path);
    QTest::qWait(100);
    EXPECT_FALSE(channel.IsPlaying()) << path;
  }
  channel.SetUrl(Spelled("\\broken.wav"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return channel.Failed() == 1; }, kSlowMachineMs));
}

TEST(VolumeTest, IsHeardAsSet) {
  for (const auto& [volume, cubic] : {std::pair{0, 0.0}, {75, 90.86}, {100, 100.0}, {900, 100.0}}) {
    EXPECT_NEAR(CubicVolume(volume), cubic, 0.01) << volume;
  }
}

TEST(DeviceWatch, TellsOfADeviceItsRightsAndItsEndAndOfNothingElse) {
  const QTemporaryDir folder;
  QtDeviceWatch watch(folder.path().toStdString());
  int told = 0;
  watch.OnChanged([&] { ++told; });
  const auto make = [&](const char* name) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  };
  make("random");
  QTest::qWait(200);
  EXPECT_EQ(told, 0);
  make("hidraw0");
  EXPECT_TRUE(QTest::qWaitFor([&] { return told == 1; }, kSlowMachineMs));
  QFile::setPermissions(folder.filePath("hidraw0"), QFile::ReadOwner);
  EXPECT_TRUE(QTest::qWaitFor([&] { return told == 2; }, kSlowMachineMs));
  QFile::remove(folder.filePath("hidraw0"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return told == 3; }, kSlowMachineMs));
}

}  // namespace
}  // namespace pawnfield
