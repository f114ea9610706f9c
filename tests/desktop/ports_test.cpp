// The desktop's ports: text, paths, files, settings, measures, time, folders and sound.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

#include "platform/desktop/linux_processes.h"
#include "platform/desktop/mpv_channel.h"
#include "platform/desktop/native_path.h"
#include "platform/desktop/qt_clock.h"
#include "platform/desktop/qt_dialogs.h"
#include "platform/desktop/qt_file_system.h"
#include "platform/desktop/qt_readers.h"
#include "platform/desktop/qt_settings_store.h"
#include "platform/desktop/user_copy.h"
#include "platform/desktop/windows_1252.h"

namespace pawnfield {
namespace {

class FolderTest : public testing::Test {
 protected:
  void Make(const QString& name, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(Native(name)).path());
    QFile file(Native(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QString Native(const QString& name) const { return folder_.path() + '/' + name; }
  std::string Spelled(const std::string& tail) const { return *SpelledPath(folder_.path()) + tail; }

  QTemporaryDir folder_;
};

using Windows1252Test = testing::Test;

TEST(Windows1252Test, EveryByteComesBack) {
  for (int value = 0; value < 256; ++value) {
    const std::string byte(1, static_cast<char>(value));
    EXPECT_EQ(ToWindows1252(FromWindows1252(byte)), byte) << value;
  }
}

TEST(Windows1252Test, MiddleRowsAreNotLatin1) {
  const std::pair<int, char16_t> cases[] = {{0x80, 0x20AC}, {0x85, 0x2026}, {0x91, 0x2018}, {0x92, 0x2019},
                                            {0x93, 0x201C}, {0x96, 0x2013}, {0x9F, 0x0178}, {0xE9, 0x00E9}};
  for (const auto& [byte, character] : cases) {
    EXPECT_EQ(FromWindows1252(std::string(1, static_cast<char>(byte))), QString(QChar(character))) << byte;
  }
}

TEST(Windows1252Test, RefusesWhatHasNoByteAndComposesAccents) {
  EXPECT_EQ(ToWindows1252(QString::fromUtf8("caf\u00e9")), "caf\xE9");
  EXPECT_EQ(ToWindows1252(QString::fromUtf16(u"cafe\u0301")), "caf\xE9");
  for (const char16_t* text : {u"\u4e2d", u"a\u03b1", u"\U0001F600"}) {
    EXPECT_EQ(ToWindows1252(QString::fromUtf16(text)), std::nullopt);
  }
}

using NativePathTest = FolderTest;

TEST_F(NativePathTest, FindsWithoutRegardToCaseAndSeparator) {
  Make("Images/ScoreBoxRed.bmp", "x");
  for (const char* spelled : {"\\images\\scoreboxred.bmp", "/IMAGES/SCOREBOXRED.BMP", "\\Images/ScoreBoxRed.bmp",
                              "\\\\images\\\\scoreboxred.bmp"}) {
    EXPECT_TRUE(QFileInfo::exists(NativePath(Spelled(spelled)))) << spelled;
  }
}

TEST_F(NativePathTest, PrefersTheExactNameAndKeepsWhatIsNotThere) {
  Make("A.txt", "upper");
  Make("a.txt", "lower");
  EXPECT_EQ(NativePath(Spelled("\\a.txt")), Native("a.txt"));
  EXPECT_EQ(NativePath(Spelled("\\A.txt")), Native("A.txt"));
  EXPECT_EQ(NativePath(Spelled("\\New Folder\\Set.TXT")), Native("New Folder/Set.TXT"));
}

TEST_F(NativePathTest, OnlyPlainFilesCountAsFiles) {
  ASSERT_EQ(mkfifo(QFile::encodeName(Native("pipe")).constData(), 0600), 0);
  Make("plain", "");
  EXPECT_TRUE(NativePlainFile(Spelled("\\plain")));
  EXPECT_FALSE(NativePlainFile(Spelled("\\pipe")));
  EXPECT_FALSE(NativePlainFile(Spelled("")));
  EXPECT_FALSE(NativePlainFile(""));
  EXPECT_FALSE(NativePlainFile(std::string("plain\0x", 7)));
}

class FileSystemTest : public FolderTest {
 protected:
  template <typename F>
  int ErrorOf(F&& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  }
  QtFileSystem files_;
};

TEST_F(FileSystemTest, EachFailureHasItsNumber) {
  Make("file.txt", "x");
  EXPECT_EQ(ErrorOf([&] { files_.Read(Spelled("\\none.txt")); }), kErrorFileNotFound);
  EXPECT_EQ(ErrorOf([&] { files_.Read(Spelled("\\none\\none.txt")); }), kErrorPathNotFound);
  EXPECT_EQ(ErrorOf([&] { files_.Read(Spelled("")); }), kErrorPathAccess);
  EXPECT_EQ(ErrorOf([&] { files_.Write(Spelled("\\none\\set.txt"), "x"); }), kErrorPathNotFound);
  EXPECT_EQ(ErrorOf([&] { files_.Write(Spelled(""), "x"); }), kErrorPathAccess);
  EXPECT_EQ(ErrorOf([&] { files_.CreateFolder(Spelled("\\file.txt")); }), kErrorPathAccess);
  EXPECT_EQ(ErrorOf([&] { files_.CreateFolder(Spelled("\\a\\b")); }), kErrorPathNotFound);
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
    EXPECT_NE(ErrorOf([&] { files_.Write(Spelled("\\set.txt"), std::string(size, 'x')); }), 0) << size;
  }
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(files_.Read(Spelled("\\set.txt")), "old");
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList{"set.txt"});
}

TEST_F(FileSystemTest, WritesTheBytesOverTheFileThatDiffersInCase) {
  Make("My Set.txt", "old");
  const std::string bytes("a\0\r\n\xE9", 5);
  files_.Write(Spelled("\\MY SET.TXT"), bytes);
  EXPECT_EQ(files_.Read(Spelled("\\my set.txt")), bytes);
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(FileSystemTest, ListsOneKindSorted) {
  for (const char* name : {"b.txt", "A.TXT", "c.jpg"}) Make(name, "x");
  Make("d.txt/inside", "x");
  EXPECT_EQ(files_.List(Spelled(""), ".txt"), (std::vector<std::string>{"A.TXT", "b.txt"}));
  EXPECT_TRUE(files_.List(Spelled("\\none"), ".txt").empty());
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

TEST_F(SettingsTest, MissingAndBrokenStoresGiveTheFallback) {
  EXPECT_EQ(QtSettingsStore(Native("none")).GetSetting("Pawnfield", "Settings", "Players", "3"), "3");
  Make("broken/pawnfield.ini", QByteArray("\xFF\xFE[[[\0=]\n==", 11));
  EXPECT_EQ(QtSettingsStore(Native("broken")).GetSetting("Pawnfield", "Settings", "Players", "3"), "3");
}

TEST_F(SettingsTest, SaysWhenItCannotSave) {
  Make("file", "a file stands where the folder should");
  QtSettingsStore store(Native("file"));
  EXPECT_THROW(store.SaveSetting("Pawnfield", "Settings", "Players", "2"), RuntimeError);
}

TEST(TextMeasureTest, GrowsInProportionAndWrapsAtWords) {
  const QtTextMeasurer measurer;
  const std::string text = "Which planet has the shortest day of all that go round the sun?";
  for (const char* name : {"Courier New", "Comic Sans MS", "Segoe UI", "No Such Font"}) {
    Font font{name, 20, true, false};
    const TextSize small = measurer.Measure(font, text, 4000);
    font.Size = 60;
    const TextSize large = measurer.Measure(font, text, 12000);
    EXPECT_NEAR(large.Height, 3 * small.Height, 1) << name;
    font.Size = 20;
    EXPECT_GT(small.Height, 1.9 * measurer.Measure(font, text, 90000).Height) << name;
    EXPECT_DOUBLE_EQ(small.Width, 4000) << name;
  }
}

TEST(TextMeasureTest, WidestWordIsTheLeastWidthAndLinesAreKept) {
  const QtTextMeasurer measurer;
  const Font font{"Segoe UI", 30, false, false};
  const TextSize narrow = measurer.Measure(font, "incomprehensibilities a b", 500);
  EXPECT_GT(narrow.Width, 3000);
  const double line = measurer.Measure(font, "a", 5000).Height;
  EXPECT_NEAR(measurer.Measure(font, "a\r\nb\nc", 5000).Height, 3 * line, 1);
  // The lines' height at 96 dots an inch: between one and two times the size of 20 twips a point.
  EXPECT_GT(line, 30 * 20);
  EXPECT_LT(line, 30 * 40);
}

using PictureTest = FolderTest;

TEST_F(PictureTest, TellsSizeAndWhatIsWrong) {
  QImage(37, 21, QImage::Format_RGB32).save(Native("a.png"));
  Make("broken.jpg", "no picture");
  const QtPictureReader reader;
  const PixelSize size = reader.Size(Spelled("\\A.PNG"));
  EXPECT_EQ(size.Width, 37);
  EXPECT_EQ(size.Height, 21);
  for (const auto& [name, number] :
       {std::pair{"\\broken.jpg", kErrorInvalidPicture}, {"\\none.jpg", kErrorFileNotFound}}) {
    try {
      reader.Size(Spelled(name));
      ADD_FAILURE() << name;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), number) << name;
    }
  }
}

TEST(ClockTest, TimersFollowTheirModels) {
  Form form("frmTest");
  Timer timer(form, "tmrTest", 10);
  int fired = 0;
  timer.OnTimer = [&] { ++fired; };
  QtClock clock;
  clock.Attach(form);
  QTest::qWait(40);
  EXPECT_EQ(fired, 0);
  timer.Enabled = true;
  EXPECT_TRUE(QTest::qWaitFor([&] { return fired >= 3; }, 2000));
  timer.Interval = 0;
  fired = 0;
  QTest::qWait(40);
  EXPECT_EQ(fired, 0);
  timer.Interval = 10;
  EXPECT_TRUE(QTest::qWaitFor([&] { return fired > 0; }, 2000));
  clock.Detach(form);
  fired = 0;
  QTest::qWait(40);
  EXPECT_EQ(fired, 0);
}

using ProcessesTest = FolderTest;

TEST_F(ProcessesTest, SecondInstanceIsToldAndRaisesTheFirst) {
  int raised = 0;
  {
    LinuxProcesses first(Native("run"), [&] { ++raised; });
    LinuxProcesses second(Native("run"), [] {});
    EXPECT_FALSE(first.AnotherInstanceRuns());
    EXPECT_TRUE(second.AnotherInstanceRuns());
    second.Activate(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return raised == 1; }, 2000));
  }
  // What a crash leaves: a lock of a process that is gone.
  Make("run/pawnfield.lock", "999999999\npawnfield\n" + QSysInfo::machineHostName().toUtf8() + "\n");
  EXPECT_FALSE(LinuxProcesses(Native("run"), [] {}).AnotherInstanceRuns());
}

TEST_F(ProcessesTest, ListsThisProcess) {
  const LinuxProcesses processes(Native("run"), [] {});
  bool found = false;
  for (const ProcessInfo& process : processes.List()) {
    found = found || (process.Handle == getpid() && process.Caption == "pawnfield_desktop_tests");
  }
  EXPECT_TRUE(found);
}

using FoldersTest = FolderTest;

TEST_F(FoldersTest, UserCopyFollowsTheShippedFilesAndKeepsTheOperators) {
  Make("shared/Images/a.bmp", "picture");
  Make("shared/Images/own.bmp", "picture");
  Make("shared/Trivia Sets/Edited.txt", "first");
  Make("shared/Trivia Sets/Removed.txt", "first");
  Make("shared/Trivia Sets/Same.txt", "first");
  QFile::setPermissions(Native("shared/Trivia Sets/Edited.txt"), QFile::ReadOwner);
  UpdateUserCopy(Native("shared"), Native("user"));
  Make("user/Images/own.bmp", "mine");
  Make("user/Trivia Sets/Edited.txt", "edited");
  Make("user/Trivia Sets/New.txt", "the operator's");
  QFile::remove(Native("user/Trivia Sets/Removed.txt"));
  QFile::remove(Native("user/Images/a.bmp"));
  for (const char* version : {"second", "third"}) {
    for (const char* set : {"Removed", "Same", "New", "Later"}) {
      Make("shared/Trivia Sets/" + QString(set) + ".txt", version);
    }
    Make("shared/Images/own.bmp", version);
    UpdateUserCopy(Native("shared"), Native("user"));
    const QtFileSystem files;
    const auto copy = [&](const std::string& path) {
      const std::string file = Spelled("\\user\\" + path);
      return files.CanOpen(file) ? files.Read(file) : "(none)";
    };
    EXPECT_EQ(copy("Images\\a.bmp"), "picture");
    EXPECT_EQ(copy("Images\\own.bmp"), "mine");
    EXPECT_EQ(copy("Trivia Sets\\Edited.txt"), "edited");
    EXPECT_EQ(copy("Trivia Sets\\Removed.txt"), "(none)");
    EXPECT_EQ(copy("Trivia Sets\\Same.txt"), version);
    EXPECT_EQ(copy("Trivia Sets\\New.txt"), "the operator's");
    EXPECT_EQ(copy("Trivia Sets\\Later.txt"), version);
  }
}

TEST(DialogTest, FiltersAreTheToolkits) {
  EXPECT_EQ(FilterList("Game Sets(*.txt)|*.txt"), "Game Sets (*.txt)");
  EXPECT_EQ(FilterList("Pictures|*.bmp;*.jpg|All|*.*"), "Pictures (*.bmp *.jpg);;All (*.*)");
}

// A second of silence in the simplest sound file there is.
QByteArray WaveBytes(int milliseconds) {
  const quint32 size = static_cast<quint32>(8 * milliseconds);
  QByteArray wave(
      "RIFF....WAVEfmt \x10\0\0\0\1\0\1\0\x40\x1f\0\0\x40\x1f\0\0\1\0\x08\0"
      "data....",
      44);
  const auto put = [&wave](qsizetype at, quint32 value) {
    for (int i = 0; i < 4; ++i) wave[at + i] = static_cast<char>(value >> (8 * i));
  };
  put(4, 36 + size);
  put(40, size);
  return wave + QByteArray(static_cast<qsizetype>(size), '\x80');
}

using SoundTest = FolderTest;

TEST_F(SoundTest, PlaysToTheEndCutsAndStopsWithoutADevice) {
  Make("short.wav", WaveBytes(200));
  Make("long.wav", WaveBytes(20000));
  MpvChannel channel;
  channel.SetPosition(0);
  channel.SetUrl(Spelled("\\SHORT.WAV"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return channel.Ended() == 1; }, 5000));
  EXPECT_FALSE(channel.IsPlaying());
  channel.SetUrl(Spelled("\\long.wav"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return channel.IsPlaying(); }, 5000));
  channel.SetPosition(0);
  channel.SetUrl(Spelled("\\short.wav"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return channel.Ended() == 2; }, 5000));
  channel.SetUrl(Spelled("\\long.wav"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return channel.IsPlaying(); }, 5000));
  // Close to the end, so that the file is soon over.
  channel.SetPosition(19.9);
  EXPECT_TRUE(QTest::qWaitFor([&] { return channel.Ended() == 3; }, 5000));
  channel.SetUrl(Spelled("\\long.wav"));
  channel.Stop();
  QTest::qWait(200);
  EXPECT_FALSE(channel.IsPlaying());
}

TEST_F(SoundTest, WhatIsNoSoundIsSilence) {
  Make("list.mp3", "#EXTM3U\nlong.wav\n");
  Make("folder/long.wav", WaveBytes(20000));
  Make("broken.wav", QByteArray(4000, '\x01'));
  MpvChannel channel;
  for (const char* name : {"\\list.mp3", "\\folder", "\\none.wav", ""}) {
    channel.SetUrl(name[0] == '\0' ? std::string() : Spelled(name));
    QTest::qWait(100);
    EXPECT_FALSE(channel.IsPlaying()) << name;
  }
  channel.SetUrl(Spelled("\\broken.wav"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return channel.Failed() == 1; }, 5000));
}

TEST(VolumeTest, IsHeardAsSet) {
  EXPECT_DOUBLE_EQ(CubicVolume(0), 0);
  EXPECT_DOUBLE_EQ(CubicVolume(100), 100);
  EXPECT_NEAR(CubicVolume(75), 90.86, 0.01);
  EXPECT_DOUBLE_EQ(CubicVolume(900), 100);
}

}  // namespace
}  // namespace pawnfield
