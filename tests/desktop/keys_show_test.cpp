// Whole games in the real windows by keys alone: a keyboard's events come from the display server, nothing is clicked.

#include <gtest/gtest.h>

#include <QEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include "show_driver.h"

namespace pawnfield {
namespace {

class KeysShowTest : public testing::Test {
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
  void SetUp() override {
    ASSERT_TRUE(started_);
    console_.activateWindow();
    ASSERT_TRUE(Wait([this] { return console_.isActiveWindow(); }));
  }
  static bool Wait(const std::function<bool()>& condition) { return driver_->WaitFor(condition); }
  static bool Keys(const QString& keys) { return driver_->Type(keys.split(' ')); }
  // Goes there from control to control and presses it.
  void SpaceOn(const QString& widget) {
    for (int i = 0; i < 150 && (focus() == nullptr || focus()->objectName() != widget); ++i) Keys("Tab");
    ASSERT_TRUE(focus() != nullptr && focus()->objectName() == widget) << widget.toStdString();
    Keys("space");
  }
  void ChooseFirstSet() {
    ASSERT_NO_FATAL_FAILURE(SpaceOn("cboList"));
    driver_->Pause(300);
    Keys("Down Return");
    ASSERT_TRUE(Wait([this] { return form_.btnStart.Enabled.Get(); }));
    ASSERT_NO_FATAL_FAILURE(SpaceOn("btnStart"));
    ASSERT_TRUE(form_.picQuestion.Visible);
  }
  // Judges and claims by keys; the flash ends before the next question may come.
  void Claim(const QString& keys, int row, int column, int player) {
    ASSERT_TRUE(Keys(keys + " Return"));
    EXPECT_EQ(state_.Board[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)], player);
    ASSERT_TRUE(Wait([this] { return form_.btnContinue.Enabled || form_.picWinner.Visible; })) << keys.toStdString();
  }
  QWidget* focus() const { return console_.focusWidget(); }

  static inline QTemporaryDir* folder_ = nullptr;
  static inline ShowDriver* driver_ = nullptr;
  static inline bool started_ = false;
  QWidget& console_ = driver_->Program().Console();
  Show& show_ = driver_->TheShow();
  MainForm& form_ = show_.frmMain;
  GameState& state_ = show_.state;
};

// Counts what is painted of a widget.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++Paints;
    return false;
  }
  int Paints = 0;
};

TEST_F(KeysShowTest, BothScreensArePaintedBeforeAPause) {
  PaintCount board(driver_->Program().Console().Board()), audience(driver_->Program().Audience().Screen());
  for (const bool shown : {false, true}) {
    board.Paints = audience.Paints = 0;
    form_.picStandby.Visible = show_.frmFSMain.picStandby.Visible = shown;
    show_.platform.clock.Pause(1);
    EXPECT_EQ(board.Paints, 1);
    EXPECT_EQ(audience.Paints, 1);
  }
}

TEST_F(KeysShowTest, TriviaModeAFromItsOptionsToTheWinner) {
  ASSERT_TRUE(Wait([this] { return form_.fraGridControl.Enabled.Get(); }));
  for (const char* option : {"optGameType_2", "optPlayers_0", "optGridControl_0", "optGameEnds_0"})
    ASSERT_NO_FATAL_FAILURE(SpaceOn(option));
  ASSERT_NO_FATAL_FAILURE(SpaceOn("cboAutoContinue"));
  driver_->Pause(300);
  Keys("Down Down Down Return");
  EXPECT_EQ(state_.AutoContinue, kUserAdvances);
  ASSERT_NO_FATAL_FAILURE(ChooseFirstSet());
  ASSERT_NO_FATAL_FAILURE(Claim("y a 1", 0, 0, 1));
  ASSERT_NO_FATAL_FAILURE(Claim("c y b 3 BackSpace 2", 1, 1, 2));
  ASSERT_NO_FATAL_FAILURE(Claim("c n y a 2", 1, 0, 2));
  Keys("ctrl+u");
  EXPECT_EQ(state_.Board[1][0], 0);
  ASSERT_NO_FATAL_FAILURE(Claim("a 2", 1, 0, 2));
  Keys("c ctrl+s");
  EXPECT_FALSE(form_.picQuestion.Visible);
  ASSERT_NO_FATAL_FAILURE(Claim("c y b 1", 0, 1, 1));
  ASSERT_NO_FATAL_FAILURE(Claim("c y c 2", 1, 2, 2));
  EXPECT_TRUE(show_.frmFSMain.picWinner.Visible);
  EXPECT_NE(form_.lblWinner.Caption->find("PLAYER 2"), std::string::npos);
  EXPECT_TRUE(driver_->WaitFor([this] { return !form_.picWinner.Visible; }, 12000));
}

TEST_F(KeysShowTest, TriviaModeCWithAHeldKeyAndTheNames) {
  ASSERT_NO_FATAL_FAILURE(SpaceOn("optGameType_4"));
  ASSERT_NO_FATAL_FAILURE(ChooseFirstSet());
  ASSERT_EQ(QProcess::execute("xdotool", {"keydown", "2", "sleep", "1.2", "keyup", "2"}), 0);
  EXPECT_TRUE(Wait([this] { return state_.CurrentPlayer == 2; }));
  Keys("3");
  EXPECT_EQ(state_.CurrentPlayer, 2);
  Keys("n");
  bool shown = false;
  QTimer::singleShot(600, &console_, [&] {
    shown = show_.frmPlayerNames.Visible;
    QProcess::startDetached("xdotool", {"key", "1", "y", "Escape"});
  });
  Keys("ctrl+z");
  EXPECT_TRUE(shown && Wait([this] { return !show_.frmPlayerNames.Visible; }));
  EXPECT_EQ(state_.CurrentPlayer, 0) << "what is typed into a box stays there";
  ASSERT_NO_FATAL_FAILURE(Claim("1 y a 1", 0, 0, 1));
  ASSERT_NO_FATAL_FAILURE(Claim("c 1 y b 2", 1, 1, 1));
  ASSERT_NO_FATAL_FAILURE(Claim("c 1 y c 3", 2, 2, 1));
  EXPECT_TRUE(show_.frmFSMain.picWinner.Visible);
}

}  // namespace
}  // namespace pawnfield
