// The check before the show in the real windows, on a machine of the test's own: two monitors, a sound server, a bus
// with the desktop's services, and a disk that can be said to be full. All is right, and then each thing wrong in turn.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <QCheckBox>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QPushButton>
#include <QTreeWidget>
#include <algorithm>

#include "check_window.h"
#include "desktop/painting/canvas.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "editor_driver.h"
#include "forms/editor_form.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "handed_transceiver.h"
#include "program/check_rows.h"
#include "sound_rig.h"

namespace {
bool diskIsFull = false;
}

// The system's word on a disk's room, which the test can have say that there is none.
extern "C" int statvfs(const char* path, struct statvfs* room) noexcept {
  using Real = int (*)(const char*, struct statvfs*);
  static const auto real = reinterpret_cast<Real>(dlsym(RTLD_NEXT, "statvfs"));
  const int result = real(path, room);
  if (diskIsFull) room->f_bavail = 0;
  return result;
}

namespace pawnfield {
namespace {

// Grants whatever is asked, as the desktop's and the system's services do.
class Granting : public QDBusVirtualObject {
 public:
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    if (!Grants) {
      bus.send(message.createErrorReply(QDBusError::AccessDenied, "no"));
    } else if (message.interface() == "org.freedesktop.login1.Manager") {
      const int handle = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
      bus.send(message.createReply(QVariant::fromValue(QDBusUnixFileDescriptor(handle))));
      ::close(handle);
    } else {
      bus.send(message.createReply(1U));
    }
    return true;
  }
  bool Grants = true;
};

class ShowCheckWindowTest : public CheckWindow {
 protected:
  static void SetUpTestSuite() {
    const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    if (bus.isEmpty() || !SoundRig::IsPossible()) return;
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus);
    rig_ = new SoundRig;
    desktop_ = new Granting;
    QDBusConnection services = QDBusConnection::connectToBus(bus, "services");
    for (const char* path : {"/org/freedesktop/ScreenSaver", "/org/freedesktop/login1"})
      services.registerVirtualObject(path, desktop_);
    for (const char* name : {"org.freedesktop.ScreenSaver", "org.freedesktop.login1"}) services.registerService(name);
    const bool heard = rig_->StartServer();
    Begin(kTwoMonitors);
    ready_ = ready_ && heard && Press({"optGameType_4"}) && driver_->Choose("cboList", "General Knowledge 1") &&
             Wait([] { return Main().btnStart.Enabled && TheShow().mediaCheck.Left == 0; });
    remotes_ = new HandedTransceiver(TheShow());
  }
  static void TearDownTestSuite() {
    delete remotes_;
    ShowSuite::TearDownTestSuite();
    QDBusConnection::disconnectFromBus("services");
    delete desktop_;
    delete rig_;
  }
  void SetUp() override {
    if (rig_ == nullptr) GTEST_SKIP() << "no bus or no sound server";
    ShowSuite::SetUp();
    Main().mnuFileShowCheck.Click();
    ASSERT_TRUE(Wait([this] { return Window()->isVisible() && NotReady().isEmpty(); })) << NotReady().toStdString();
  }

  // What was pressed is forgotten when the window closes.
  void TearDown() override {
    if (rig_ != nullptr && Form().Visible) Form().btnClose.Click();
    ShowSuite::TearDown();
  }

  // What isn't ready, with its sentence.
  static QString NotReady() {
    QString rows;
    for (std::size_t i = 0; i < kCheckRows; ++i) {
      if (Form().chpLight[i].State.Get() == ChipState::Good) continue;
      rows +=
          QString::fromStdString(Form().lblThing[i].Caption.Get() + ": " + Form().lblSentence[i].Caption.Get() + "\n");
    }
    return rows;
  }
  // That row alone turns, and a picture is taken of it.
  void GoesWrong(CheckRow row, ChipState light, const QString& says, const char* picture) {
    EXPECT_TRUE(Wait([&] { return Light(row) == light; })) << says.toStdString();
    EXPECT_EQ(NotReady().count('\n'), 1) << NotReady().toStdString();
    EXPECT_TRUE(NotReady().contains(says)) << NotReady().toStdString();
    // The lights take their new width by a turn of the message loop.
    driver_->Pause(150);
    driver_->TakePicture(*Window(), picture);
  }
  void IsRightAgain() {
    EXPECT_TRUE(Wait([] { return NotReady().isEmpty(); })) << NotReady().toStdString();
  }

  // How long each of the sounds is that stand apart.
  static std::vector<double> LengthsOf(const Recording& heard) {
    constexpr double kStep = 0.05, kBetweenChannels = 0.4;
    std::vector<double> lengths;
    double last = -1;
    for (double at = 0; at + kStep < heard.Seconds(); at += kStep) {
      if (heard.Level(880, at, at + kStep) < 0.01) continue;
      if (lengths.empty() || at - last > kBetweenChannels) lengths.push_back(0);
      lengths.back() += lengths.back() > 0 ? at - last : kStep;
      last = at;
    }
    return lengths;
  }
  // Each longer than the one before, as one pip, two and so on are.
  static bool AreFive(const std::vector<double>& lengths) {
    return lengths.size() == 5 && std::is_sorted(lengths.begin(), lengths.end()) && lengths[4] > lengths[0] + 0.4;
  }

  static inline SoundRig* rig_ = nullptr;
  static inline Granting* desktop_ = nullptr;
  static inline HandedTransceiver* remotes_ = nullptr;
};

TEST_F(ShowCheckWindowTest, EverythingRightIsSmallAndReadyAndShowsTheRoomNothing) {
  EXPECT_LE(Window()->width(), 900);
  EXPECT_LE(Window()->height(), 680);
  EXPECT_FALSE(Audience().picTest.Visible);
  driver_->TakePicture(*Window(), "show-check");
}

// The pips are of 880 Hz, and stand close together: one for the first channel, five for the last.
TEST_F(ShowCheckWindowTest, TheFiveChannelsAreHeardInTurn) {
  std::vector<double> lengths;
  // On a busy machine a sound may stutter or come too late, and is played once more.
  for (int tries = 0; tries < 5 && !AreFive(lengths); ++tries) {
    const Recording heard = rig_->Record(11500, [this] { Push("btnTry", CheckRow::Sound); });
    lengths = LengthsOf(heard);
    EXPECT_TRUE(Wait([] { return Form().lblSentence[2].Caption->ends_with("All five were played."); }));
  }
  EXPECT_TRUE(AreFive(lengths)) << testing::PrintToString(lengths);
}

TEST_F(ShowCheckWindowTest, EachThingThatGoesWrongTurnsItsRowAndComesBack) {
  ASSERT_TRUE(Xrandr(kOneMonitor));
  GoesWrong(CheckRow::Audience, ChipState::Red, "the room sees nothing", "no-second-monitor");
  ASSERT_TRUE(Xrandr(kTwoMonitors));
  IsRightAgain();
  remotes_->Pull();
  GoesWrong(CheckRow::Buzzers, ChipState::Red, "transceiver is gone", "pulled-remote");
  delete remotes_;
  remotes_ = new HandedTransceiver(TheShow());
  TheShow().presses.TransceiverLost = false;
  IsRightAgain();
  rig_->StopServer();
  GoesWrong(CheckRow::Sound, ChipState::Red, "sounds come back by themselves", "dead-sound-server");
  ASSERT_TRUE(rig_->StartServer());
  IsRightAgain();
  diskIsFull = true;
  GoesWrong(CheckRow::Disk, ChipState::Red, "The disk is full: 0 MB free", "full-disk");
  diskIsFull = false;
  IsRightAgain();
  desktop_->Grants = false;
  Push("btnTry", CheckRow::Awake);
  GoesWrong(CheckRow::Awake, ChipState::Amber, "its screen saver and sleep", "no-inhibitor");
  desktop_->Grants = true;
  Push("btnTry", CheckRow::Awake);
  IsRightAgain();
}

TEST_F(ShowCheckWindowTest, AFileThatCannotBeShownIsNamedAndAClickOpensTheEditorThere) {
  const std::string sets = TheShow().AppPath("\\Trivia Sets\\");
  TheShow().platform.files.Write(sets + "Media\\torn.jpg", "no picture");
  std::string bytes = "Who was first?\r\nAnn\r\nT#Courier New#28#True#True#16777215#\r\n";
  bytes += sets + "Media\\torn.jpg\r\nA dog\r\nP\r\n";
  for (int i = 0; i < 28; ++i)
    bytes += "Who was number " + std::to_string(i) + "?\r\nBen\r\nT#Courier New#28#True#True#16777215#\r\n";
  TheShow().platform.files.Write(sets + "Torn.txt", bytes);
  ASSERT_TRUE(driver_->Choose("cboList", "Torn"));
  GoesWrong(CheckRow::Set, ChipState::Red, "Torn: 1 file can't be shown (question 2)", "missing-file");
  auto* list = Window()->findChild<QTreeWidget*>("lstFindings");
  ASSERT_TRUE(list->isVisible());
  int opened = 0;
  EditorDriver editor(*driver_);
  editor.WhenShown("frmEditor", [&] {
    opened = TheShow().frmEditor.EditQuestionNumber;
    const auto& rows = TheShow().frmEditor.lstQuestions.ListItems;
    EXPECT_TRUE(Wait([&] { return rows.Get()[1][4].starts_with("No picture"); })) << rows.Get()[1][4];
    EXPECT_EQ(TheShow().frmEditor.ActiveControl, &TheShow().frmEditor.txtAnswer);
    editor.TakePicture("frmEditor", "opened-at-the-finding");
    TheShow().frmEditor.Unload();
  });
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->topLevelItem(0)).center());
  EXPECT_TRUE(Wait([&] { return opened == 2; }));
  ASSERT_TRUE(driver_->Choose("cboList", "General Knowledge 1"));
  IsRightAgain();
}

TEST_F(ShowCheckWindowTest, TheTestPictureReachesAllEdgesAndGoesByASecondPress) {
  Push("btnTry", CheckRow::Audience);
  ASSERT_TRUE(Wait([] { return Audience().picTest.Visible.Get(); }));
  driver_->Pause(500);
  const QImage seen = Screen().Screen().grab().toImage();
  const QPoint middle = seen.rect().center();
  for (const QPoint& edge : {QPoint(middle.x(), 0), QPoint(middle.x(), seen.height() - 1), QPoint(0, middle.y()),
                             QPoint(seen.width() - 1, middle.y())}) {
    EXPECT_EQ(seen.pixelColor(edge), QColor(Qt::white)) << edge.x() << ", " << edge.y();
  }
  EXPECT_EQ(Audience().lblTestName.Caption.Get(), "DUMMY1");
  driver_->TakePictures("test-picture");
  Push("btnTry", CheckRow::Audience);
  EXPECT_FALSE(Audience().picTest.Visible);
  EXPECT_FALSE(TheShow().state.GameStarted);
}

TEST_F(ShowCheckWindowTest, EachPressesOnceByRemotesAndKeys) {
  Push("btnTry", CheckRow::Buzzers);
  remotes_->Press(1);
  ASSERT_TRUE(Wait([] { return Form().lblPress[0].BackColor == kGreen; }));
  QTest::keyClick(Window()->focusWidget(), Qt::Key_2);
  EXPECT_TRUE(Form().lblPress[1].BackColor == kGreen);
  // What comes sooner is taken for the remote's own repeat.
  driver_->Pause(300);
  remotes_->Press(1);
  ASSERT_TRUE(Wait([] { return Form().lblPressNote.Visible.Get(); }));
  driver_->TakePicture(*Window(), "presses");
  remotes_->Press(3);
  EXPECT_TRUE(Wait([] { return Form().lblPress[2].BackColor == kGreen; }));
  EXPECT_EQ(TheShow().state.CurrentPlayer, 0);
  Push("btnTry", CheckRow::Buzzers);
}

TEST_F(ShowCheckWindowTest, EveryControlIsReachedByTabAndEscapeCloses) {
  QSet<QString> reached;
  for (int i = 0; i < 40; ++i) {
    QWidget* focus = Window()->focusWidget();
    QTest::keyClick(focus != nullptr ? focus : Window(), Qt::Key_Tab);
    if (Window()->focusWidget() != nullptr) reached.insert(Window()->focusWidget()->objectName());
  }
  for (const QPushButton* button : Window()->findChildren<QPushButton*>()) {
    if (!button->isVisible()) continue;
    EXPECT_TRUE(reached.contains(button->objectName())) << button->objectName().toStdString();
    EXPECT_FALSE(button->text().isEmpty());
  }
  EXPECT_TRUE(reached.contains("chkInFront"));
  QTest::keyClick(Window(), Qt::Key_Escape);
  EXPECT_TRUE(Wait([this] { return !Window()->isVisible(); }));
}

// While a show is set up it stands in a corner, over whatever is worked meanwhile.
TEST_F(ShowCheckWindowTest, StaysInFrontInItsCornerWhileItIsWanted) {
  const auto isOver = [this] {
    QProcess tool;
    tool.start("xprop", {"-id", QString::number(Window()->winId()), "_NET_WM_STATE"});
    tool.waitForFinished();
    return tool.readAllStandardOutput().contains("_NET_WM_STATE_ABOVE");
  };
  auto* box = Window()->findChild<QCheckBox*>("chkInFront");
  Window()->move(20, 60);
  for (const bool wanted : {true, false}) {
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    EXPECT_TRUE(Wait([&] { return isOver() == wanted; }, 120000)) << wanted;
    Console().activateWindow();
    EXPECT_TRUE(Window()->isVisible());
  }
}

// The last one: it starts the game.
TEST_F(ShowCheckWindowTest, StartEndsItWithWhatRunsInIt) {
  Push("btnTry", CheckRow::Audience);
  ASSERT_TRUE(driver_->Press("btnStart"));
  EXPECT_TRUE(Wait([this] { return !Window()->isVisible(); }));
  EXPECT_FALSE(Audience().picTest.Visible);
  EXPECT_TRUE(Audience().picQuestion.Visible);
}

}  // namespace
}  // namespace pawnfield
