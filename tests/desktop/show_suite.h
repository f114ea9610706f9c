// One program in its real windows for all tests of a suite: its splash takes longer than the games.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "show_driver.h"

namespace pawnfield {

class ShowSuite : public testing::Test {
 protected:
  static constexpr const char* kOneMonitor = "--output DUMMY1 --off";
  static constexpr const char* kTwoMonitors =
      "--output DUMMY0 --pos 0x0 --primary --output DUMMY1 --mode 1920x1080 --pos 1280x0";

  static void SetUpTestSuite() { Begin(kTwoMonitors); }
  static void Begin(const char* monitors, std::function<std::vector<SerialAdapter>()> adapters = FindSerialAdapters) {
    ready_ = Xrandr(monitors);
    // The toolkit hears of it by an event of its own, and the program is to start on what is there.
    const int count = monitors == kOneMonitor ? 1 : 2;
    ready_ = ready_ && QTest::qWaitFor([count] { return QGuiApplication::screens().size() == count; }, 120000);
    folder_ = new QTemporaryDir;
    driver_ = new ShowDriver(folder_->path(), std::move(adapters));
    ready_ = ready_ && driver_->Start();
  }
  static void TearDownTestSuite() {
    delete driver_;
    KeepPictures();
    delete folder_;
    Xrandr(kTwoMonitors);
  }
  void SetUp() override { ASSERT_TRUE(ready_); }

  // With PAWNFIELD_PICTURES set to a folder, the suite's pictures are there to be looked at.
  static void KeepPictures() {
    const QString kept = qEnvironmentVariable("PAWNFIELD_PICTURES");
    if (kept.isEmpty()) return;
    const QString suite = testing::UnitTest::GetInstance()->current_test_suite()->name();
    for (const QString& name : QDir(folder_->path()).entryList({"*.png"}))
      QFile::copy(folder_->filePath(name), kept + '/' + suite + '-' + name);
  }

  static bool Xrandr(const QString& arguments) { return QProcess::execute("xrandr", arguments.split(' ')) == 0; }
  // The limit is for a machine that has much else to do; a show that is well is seen long before it.
  static bool Wait(const std::function<bool()>& condition, int ms = 180000) { return driver_->WaitFor(condition, ms); }
  static bool Press(const QStringList& widgets) {
    return std::all_of(widgets.begin(), widgets.end(), [](const QString& widget) { return driver_->Press(widget); });
  }
  static Show& TheShow() { return driver_->TheShow(); }
  static MainForm& Main() { return TheShow().frmMain; }
  static FSMainForm& Audience() { return TheShow().frmFSMain; }
  static ConsoleWindow& Console() { return driver_->Program().Console(); }
  static AudienceWindow& Screen() { return driver_->Program().Audience(); }

  static inline QTemporaryDir* folder_ = nullptr;
  static inline ShowDriver* driver_ = nullptr;
  static inline bool ready_ = false;
};

}  // namespace pawnfield
