// A real helper program beside this one is given its text as one argument, whatever the text holds.
#include <QTest>

#include "outward/companion.h"
#include "places.h"

namespace pawnfield {
namespace {

class HelperTest : public FolderTest {
 protected:
  void PutHelper(QFile::Permissions permissions) {
    const char* script = "#!/bin/sh\nprintf '%s %s' \"$#\" \"$1\" > \"$0.part\" && mv \"$0.part\" \"$0.told\"\n";
    ASSERT_TRUE(QFile::setPermissions(Make("PadBridge", script), permissions));
  }
  // How many arguments the helper got, and the first.
  QByteArray Told() const {
    QFile told(Native("PadBridge.told"));
    const bool done = QTest::qWaitFor([&] { return told.exists(); }, kSlowMachineMs);
    return done && told.open(QIODevice::ReadOnly) ? told.readAll() : QByteArray();
  }
  DesktopProcesses processes_{folder_.path(), [] {}, {Native("none"), folder_.path()}};
};

TEST_F(HelperTest, IsGivenTheReportUnharmed) {
  PutHelper(QFile::ReadOwner | QFile::ExeOwner);
  for (const char* name :
       {"\"a b\"", "$(touch x)", "`touch x`", "^~^~", "';rm *;'", "\\\" \\ \n", "-n %s", "\xC9MILIE & Z\xD6"}) {
    CompanionReport report{1, name, "-25", {}, "139"};
    report.Style.FontName = name;
    const std::string text = ReportText(report);
    ASSERT_TRUE(processes_.StartHelper("PadBridge.exe", text));
    EXPECT_EQ(Told(), "1 " + QString::fromLatin1(text.c_str()).toUtf8());
    QFile::remove(Native("PadBridge.told"));
  }
}

TEST_F(HelperTest, IsNoneWhereNoneCanRun) {
  EXPECT_FALSE(processes_.StartHelper("PadBridge.exe", "text"));
  PutHelper(QFile::ReadOwner | QFile::WriteOwner);
  EXPECT_FALSE(processes_.StartHelper("PadBridge.exe", "text"));
}

}  // namespace
}  // namespace pawnfield
