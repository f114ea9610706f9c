// What a program leaves that was killed, parts of files, and settings of an earlier make.
#include "desktop/files/whole_file.h"

#include <sys/stat.h>
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

TEST_F(WholeFileTest, OwnerGroupAndRightsStayAsTheyWere) {
  const QByteArray name = QFile::encodeName(Make("set.txt", "old"));
  constexpr uid_t kOther = 65534;
  const uid_t owner = geteuid() == 0 ? kOther : geteuid();
  for (const mode_t rights : {0640U, 0600U, 0664U, 02660U}) {
    ASSERT_EQ(chown(name, owner, owner == kOther ? kOther : getegid()), 0);
    ASSERT_EQ(chmod(name, rights), 0);
    ReplaceFile(Native("set.txt"), "new");
    struct stat now {};
    ASSERT_EQ(stat(name, &now), 0);
    EXPECT_EQ(now.st_mode & 07777, rights) << std::oct << rights;
    EXPECT_EQ(now.st_uid, owner);
    EXPECT_EQ(now.st_gid, owner == kOther ? kOther : getegid());
    Make("set.bak", "open to all");
    QtFileSystem().WriteLike(Spelled("\\set.bak"), "kept", Spelled("\\set.txt"));
    struct stat kept {};
    ASSERT_EQ(stat(QFile::encodeName(Native("set.bak")), &kept), 0);
    EXPECT_EQ(kept.st_mode & 07777, rights) << "what is kept beside it is as private";
    EXPECT_EQ(kept.st_uid, owner);
  }
}

TEST_F(WholeFileTest, LinksKeepTheirKind) {
  Make("set.txt", "old");
  ASSERT_EQ(link(QFile::encodeName(Native("set.txt")), QFile::encodeName(Native("second.txt"))), 0);
  QFile::link(Native("second.txt"), Native("link.txt"));
  QFile::link("link.txt", Native("chain.txt"));
  QFile::link(Native("made.txt"), Native("dangling.txt"));
  QFile::link(Native("round.txt"), Native("round.txt"));
  ReplaceFile(Native("chain.txt"), "new");
  ReplaceFile(Native("dangling.txt"), "made");
  EXPECT_THROW(ReplaceFile(Native("round.txt"), "new"), RuntimeError);
  for (const auto& [file, bytes] : {std::pair{"second.txt", "new"}, {"set.txt", "old"}, {"made.txt", "made"}}) {
    EXPECT_EQ(ReadFile(Native(file)), bytes) << file;
  }
  for (const char* file : {"link.txt", "chain.txt", "dangling.txt"}) {
    EXPECT_TRUE(QFileInfo(Native(file)).isSymLink()) << file;
  }
}

TEST_F(WholeFileTest, ANameOfAnyLengthThatTheDiskTakesIsWrittenAndClearedOfADeadPart) {
  // 255 bytes, and letters of one, two, three and four bytes.
  for (const QString& name : {QString(255, 'n'), QString(127, QChar(0x436)), QString(85, QChar(0x65E5)),
                              QString::fromUtf16(u"\U0001F600").repeated(63)}) {
    Make(name, "old");
    ReplaceFile(Native(name), "new");
    EXPECT_EQ(ReadFile(Native(name)), "new") << name.size();
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList{name});
    QFile::remove(Native(name));
  }
  EXPECT_THROW(ReplaceFile(Native(QString(256, 'n')), "new"), RuntimeError);
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
