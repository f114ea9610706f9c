// A projector that comes, goes and changes in the middle of a game, on real outputs. What a monitor shows is read from
// the screen itself, not from the windows.

#include <QGuiApplication>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QTimer>

#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/second_screen_form.h"
#include "show/phase.h"
#include "show_suite.h"

namespace pawnfield {
namespace {

// The program starts with one monitor, and a question is up.
class ProjectorTest : public ShowSuite {
 protected:
  static void SetUpTestSuite() {
    Begin(kOneMonitor);
    ready_ = ready_ && Press({"optGameType_4"}) && driver_->Choose("cboAutoContinue", "User Advances") &&
             driver_->Choose("cboList", "General Knowledge 2") && Wait([] { return Main().btnStart.Enabled.Get(); }) &&
             Press({"btnStart"});
    // What may take the focus from it is told by what follows, and not by a window manager that is late.
    Console().activateWindow();
    ready_ = ready_ && Wait([] { return Console().isActiveWindow(); });
  }

  // An output that is off has no mode.
  static constexpr const char* kPluggedIn =
      "--output DUMMY0 --mode 1280x800 --pos 0x0 --primary --output DUMMY1 --mode 1920x1080 --pos 1280x0";

  // Where the display server has the output, empty for one that is off.
  static QRect Output(const QString& name) {
    QProcess xrandr;
    xrandr.start("xrandr", {"--current"});
    xrandr.waitForFinished();
    const QRegularExpression place(name + " (?:dis)?connected (?:primary )?(\\d+)x(\\d+)\\+(\\d+)\\+(\\d+)");
    const auto found = place.match(QString::fromUtf8(xrandr.readAllStandardOutput()));
    if (!found.hasMatch()) return {};
    const auto number = [&found](int group) { return found.captured(group).toInt(); };
    return {number(3), number(4), number(1), number(2)};
  }
  // The place on the desktop shows the audience's picture, pixel by pixel.
  static bool AudienceSeenAt(const QRect& place) {
    if (!Screen().isVisible() || Screen().geometry() != place || Output("DUMMY1") != place) return false;
    for (QScreen* screen : QGuiApplication::screens()) {
      if (screen->name() != "DUMMY1") continue;
      const QImage seen = screen->grabWindow(0, 0, 0, place.width(), place.height()).toImage();
      return seen.convertToFormat(QImage::Format_RGB32) ==
             Screen().Screen().grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    return false;
  }
  // The console stands on its own output, and the audience's picture is nowhere on that.
  static bool ConsoleUncovered() {
    const QRect output = Output("DUMMY0");
    if (!output.contains(Console().geometry())) return false;
    return !Screen().isVisible() || !Screen().geometry().intersects(output);
  }
  static void UnplugAndPlayOn() {
    ASSERT_TRUE(Xrandr(kOneMonitor));
    EXPECT_TRUE(Wait([] { return Main().lblStatusBar.Caption == std::string("Audience screen lost"); }));
    EXPECT_TRUE(ConsoleUncovered());
    EXPECT_FALSE(Screen().isVisible());
    EXPECT_TRUE(Wait([] { return Console().isActiveWindow(); }));
    EXPECT_TRUE(Press({"btnScore1Up_5", "btnSkipQuestion", "btnContinue"}));
    ASSERT_TRUE(Wait([] { return Main().picQuestion.Visible.Get(); }));
    ExpectKeys();
  }
  // By the display server's keyboard.
  static void ExpectKeys() {
    ASSERT_TRUE(Wait([] { return Console().isActiveWindow(); }));
    EXPECT_TRUE(driver_->Type({"2"}));
    EXPECT_TRUE(Wait([] { return Phase(TheShow()) == GamePhase{PhaseKind::Answering, 2}; }));
    EXPECT_TRUE(driver_->Type({"ctrl+u"}));
    EXPECT_TRUE(Wait([] { return IsPhase(TheShow(), PhaseKind::QuestionOpen); }));
  }
  // The keyboard is given to the room's window, which wants none, and the keys are on their way before it is told.
  static bool TypeAtTheRoom(const QStringList& keys) {
    QStringList arguments{"windowfocus", QString::number(Screen().winId())};
    for (const QString& key : keys) arguments << "key" << key;
    return QProcess::execute("xdotool", arguments) == 0;
  }
  static QString Workspace() {
    QProcess xdotool;
    xdotool.start("xdotool", {"get_desktop"});
    xdotool.waitForFinished();
    return QString::fromUtf8(xdotool.readAllStandardOutput());
  }
  // What the window manager is told of the window.
  static QString Told(QWidget& window, const char* property) {
    QProcess xprop;
    xprop.start("xprop", {"-id", QString::number(window.winId()), property});
    xprop.waitForFinished();
    return QString::fromUtf8(xprop.readAllStandardOutput());
  }
  // A dialog opens where the operator looks, and not before the room.
  static bool DialogStandsOver(const QRect& output) {
    bool over = false;
    QTimer::singleShot(200, &Console(), [&] {
      FormWindow* window = driver_->Form("frmGameTypeHelp");
      over = window->isVisible() && output.contains(window->geometry());
      window->close();
    });
    Main().btnGameTypeHelp.Click();
    return over;
  }
  static std::vector<std::string> Shown(const Label& question, const Label& score) {
    return {question.Caption, score.Caption};
  }
};

TEST_F(ProjectorTest, ComesUpInStepAndFollowsWhereverItStands) {
  enum Before { kAsItIs, kUnplugged };
  const struct {
    Before before;
    const char* arguments;
    QRect audience;
  } arrangements[] = {
      {kAsItIs, "--output DUMMY1 --mode 1920x1080 --pos 1280x0", {1280, 0, 1920, 1080}},
      {kUnplugged, "--output DUMMY1 --mode 1920x1080 --pos 1280x0", {1280, 0, 1920, 1080}},
      {kUnplugged, "--output DUMMY1 --mode 1024x768 --pos 1280x0", {1280, 0, 1024, 768}},
      {kUnplugged, "--output DUMMY0 --pos 1920x0 --output DUMMY1 --mode 1920x1080 --pos 0x0", {0, 0, 1920, 1080}},
      {kUnplugged, "--output DUMMY0 --pos 0x1080 --output DUMMY1 --mode 1920x1080 --pos 0x0", {0, 0, 1920, 1080}},
      {kUnplugged, "--output DUMMY0 --pos 0x0 --output DUMMY1 --mode 3840x2160 --pos 1280x0", {1280, 0, 3840, 2160}},
      {kAsItIs, kTwoMonitors, {1280, 0, 1920, 1080}},
      {kAsItIs, "--output DUMMY1 --mode 1280x720", {1280, 0, 1280, 720}},
      {kAsItIs, "--output DUMMY1 --mode 1920x1080", {1280, 0, 1920, 1080}},
      {kAsItIs, "--output DUMMY1 --primary", {1280, 0, 1920, 1080}},
      {kAsItIs, "--output DUMMY0 --primary", {1280, 0, 1920, 1080}},
      {kAsItIs, "--output DUMMY0 --pos 1920x0 --output DUMMY1 --pos 0x0", {0, 0, 1920, 1080}},
      {kAsItIs, "--output DUMMY0 --pos 0x0 --output DUMMY1 --pos 1280x0", {1280, 0, 1920, 1080}},
  };
  EXPECT_FALSE(TheShow().state.DualScreen || Screen().isVisible());
  for (const auto& [before, arguments, place] : arrangements) {
    SCOPED_TRACE(arguments);
    if (before == kUnplugged) UnplugAndPlayOn();
    ASSERT_TRUE(Xrandr(arguments));
    EXPECT_TRUE(Wait([&, place = place] { return AudienceSeenAt(place); }));
    EXPECT_TRUE(Wait(ConsoleUncovered));
    EXPECT_TRUE(Wait([] { return Console().isActiveWindow(); }));
    EXPECT_TRUE(DialogStandsOver(Output("DUMMY0")));
    EXPECT_TRUE(Audience().picQuestion.Visible);
    EXPECT_EQ(Shown(Audience().lblQuestion[0], Audience().Label11[0]), Shown(Main().lblQuestion[0], Main().lblP1Score));
    EXPECT_EQ(Main().lblStatusBar.Caption->find("lost"), std::string::npos);
    ExpectKeys();
    driver_->Pause(700);
  }
  EXPECT_EQ(Screen().windowTitle(), "Second Screen - Ostara Wheelhouse");
  for (const bool onTop : {false, true}) {
    TheShow().platform.displays.SetTopMost(TheShow().frmSS, onTop);
    driver_->Pause(100);
    EXPECT_TRUE(Wait([] { return AudienceSeenAt({1280, 0, 1920, 1080}); })) << "on top: " << onTop;
  }
}

TEST_F(ProjectorTest, TheRoomsWindowIsOnEveryWorkspaceAndInNoListOfTasks) {
  ASSERT_TRUE(Xrandr(kTwoMonitors));
  ASSERT_TRUE(Wait([] { return AudienceSeenAt({1280, 0, 1920, 1080}); }));
  EXPECT_TRUE(Wait([] { return Told(Screen(), "_NET_WM_DESKTOP").contains("4294967295"); }));
  for (const char* state : {"SKIP_TASKBAR", "SKIP_PAGER", "FULLSCREEN"}) {
    EXPECT_TRUE(Told(Screen(), "_NET_WM_STATE").contains(state)) << state;
  }
  EXPECT_FALSE(Told(Console(), "_NET_WM_STATE").contains("SKIP_TASKBAR"));
  for (QWidget* window : {static_cast<QWidget*>(&Console()), static_cast<QWidget*>(&Screen())}) {
    EXPECT_TRUE(Told(*window, "WM_CLASS").contains("\"org.pawnfield.Pawnfield\"")) << "the desktop file's name";
    EXPECT_TRUE(Told(*window, "_NET_WM_ICON").contains("Icon (")) << Told(*window, "_NET_WM_ICON").toStdString();
  }
  for (const char* workspace : {"1", "0"}) {
    ASSERT_EQ(QProcess::execute("xdotool", {"set_desktop", workspace}), 0);
    EXPECT_TRUE(Wait([&] { return Workspace().contains(workspace); }));
    EXPECT_TRUE(Wait([] { return AudienceSeenAt({1280, 0, 1920, 1080}); })) << "on workspace " << workspace;
  }
}

TEST_F(ProjectorTest, KeysThatReachTheRoomsWindowAreTheConsolesOrItsDialogs) {
  ASSERT_TRUE(Xrandr(kTwoMonitors));
  ASSERT_TRUE(Wait([] { return AudienceSeenAt({1280, 0, 1920, 1080}); }));
  ASSERT_TRUE(TypeAtTheRoom({"2"}));
  EXPECT_TRUE(Wait([] { return Phase(TheShow()) == GamePhase{PhaseKind::Answering, 2}; }));
  ASSERT_TRUE(TypeAtTheRoom({"ctrl+u"}));
  EXPECT_TRUE(Wait([] { return IsPhase(TheShow(), PhaseKind::QuestionOpen); }));
  EXPECT_TRUE(Wait([] { return Console().isActiveWindow(); })) << "the keyboard is back";

  FormWindow& names = *driver_->Form("frmPlayerNames");
  auto* box = names.findChild<QLineEdit*>("txtPlayerName_1");
  for (const QString typed : {"zoe", "amy"}) {
    // The dialog has a message loop of its own.
    QTimer::singleShot(0, &names, [&] {
      EXPECT_TRUE(Wait([&] { return names.isActiveWindow(); }));
      box->setFocus();
      box->selectAll();
      EXPECT_TRUE(TypeAtTheRoom(typed.split("", Qt::SkipEmptyParts)));
      EXPECT_TRUE(Wait([&] { return box->text().toLower() == typed; })) << box->text().toStdString();
      EXPECT_TRUE(TypeAtTheRoom({"Escape"}));
      EXPECT_TRUE(Wait([&] { return !names.isVisible(); }));
      names.close();
    });
    Main().mnuFileAddPlayerNames.Click();
  }
  EXPECT_TRUE(IsPhase(TheShow(), PhaseKind::QuestionOpen)) << "no key rang in";
}

TEST_F(ProjectorTest, WithTheConsolesMonitorGoneTheRoomSeesACardUntilTheOperatorAsks) {
  const auto card = [] { return Console().findChild<QWidget*>("pnlLastScreen"); };
  for (const bool asked : {false, true}) {
    ASSERT_TRUE(Xrandr(kPluggedIn));
    ASSERT_TRUE(Wait([] { return AudienceSeenAt({1280, 0, 1920, 1080}) && ConsoleUncovered(); }));
    driver_->Pause(700);
    ASSERT_TRUE(Xrandr("--output DUMMY0 --off --output DUMMY1 --pos 0x0"));
    EXPECT_TRUE(Wait([&] { return card() != nullptr && card()->size() == Console().size(); }));
    EXPECT_TRUE(Wait([] { return !Screen().isVisible(); }));
    EXPECT_TRUE(Wait([] { return Output("DUMMY1").contains(Console().geometry().center()); }));
    driver_->Pause(1200);
    if (!asked) continue;
    EXPECT_TRUE(driver_->Type({"x"}));
    EXPECT_TRUE(Wait([&] { return card() == nullptr; }));
    ExpectKeys();
  }
  ASSERT_TRUE(Xrandr(kPluggedIn));
  EXPECT_TRUE(Wait([] { return AudienceSeenAt({1280, 0, 1920, 1080}) && ConsoleUncovered(); }));
  EXPECT_EQ(card(), nullptr);
  ExpectKeys();
}

}  // namespace
}  // namespace pawnfield
