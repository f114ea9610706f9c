// Whole games in the real windows on two monitors, pressed with the mouse.

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QWindow>

#include "show_driver.h"

namespace pawnfield {
namespace {

// The program comes up once; its splash takes longer than the games.
class ShowTest : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = new QTemporaryDir;
    driver_ = new ShowDriver(folder_->path());
    started_ = driver_->Start();
  }
  static void TearDownTestSuite() {
    delete driver_;
    delete folder_;
  }
  void SetUp() override { ASSERT_TRUE(started_); }
  static MainForm& Main() { return driver_->TheShow().frmMain; }
  static FSMainForm& Audience() { return driver_->TheShow().frmFSMain; }
  static bool Wait(const std::function<bool()>& condition) { return driver_->WaitFor(condition); }
  static bool Claimed(int row, int column) {
    return driver_->TheShow().state.Board[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] != 0;
  }

  static inline QTemporaryDir* folder_ = nullptr;
  static inline ShowDriver* driver_ = nullptr;
  static inline bool started_ = false;
};

TEST_F(ShowTest, WindowsStandOnTheirMonitors) {
  const auto screens = QGuiApplication::screens();
  ASSERT_EQ(screens.size(), 2);
  EXPECT_EQ(driver_->Program().Audience().geometry(), screens[1]->geometry());
  EXPECT_EQ(driver_->Program().Console().windowHandle()->screen(), screens[0]);
  EXPECT_TRUE(screens[0]->geometry().contains(driver_->Program().Console().frameGeometry()));
  EXPECT_FALSE(driver_->Program().Audience().isActiveWindow());
}

TEST_F(ShowTest, TriviaModeAGoesFromSetToWinner) {
  ASSERT_TRUE(driver_->Press("optGameType_2"));
  ASSERT_TRUE(driver_->Choose("cboList", "General Knowledge 1"));
  ASSERT_TRUE(Wait([] { return Main().btnStart.Enabled.Get(); }));
  ASSERT_TRUE(driver_->Press("btnStart"));
  EXPECT_TRUE(Main().picQuestion.Visible);
  EXPECT_TRUE(Audience().picQuestion.Visible);
  EXPECT_EQ(Main().lblAnswer.Caption.Get(), "Canberra");
  ASSERT_TRUE(driver_->Press("btnQuestionCorrect"));
  ASSERT_TRUE(Wait([] { return !Main().picCorrect.Visible && !Main().picQuestion.Visible; }));
  ASSERT_TRUE(driver_->PressSquare(1, 1));
  EXPECT_TRUE(Claimed(1, 1));
  EXPECT_EQ(Main().lblP1Score.Caption.Get(), "50");
  EXPECT_EQ(Audience().Label11[0].Caption.Get(), "50");
  EXPECT_TRUE(Wait([] { return Audience().img.At(1, 1)->Picture->find("X-100") != std::string::npos; }));
  if (Wait([] { return Main().btnContinue.Enabled || Main().picQuestion.Visible; }) && Main().btnContinue.Enabled) {
    driver_->Press("btnContinue");
  }
  ASSERT_TRUE(Wait([] { return Main().picQuestion.Visible.Get(); }));
  ASSERT_TRUE(driver_->Press("btnQuestionIncorrect"));
  EXPECT_TRUE(Wait([] { return Main().btnEndGame.Enabled.Get(); }));
  ASSERT_TRUE(driver_->Press("btnEndGame"));
  EXPECT_TRUE(Wait([] { return Main().picWinner.Visible && Audience().picWinner.Visible; }));
  EXPECT_NE(Audience().lblWinner.Caption->find("PLAYER 1"), std::string::npos);
  EXPECT_TRUE(driver_->WaitFor([] { return !Main().picWinner.Visible; }, 12000));
}

TEST_F(ShowTest, ChallengeTakesSquaresFromBothScreens) {
  ASSERT_TRUE(Wait([] { return Main().optGameType[0].Enabled.Get(); }));
  ASSERT_TRUE(driver_->Press("optGameType_0"));
  ASSERT_TRUE(driver_->Press("btnStart"));
  ASSERT_TRUE(driver_->PressSquare(0, 0));
  EXPECT_TRUE(Wait([] { return Claimed(0, 0); }));
  driver_->Pause(1500);
  ASSERT_TRUE(driver_->PressAudienceSquare(4, 1));
  EXPECT_TRUE(Wait([] { return Claimed(4, 1); }));
  // The board's own squares hold what the model says on both screens.
  EXPECT_TRUE(Wait([] { return Main().img.At(4, 1)->Picture == Audience().img.At(4, 1)->Picture.Get(); }));
}

TEST_F(ShowTest, TypedKeysClaimASquareWhereverTheFocusIs) {
  QWidget& console = driver_->Program().Console();
  ASSERT_TRUE(Wait([] { return Main().btnUndo.Enabled && driver_->TheShow().state.PlacementOpen; }));
  console.activateWindow();
  ASSERT_TRUE(Wait([&] { return console.isActiveWindow(); }));
  console.findChild<QWidget*>("btnStopSounds")->setFocus();
  for (const QString key : {"c", "5", "\r"}) {
    QWidget* focus = console.focusWidget() != nullptr ? console.focusWidget() : &console;
    QKeyEvent press(QEvent::KeyPress, key == "\r" ? Qt::Key_Return : Qt::Key_A, Qt::NoModifier, key);
    QCoreApplication::sendEvent(focus, &press);
  }
  EXPECT_TRUE(Wait([] { return Claimed(4, 2); }));
  EXPECT_EQ(driver_->TheShow().state.LastSquareKey, "42");
}

TEST_F(ShowTest, UnpluggedProjectorLeavesTheConsoleAlone) {
  const auto xrandr = [](const QStringList& arguments) { return QProcess::execute("xrandr", arguments) == 0; };
  QWidget& audience = driver_->Program().Audience();
  const QRect console = driver_->Program().Console().geometry();
  ASSERT_TRUE(xrandr({"--output", "DUMMY1", "--off"}));
  EXPECT_TRUE(Wait([&] { return !audience.isVisible(); }));
  EXPECT_TRUE(driver_->Program().Console().isVisible());
  EXPECT_EQ(driver_->Program().Console().geometry(), console);
  ASSERT_TRUE(xrandr({"--output", "DUMMY1", "--mode", "1920x1080", "--pos", "1280x0"}));
  EXPECT_TRUE(Wait([&] { return audience.isVisible() && audience.geometry() == QRect(1280, 0, 1920, 1080); }));
}

}  // namespace
}  // namespace pawnfield
