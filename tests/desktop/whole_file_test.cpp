// What a program leaves that was killed: parts of files, marks, and settings of an earlier make.
#include "platform/desktop/whole_file.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/desktop/ini_text.h"
#include "platform/desktop/linux_processes.h"
#include "platform/desktop/user_copy.h"

namespace pawnfield {
namespace {

void Put(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QFile::WriteOnly));
  file.write(bytes);
}

// The number of a process that has ended.
QString DeadProcess() {
  const pid_t child = fork();
  if (child == 0) _exit(0);
  waitpid(child, nullptr, 0);
  return QString::number(child);
}

TEST(WholeFileTest, APartOfADeadProcessGoesAndALinkAndItsRightsStay) {
  const QTemporaryDir folder;
  const QString living = ".set.txt." + QString::number(getppid()) + ".part";
  Put(folder.filePath("set.txt"), "old");
  QFile::setPermissions(folder.filePath("set.txt"), QFile::ReadOwner | QFile::WriteOwner);
  QFile::link(folder.filePath("set.txt"), folder.filePath("link.txt"));
  Put(folder.filePath(".set.txt." + DeadProcess() + ".part"), "half");
  Put(folder.filePath(living), "half");
  ReplaceFile(folder.filePath("link.txt"), "new");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList({living, "link.txt", "set.txt"}));
  EXPECT_TRUE(QFileInfo(folder.filePath("link.txt")).isSymLink());
  EXPECT_EQ(QFileInfo(folder.filePath("set.txt")).size(), 3);
  EXPECT_FALSE(QFile::permissions(folder.filePath("set.txt")) & QFile::ReadOther);
}

TEST(WholeFileTest, AMarkThatNamesNobodyRefusesNoStart) {
  const QTemporaryDir folder;
  Put(folder.filePath("pawnfield.lock"), "");
  LinuxProcesses first(folder.path(), [] {});
  EXPECT_FALSE(first.AnotherInstanceRuns());
  EXPECT_TRUE(LinuxProcesses(folder.path(), [] {}).AnotherInstanceRuns());
}

TEST(WholeFileTest, ACopyThatCannotBeMadeIsToldOfOnce) {
  const QTemporaryDir folder;
  QDir(folder.path()).mkpath("shared/Trivia Sets");
  for (const char* name : {"shared/a.bmp", "shared/Trivia Sets/b.txt", "user"}) Put(folder.filePath(name), "x");
  const auto failure = UpdateUserCopy(folder.filePath("shared"), folder.filePath("user"));
  ASSERT_TRUE(failure);
  EXPECT_EQ(failure->Error.Number(), kErrorPathNotFound);
  EXPECT_TRUE(failure->File.startsWith(folder.filePath("user/")));
}

TEST(IniTextTest, ReadsTheFormsOfAValueAndItsOwnText) {
  const IniValues values = ParseIni(
      "stray\n; note=1\n[Settings]\r\nPlain= 3 \nQuoted=\" a; \\\"b\\\" \"\nHex=a\\x41\\x201c;\nPath=C:\\\\x\\ty\n"
      "Odd%20key=1\n=none\nTrail=\\\n[Next]\nPlain=4");
  const QMap<QString, QString> expected{
      {"Plain", "3"},       {"Quoted", " a; \"b\" "}, {"Hex", QString::fromUtf16(u"aA\u201c;")},
      {"Path", "C:\\x\ty"}, {"Odd key", "1"},         {"Trail", "\\"}};
  EXPECT_EQ(values["Settings"], expected);
  EXPECT_EQ(values["Next"]["Plain"], "4");
  const IniValues odd{{"A ]",
                       {{"k=[;", QString("\x01"
                                         "2\r\n;\"\\")}}},
                      {"B", {{"", ""}}}};
  EXPECT_EQ(ParseIni(FormatIni(odd))["A ]"], odd["A ]"]);
}

}  // namespace
}  // namespace pawnfield
