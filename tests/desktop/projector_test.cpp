// A projector that comes, goes and changes in the middle of a game, on real outputs. What a monitor shows is read from
// the screen itself, not from the windows.

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QWindow>

#include "show_driver.h"

namespace pawnfield {
namespace {

bool Xrandr(const QString& arguments) { return QProcess::execute("xrandr", arguments.split(' ')) == 0; }

constexpr const char* kUsual = "--output DUMMY0 --pos 0x0 --primary --output DUMMY1 --mode 1920x1080 --pos 1280x0";

// The program starts with one monitor, and a question is up.
class ProjectorTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    Xrandr("--output DUMMY1 --off");
    folder_ = new QTemporaryDir;
    driver_ = new ShowDriver(folder_->path());
    ready_ = driver_->Start() && driver_->Press("optGameType_3") &&
             driver_->Choose("cboAutoContinue", "User Advances") && driver_->Choose("cboList", "General Knowledge 2") &&
             driver_->WaitFor([] { return Main().btnStart.Enabled.Get(); }) && driver_->Press("btnStart");
  }
  static void TearDownTestSuite() {
    delete driver_;
    delete folder_;
    Xrandr(kUsual);
  }
  void SetUp() override { ASSERT_TRUE(ready_); }

  static MainForm& Main() { return driver_->TheShow().frmMain; }
  static AudienceWindow& Audience() { return driver_->Program().Audience(); }
  static QWidget& Console() { return driver_->Program().Console(); }
  static QScreen* Output(const QString& name) {
    for (QScreen* screen : QGuiApplication::screens()) {
      if (screen->name() == name) return screen;
    }
    return nullptr;
  }
  // The place on the desktop shows the audience's picture, pixel by pixel.
  static bool AudienceSeenAt(const QRect& place) {
    QScreen* output = Output("DUMMY1");
    if (output == nullptr || !Audience().isVisible() || Audience().geometry() != place) return false;
    if (output->geometry().topLeft() != place.topLeft()) return false;
    const QImage seen = output->grabWindow(0, 0, 0, place.width(), place.height()).toImage();
    return seen.convertToFormat(QImage::Format_RGB32) ==
           Audience().Screen().grab().toImage().convertToFormat(QImage::Format_RGB32);
  }
  // The console stands on its own output, and the audience's picture is nowhere on that.
  static bool ConsoleUncovered() {
    const QScreen* output = Output("DUMMY0");
    if (output == nullptr || !output->geometry().contains(Console().geometry())) return false;
    return !Audience().isVisible() || !Audience().geometry().intersects(output->geometry());
  }
  static bool SeenWithinASecond(const QRect& place) {
    return WithinASecond([&] { return AudienceSeenAt(place); });
  }
  static bool WithinASecond(const std::function<bool()>& condition) { return driver_->WaitFor(condition, 1000); }

  static inline QTemporaryDir* folder_ = nullptr;
  static inline ShowDriver* driver_ = nullptr;
  static inline bool ready_ = false;
};

TEST_F(ProjectorTest, ComesUpInStepWhenPluggedInDuringAGame) {
  EXPECT_FALSE(driver_->TheShow().state.DualScreen);
  EXPECT_FALSE(Audience().isVisible());
  ASSERT_TRUE(Xrandr("--output DUMMY1 --mode 1920x1080 --pos 1280x0"));
  EXPECT_TRUE(SeenWithinASecond({1280, 0, 1920, 1080}));
  EXPECT_TRUE(ConsoleUncovered());
  EXPECT_TRUE(driver_->TheShow().frmFSMain.picQuestion.Visible);
  EXPECT_EQ(driver_->TheShow().frmFSMain.lblQuestion[0].Caption.Get(), Main().lblQuestion[0].Caption.Get());
  EXPECT_EQ(Audience().windowTitle(), "Second Screen - Ostara Wheelhouse");
}

struct Arrangement {
  const char* arguments;
  QRect audience;
};

TEST_F(ProjectorTest, GoesAndComesBackWhereverItStands) {
  const Arrangement arrangements[] = {
      {"--output DUMMY1 --mode 1920x1080 --pos 1280x0", {1280, 0, 1920, 1080}},
      {"--output DUMMY1 --mode 1024x768 --pos 1280x0", {1280, 0, 1024, 768}},
      {"--output DUMMY0 --pos 1920x0 --output DUMMY1 --mode 1920x1080 --pos 0x0", {0, 0, 1920, 1080}},
      {"--output DUMMY0 --pos 0x1080 --output DUMMY1 --mode 1920x1080 --pos 0x0", {0, 0, 1920, 1080}},
      {"--output DUMMY0 --pos 0x0 --output DUMMY1 --mode 3840x2160 --pos 1280x0", {1280, 0, 3840, 2160}},
  };
  for (const Arrangement& arrangement : arrangements) {
    SCOPED_TRACE(arrangement.arguments);
    ASSERT_TRUE(Xrandr("--output DUMMY1 --off"));
    EXPECT_TRUE(WithinASecond([] { return Main().lblStatusBar.Caption == std::string("Audience screen lost"); }));
    EXPECT_TRUE(ConsoleUncovered());
    EXPECT_FALSE(Audience().isVisible());
    EXPECT_TRUE(WithinASecond([] { return Console().isActiveWindow(); }));
    // The game goes on meanwhile.
    EXPECT_TRUE(driver_->Press("btnScore1Up_5"));
    EXPECT_TRUE(driver_->Press("btnSkipQuestion"));
    EXPECT_TRUE(driver_->Press("btnContinue"));
    ASSERT_TRUE(driver_->WaitFor([] { return Main().picQuestion.Visible.Get(); }));
    ASSERT_TRUE(Xrandr(arrangement.arguments));
    EXPECT_TRUE(SeenWithinASecond(arrangement.audience));
    EXPECT_TRUE(WithinASecond(ConsoleUncovered));
    EXPECT_FALSE(Audience().isActiveWindow());
    EXPECT_EQ(driver_->TheShow().frmFSMain.Label11[0].Caption.Get(), Main().lblP1Score.Caption.Get());
    EXPECT_EQ(Main().lblStatusBar.Caption->find("lost"), std::string::npos);
  }
}

TEST_F(ProjectorTest, FollowsAChangeOfModeAndOfThePrimaryMonitor) {
  const Arrangement changes[] = {
      {kUsual, {1280, 0, 1920, 1080}},
      {"--output DUMMY1 --mode 1280x720", {1280, 0, 1280, 720}},
      {"--output DUMMY1 --mode 1920x1080", {1280, 0, 1920, 1080}},
      {"--output DUMMY1 --primary", {1280, 0, 1920, 1080}},
      {"--output DUMMY0 --primary", {1280, 0, 1920, 1080}},
      {"--output DUMMY0 --pos 1920x0 --output DUMMY1 --pos 0x0", {0, 0, 1920, 1080}},
      {"--output DUMMY0 --pos 0x0 --output DUMMY1 --pos 1280x0", {1280, 0, 1920, 1080}},
  };
  for (const Arrangement& change : changes) {
    SCOPED_TRACE(change.arguments);
    ASSERT_TRUE(Xrandr(change.arguments));
    EXPECT_TRUE(SeenWithinASecond(change.audience));
    EXPECT_TRUE(WithinASecond(ConsoleUncovered));
    EXPECT_TRUE(WithinASecond([] { return Console().isActiveWindow(); }));
    driver_->Pause(700);
  }
  for (const bool onTop : {false, true}) {
    driver_->TheShow().platform.displays.SetTopMost(driver_->TheShow().frmSS, onTop);
    driver_->Pause(100);
    EXPECT_TRUE(AudienceSeenAt({1280, 0, 1920, 1080})) << "on top: " << onTop;
  }
}

}  // namespace
}  // namespace pawnfield
