// Whole games in the real windows on two monitors, by keys alone, which come from the display server, and by mouse.

#include <xcb/xcb.h>

#include <QApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <cstdlib>
#include <string_view>

#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/player_names_form.h"
#include "places.h"
#include "show_suite.h"

namespace pawnfield {
namespace {

class ShowTest : public ShowSuite {
 protected:
  void SetUp() override {
    ShowSuite::SetUp();
    Console().activateWindow();
    ASSERT_TRUE(Wait([] { return Console().isActiveWindow(); }));
  }
  static bool Keys(const QString& keys) { return driver_->Type(keys.split(' ')); }
  // Goes there from control to control and presses it.
  void SpaceOn(const QString& widget) {
    const auto there = [&] { return Console().focusWidget() && Console().focusWidget()->objectName() == widget; };
    for (int i = 0; i < 150 && !there(); ++i) Keys("Tab");
    ASSERT_TRUE(there()) << widget.toStdString();
    Keys("space");
  }
  void ChooseFirstSet() {
    ASSERT_NO_FATAL_FAILURE(SpaceOn("cboList"));
    ASSERT_TRUE(Wait([] { return QApplication::activePopupWidget() != nullptr; }));
    Keys("Down Return");
    ASSERT_TRUE(Wait([] { return Main().btnStart.Enabled.Get(); }));
    ASSERT_NO_FATAL_FAILURE(SpaceOn("btnStart"));
    ASSERT_TRUE(Main().picQuestion.Visible && Audience().picQuestion.Visible);
  }
  static int Owner(std::size_t row, std::size_t column) { return TheShow().state.Board[row][column]; }
  struct Move {
    const char* keys;
    std::size_t row, column;
    int player;
  };
  // Judges and claims by keys; the flash ends before the next question may come.
  void Play(std::initializer_list<Move> moves) {
    for (const auto& [keys, row, column, player] : moves) {
      ASSERT_TRUE(Keys(keys)) << keys;
      EXPECT_EQ(Owner(row, column), player) << keys;
      ASSERT_TRUE(Wait([] { return Main().btnContinue.Enabled || Main().picWinner.Visible; })) << keys;
    }
  }
  GameState& state_ = TheShow().state;
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

TEST_F(ShowTest, WindowsStandOnTheirMonitorsAndArePaintedBeforeAPause) {
  const auto screens = QGuiApplication::screens();
  ASSERT_EQ(screens.size(), 2);
  EXPECT_EQ(Screen().geometry(), screens[1]->geometry());
  EXPECT_EQ(Console().windowHandle()->screen(), screens[0]);
  EXPECT_TRUE(screens[0]->geometry().contains(Console().frameGeometry()));
  PaintCount board(Console().Board()), audience(Screen().Screen());
  for (const bool shown : {false, true}) {
    board.Paints = audience.Paints = 0;
    Main().picStandby.Visible = Audience().picStandby.Visible = shown;
    TheShow().platform.clock.Pause(1);
    EXPECT_EQ(std::pair(board.Paints, audience.Paints), std::pair(1, 1));
  }
}

TEST_F(ShowTest, AMessageBoxHasNoMinimiseButtonAndIsBackAtOnceWhenMinimised) {
  constexpr int kLongest = 90000;
  bool isFramed = true;
  bool went = false;
  bool isBack = false;
  driver_->LetBoxesStand(3 * kLongest);
  QTimer::singleShot(1000, [&] {
    QPointer<QWidget> box = QApplication::activeModalWidget();
    ASSERT_TRUE(box && Wait([&] { return box->windowHandle()->isExposed(); }, kLongest));
    isFramed = box->frameGeometry() != box->geometry();
    QObject::connect(box->windowHandle(), &QWindow::windowStateChanged, box,
                     [&went](Qt::WindowState state) { went = went || state == Qt::WindowMinimized; });
    ASSERT_EQ(QProcess::execute("xdotool", {"windowminimize", QString::number(box->winId())}), 0);
    ASSERT_TRUE(Wait([&] { return !box || went; }, kLongest));
    isBack = Wait([&] { return !box || (!box->isMinimized() && box->windowHandle()->isExposed()); }, kLongest) && box;
    driver_->LetBoxesStand(0);
  });
  TheShow().platform.dialogs.Ask({"Are you sure?", BoxKind::YesNoCancel, BoxAnswer::Cancel}, kAppTitle);
  driver_->LetBoxesStand(0);
  // The window manager here puts the button on any frame it draws.
  EXPECT_FALSE(isFramed);
  EXPECT_TRUE(went);
  EXPECT_TRUE(isBack);
}

// The toolkit's own wish to activate a window, as the window manager hands it on.
void WishActive(const QWidget& window) {
  xcb_connection_t* connection = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
  constexpr std::string_view kName = "_NET_ACTIVE_WINDOW";
  xcb_intern_atom_reply_t* atom =
      xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, kName.size(), kName.data()), nullptr);
  ASSERT_NE(atom, nullptr);
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = static_cast<xcb_window_t>(window.winId());
  message.type = atom->atom;
  std::free(atom);
  xcb_send_event(connection, 0, message.window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&message));
  xcb_flush(connection);
}

TEST_F(ShowTest, AWishForAWindowThatHasGoneLeavesTheConsoleActiveWithItsShortcuts) {
  FormWindow* dialog = driver_->Form("frmGameTypeHelp");
  QTimer::singleShot(500, dialog, [dialog] { dialog->close(); });
  Main().btnGameTypeHelp.Click();
  ASSERT_TRUE(Wait([] { return Console().isActiveWindow(); }));
  WishActive(*dialog);
  // What the server sent before this key has come through with it.
  ASSERT_TRUE(driver_->Type({"Pause"}));
  EXPECT_TRUE(Console().isActiveWindow());
}

// Whether the display itself shows the pointer's amber there.
bool IsLit(const QWidget& pointer) {
  const QPoint place = pointer.mapTo(pointer.window(), QPoint());
  const QImage shown =
      pointer.screen()
          ->grabWindow(pointer.window()->winId(), place.x(), place.y(), pointer.width(), pointer.height())
          .toImage();
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      const QColor color = shown.pixelColor(x, y);
      if (color.red() > 180 && color.blue() < 140) return true;
    }
  }
  return false;
}

TEST_F(ShowTest, ThePointersBlinkOnTheDisplayAndStayAsTheyAreUnderAWindowThatGoes) {
  Main().tmrArrowsTimer.Enabled = false;
  const QWidget& pointer = *Console().findChild<QWidget*>("lblListLeftArrow");
  for (const bool lit : {true, false, true, false, true, false}) {
    SCOPED_TRACE(lit);
    Main().lblListLeftArrow.Visible = lit;
    EXPECT_TRUE(Wait([&] { return IsLit(pointer) == lit; }));
    QWidget cover(nullptr, Qt::ToolTip);
    cover.setGeometry(QRect(pointer.mapToGlobal(QPoint(-20, -20)), QSize(100, 60)));
    cover.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&cover, kSlowMachineMs));
    cover.close();
    QTest::qWait(100);
    EXPECT_TRUE(Wait([&] { return IsLit(pointer) == lit; }));
  }
  Main().tmrArrowsTimer.Enabled = true;
}

TEST_F(ShowTest, TriviaModeAFromItsOptionsToTheWinnerByKeys) {
  ASSERT_TRUE(Wait([] { return Main().fraGridControl.Enabled.Get(); }));
  for (const char* option : {"optGameType_2", "optPlayers_0", "optGridControl_0", "optGameEnds_0", "cboAutoContinue"})
    ASSERT_NO_FATAL_FAILURE(SpaceOn(option));
  ASSERT_TRUE(Wait([] { return QApplication::activePopupWidget() != nullptr; }));
  Keys("Down Down Down Return");
  EXPECT_EQ(state_.AutoContinue, kUserAdvances);
  ASSERT_NO_FATAL_FAILURE(ChooseFirstSet());
  ASSERT_NO_FATAL_FAILURE(Play({
      {"y a 1 Return", 0, 0, 1},
      {"c y b 3 BackSpace 2 Return", 1, 1, 2},
      {"c n y a 2 Return", 1, 0, 2},
  }));
  Keys("ctrl+u");
  EXPECT_EQ(Owner(1, 0), 0);
  ASSERT_NO_FATAL_FAILURE(Play({{"a 2 Return", 1, 0, 2}}));
  Keys("c ctrl+s");
  EXPECT_FALSE(Main().picQuestion.Visible);
  ASSERT_NO_FATAL_FAILURE(Play({{"c y b 1 Return", 0, 1, 1}, {"c y c 2 Return", 1, 2, 2}}));
  EXPECT_TRUE(Audience().picWinner.Visible);
  EXPECT_NE(Main().lblWinner.Caption->find("PLAYER 2"), std::string::npos);
  EXPECT_TRUE(Wait([] { return !Main().picWinner.Visible; }));
}

TEST_F(ShowTest, TriviaModeCByAHeldKeyWithTheNamesOpen) {
  ASSERT_NO_FATAL_FAILURE(SpaceOn("optGameType_4"));
  ASSERT_NO_FATAL_FAILURE(ChooseFirstSet());
  ASSERT_EQ(QProcess::execute("xdotool", {"keydown", "2", "sleep", "1.2", "keyup", "2"}), 0);
  EXPECT_TRUE(Wait([this] { return state_.CurrentPlayer == 2; }));
  Keys("3");
  EXPECT_EQ(state_.CurrentPlayer, 2);
  Keys("n");
  bool shown = false;
  QTimer look;
  look.callOnTimeout([&] {
    const QWidget* active = QApplication::activeWindow();
    if (!TheShow().frmPlayerNames.Visible || active == nullptr || active == &Console()) return;
    look.stop();
    shown = true;
    QProcess::startDetached("xdotool", {"key", "1", "y", "Escape"});
  });
  look.start(50);
  Keys("ctrl+z");
  EXPECT_TRUE(shown && Wait([] { return !TheShow().frmPlayerNames.Visible; }));
  EXPECT_EQ(state_.CurrentPlayer, 0) << "what is typed into a box stays there";
  ASSERT_NO_FATAL_FAILURE(
      Play({{"1 y a 1 Return", 0, 0, 1}, {"c 1 y b 2 Return", 1, 1, 1}, {"c 1 y c 3 Return", 2, 2, 1}}));
  EXPECT_TRUE(Audience().picWinner.Visible);
  EXPECT_TRUE(Wait([] { return !Main().picWinner.Visible; }));
}

TEST_F(ShowTest, ChallengeTakesSquaresFromBothScreensAndFromKeysWhereverTheFocusIs) {
  ASSERT_TRUE(Wait([] { return Main().optGameType[0].Enabled.Get(); }));
  ASSERT_TRUE(Press({"optGameType_0", "btnStart"}));
  ASSERT_TRUE(driver_->PressSquare(0, 0));
  EXPECT_TRUE(Wait([] { return Owner(0, 0) != 0; }));
  driver_->Pause(1500);
  ASSERT_TRUE(Wait([this] { return Main().btnUndo.Enabled && state_.PlacementOpen; }));
  ASSERT_TRUE(driver_->PressAudienceSquare(2, 1));
  EXPECT_TRUE(Wait([] { return Owner(2, 1) != 0; }));
  EXPECT_TRUE(Wait([] {
    const std::string seen = Audience().img.At(2, 1)->Picture;
    return seen.find("-100") != std::string::npos && Main().img.At(2, 1)->Picture == seen;
  })) << "turned over on both screens";
  ASSERT_TRUE(Wait([this] { return Main().btnUndo.Enabled && state_.PlacementOpen; }));
  Console().findChild<QWidget*>("btnStopSounds")->setFocus();
  Keys("c 2 Return");
  EXPECT_TRUE(Wait([] { return Owner(1, 2) != 0; }));
  EXPECT_EQ(state_.LastSquareKey, "12");
}

}  // namespace
}  // namespace pawnfield
