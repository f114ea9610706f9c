// A real helper program beside this one is given its text as one argument, whatever the text holds.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "controllers/companion.h"
#include "platform/desktop/linux_processes.h"

namespace pawnfield {
namespace {

class HelperTest : public testing::TestWithParam<const char*> {
 protected:
  void PutHelper(QFile::Permissions permissions) {
    QFile helper(folder_.path() + "/PadBridge");
    ASSERT_TRUE(helper.open(QIODevice::WriteOnly));
    helper.write("#!/bin/sh\nprintf '%s %s' \"$#\" \"$1\" > \"$0.part\" && mv \"$0.part\" \"$0.told\"\n");
    helper.close();
    ASSERT_TRUE(helper.setPermissions(permissions));
  }
  // How many arguments the helper got, and the first.
  QByteArray Told() const {
    QFile told(folder_.path() + "/PadBridge.told");
    for (int i = 0; i < 250 && !told.exists(); ++i) QTest::qWait(20);
    return told.open(QIODevice::ReadOnly) ? told.readAll() : QByteArray();
  }
  QTemporaryDir folder_;
  LinuxProcesses processes_{folder_.path(), [] {}, {folder_.path() + "/none", folder_.path()}};
};

TEST_P(HelperTest, IsGivenTheReportUnharmed) {
  PutHelper(QFile::ReadOwner | QFile::ExeOwner);
  CompanionReport report{1, GetParam(), "-25", {}, "139"};
  report.Style.FontName = GetParam();
  const std::string text = ReportText(report);
  ASSERT_TRUE(processes_.StartHelper("PadBridge.exe", text));
  EXPECT_EQ(Told(), "1 " + QString::fromLatin1(text.c_str()).toUtf8());
}

INSTANTIATE_TEST_SUITE_P(Names, HelperTest,
                         testing::Values("\"a b\"", "$(touch x)", "`touch x`", "^~^~", "';rm *;'", "\\\" \\ \n",
                                         "-n %s", "\xC9MILIE & Z\xD6"));

TEST_F(HelperTest, IsNoneWhereNoneCanRun) {
  EXPECT_FALSE(processes_.StartHelper("PadBridge.exe", "text"));
  PutHelper(QFile::ReadOwner | QFile::WriteOwner);
  EXPECT_FALSE(processes_.StartHelper("PadBridge.exe", "text"));
}

}  // namespace
}  // namespace pawnfield
