// What a program leaves that was killed, parts of files, and settings of an earlier make.
#include "desktop/files/whole_file.h"

#include <sys/wait.h>
#include <unistd.h>

#include "desktop/files/ini_text.h"
#include "places.h"

namespace pawnfield {
namespace {

// The number of a process that has ended.
QString DeadProcess() {
  const pid_t child = fork();
  if (child == 0) _exit(0);
  waitpid(child, nullptr, 0);
  return QString::number(child);
}

using WholeFileTest = FolderTest;

TEST_F(WholeFileTest, APartOfADeadProcessGoesAndALinkAndItsRightsStay) {
  const QString living = ".set.txt." + QString::number(getppid()) + ".part";
  QFile::setPermissions(Make("set.txt", "old"), QFile::ReadOwner | QFile::WriteOwner);
  QFile::link(Native("set.txt"), Native("link.txt"));
  Make(".set.txt." + DeadProcess() + ".part", "half");
  Make(living, "half");
  ReplaceFile(Native("link.txt"), "new");
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList({living, "link.txt", "set.txt"}));
  EXPECT_TRUE(QFileInfo(Native("link.txt")).isSymLink());
  EXPECT_EQ(QtFileSystem().Read(Spelled("\\set.txt")), "new");
  EXPECT_FALSE(QFile::permissions(Native("set.txt")) & QFile::ReadOther);
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
                       {{"k=[;", QString("\1"
                                         "2\r\n;\"\\")}}},
                      {"B", {{"", ""}}}};
  EXPECT_EQ(ParseIni(FormatIni(odd))["A ]"], odd["A ]"]);
}

}  // namespace
}  // namespace pawnfield
