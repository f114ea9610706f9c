// Console and audience in a Wayland session, where a compositor gives windows their screens and the keyboard: outputs
// go and come back in mid-question. What an output shows is read from the compositor, not from the windows.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <vector>

#include "desktop/system/screens.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/second_screen_form.h"
#include "show/phase.h"
#include "show_driver.h"

namespace pawnfield {
namespace {

class WaylandTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QGuiApplication::platformName().startsWith("wayland"));
    own_ = GetParam();
    room_ = own_ == "HEADLESS-1" ? "HEADLESS-2" : "HEADLESS-1";
    ASSERT_TRUE(Sway("focus output " + own_));
    // A machine has a keyboard also while nobody types.
    keyboard_.start("wtype", {"-s", "3600000"});
    driver_ = std::make_unique<ShowDriver>(folder_.path());
    QTimer look;
    look.callOnTimeout([this] {
      const FormWindow* splash = driver_->Form("frmSplash");
      if (splash->isVisible()) splash_ = splash->size();
    });
    look.start(20);
    ASSERT_TRUE(driver_->Start());
  }
  // A picture of each output shows what was wrong.
  void TearDown() override {
    for (const QString& output : {own_, room_}) {
      if (HasFailure()) Seen(output).save("wayland-" + own_ + "-at-the-end-" + output + ".png");
    }
    for (const QString& output : {own_, room_}) {
      if (!Outputs().contains(output)) Plug(output);
      Sway("output " + output + " scale 1");
    }
    driver_.reset();
    keyboard_.kill();
    keyboard_.waitForFinished();
  }

  static bool Sway(const QString& command) { return QProcess::execute("swaymsg", {"-q", command}) == 0; }
  static QString Tell(const QStringList& arguments) {
    QProcess tool;
    tool.start("swaymsg", arguments);
    tool.waitForFinished();
    return QString::fromUtf8(tool.readAllStandardOutput());
  }
  static QString Outputs() { return Tell({"-t", "get_outputs"}); }
  static bool Unplug(const QString& output) { return Sway("output " + output + " subpixel vbgr"); }
  static bool Plug(const QString& output) { return Sway("output " + output + " subpixel none; create_output"); }

  bool Wait(const std::function<bool()>& condition) { return driver_->WaitFor(condition, 120000); }
  // What the output shows at this moment.
  QImage Seen(const QString& output) const {
    const QString file = folder_.filePath("seen.png");
    QProcess::execute("grim", {"-o", output, file});
    return QImage(file).convertToFormat(QImage::Format_RGB32);
  }
  void Keep(const QString& name) const {
    const QString folder = qEnvironmentVariable("PAWNFIELD_PICTURES");
    if (folder.isEmpty()) return;
    for (const QString& output : {own_, room_}) {
      Seen(output).save(folder + "/wayland-" + own_ + '-' + name + '-' + output + ".png");
    }
  }
  // The share of pixels that are the same; 0 for pictures of two sizes.
  static double Alike(const QImage& one, const QImage& other) {
    if (one.isNull() || one.size() != other.size()) return 0;
    qint64 same = 0;
    for (int y = 0; y < one.height(); ++y) {
      const auto* a = reinterpret_cast<const QRgb*>(one.constScanLine(y));
      const auto* b = reinterpret_cast<const QRgb*>(other.constScanLine(y));
      for (int x = 0; x < one.width(); ++x) same += (a[x] & 0xFFFFFF) == (b[x] & 0xFFFFFF) ? 1 : 0;
    }
    return static_cast<double>(same) / (static_cast<double>(one.width()) * one.height());
  }
  static QImage Picture(QWidget& window) { return window.grab().toImage().convertToFormat(QImage::Format_RGB32); }
  // Lights and seconds may change between two pictures.
  bool Shows(const QString& output, QWidget& window) { return Alike(Seen(output), Picture(window)) > 0.97; }

  MainForm& Main() { return driver_->TheShow().frmMain; }
  FSMainForm& Audience() { return driver_->TheShow().frmFSMain; }
  ConsoleWindow& Console() { return driver_->Program().Console(); }
  AudienceWindow& Screen() { return driver_->Program().Audience(); }
  QWidget* Card() { return Console().findChild<QWidget*>("pnlLastScreen"); }

  void ExpectEachOnItsOwn(const char* when) {
    SCOPED_TRACE(when);
    EXPECT_TRUE(Wait([&] { return Shows(own_, Console()); })) << "the console is on its output";
    EXPECT_TRUE(Wait([&] { return Screen().isVisible() && Shows(room_, Screen()); })) << "the room sees its screen";
    Keep(QString(when).replace(' ', '-'));
    ExpectKeys();
  }
  // By the compositor's own keyboard, wherever it sends the keys.
  bool Key(const QStringList& arguments) {
    return QProcess::execute("wtype", QStringList{"-s", "100"} + arguments) == 0;
  }
  void ExpectKeys() {
    for (const QString& output : {own_, room_}) {
      if (!Outputs().contains(output)) continue;
      Sway("focus output " + output);
      SCOPED_TRACE("the keyboard is given to what is on " + output.toStdString());
      ASSERT_TRUE(Key({"2"}));
      EXPECT_TRUE(Wait([&] { return Phase(driver_->TheShow()) == GamePhase{PhaseKind::Answering, 2}; }));
      ASSERT_TRUE(Key({"-M", "ctrl", "u", "-m", "ctrl"}));
      EXPECT_TRUE(Wait([&] { return IsPhase(driver_->TheShow(), PhaseKind::QuestionOpen); }));
    }
    Sway("focus output " + own_);
  }
  void BeginQuestion() {
    ASSERT_TRUE(driver_->Press("optGameType_4"));
    ASSERT_TRUE(driver_->Choose("cboList", "General Knowledge 2"));
    ASSERT_TRUE(Wait([&] { return Main().btnStart.Enabled.Get(); }));
    ASSERT_TRUE(driver_->Press("btnStart"));
    ASSERT_TRUE(Wait([&] { return IsPhase(driver_->TheShow(), PhaseKind::QuestionOpen); }));
  }
  // Pixels of the amber by which the console marks what is chosen, and which the room's question and the card lack.
  static int Marks(const QImage& picture) {
    int marks = 0;
    for (int y = 0; y < picture.height(); ++y) {
      const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
      for (int x = 0; x < picture.width(); ++x) marks += (line[x] & 0xFFFFFF) == 0xF2B84B ? 1 : 0;
    }
    return marks;
  }
  // The operator's own screen goes. From then on the console is on no picture of the room's.
  void UnplugTheConsolesOwn() {
    ASSERT_GT(Marks(Seen(own_)), 100);
    ASSERT_TRUE(Unplug(own_));
    QElapsedTimer since;
    std::vector<QImage> looks;
    for (since.start(); since.elapsed() < 2500 || looks.size() < 6; driver_->Pause(10)) looks.push_back(Seen(room_));
    ASSERT_NE(Card(), nullptr);
    EXPECT_TRUE(Wait([&] { return Shows(room_, Console()); }));
    Keep("card");
    for (const QImage& look : looks) {
      EXPECT_LT(Marks(look), 20) << "picture " << &look - looks.data() + 1 << " of " << looks.size();
      if (Marks(look) >= 20) look.save(QString("wayland-%1-leak.png").arg(own_));
    }
  }

  QString own_, room_;
  QSize splash_;
  QTemporaryDir folder_;
  QProcess keyboard_;
  std::unique_ptr<ShowDriver> driver_;
};

TEST_P(WaylandTest, EachScreenStaysTheConsolesOrTheRoomsWhateverIsUnplugged) {
  EXPECT_EQ(splash_, driver_->Form("frmSplash")->sizeHint()) << "it was not stretched over the output";
  ASSERT_NO_FATAL_FAILURE(BeginQuestion());
  const std::string question = Main().lblQuestion[0].Caption;
  ExpectEachOnItsOwn("at the start");
  EXPECT_EQ(Tell({"-t", "get_tree"}).count("\"app_id\": \"org.pawnfield.Pawnfield\""), 2) << "the desktop file's name";

  ASSERT_TRUE(Unplug(room_));
  EXPECT_TRUE(Wait([&] { return Main().lblStatusBar.Caption == std::string("Audience screen lost"); }));
  EXPECT_TRUE(Wait([&] { return Shows(own_, Console()) && !Screen().isVisible(); }));
  EXPECT_EQ(Card(), nullptr) << "the console's own screen is no card's";
  ExpectKeys();
  ASSERT_TRUE(Plug(room_));
  ExpectEachOnItsOwn("the room's is back");

  ASSERT_NO_FATAL_FAILURE(UnplugTheConsolesOwn());
  ASSERT_TRUE(Plug(own_));
  ExpectEachOnItsOwn("the console's is back");
  EXPECT_EQ(Card(), nullptr);

  ASSERT_NO_FATAL_FAILURE(UnplugTheConsolesOwn());
  ASSERT_TRUE(Key({"x"}));
  EXPECT_TRUE(Wait([&] { return Card() == nullptr && Shows(room_, Console()); })) << "the operator asked for it";
  ExpectKeys();
  ASSERT_TRUE(Plug(own_));
  ExpectEachOnItsOwn("the console's is back after it was shown to the room");
  EXPECT_EQ(Audience().lblQuestion[0].Caption.Get(), question);
}

TEST_P(WaylandTest, AChangeOfScaleLeavesEachAScreenOfItsOwn) {
  ASSERT_NO_FATAL_FAILURE(BeginQuestion());
  for (const char* scale : {"2", "1.5", "1"}) {
    for (const QString& output : {own_, room_}) {
      SCOPED_TRACE(output.toStdString() + " at " + scale);
      ASSERT_TRUE(Sway("output " + output + " scale " + scale));
      driver_->Pause(800);
      EXPECT_TRUE(Wait([&] { return Screen().isVisible() && Screen().windowHandle()->screen()->name() == room_; }));
      EXPECT_EQ(Console().windowHandle()->screen()->name(), own_);
      ExpectKeys();
    }
  }
  ExpectEachOnItsOwn("scales are 1 again");
}

TEST_P(WaylandTest, TheRoomsWindowGoesBackWhenTheDesktopMovesIt) {
  ASSERT_NO_FATAL_FAILURE(BeginQuestion());
  ExpectEachOnItsOwn("at the start");
  for (int times = 0; times < 2; ++times) {
    ASSERT_TRUE(Sway("[title=\"Second Screen\"] move container to output " + own_));
    ASSERT_TRUE(Wait([&] { return Screen().windowHandle()->screen()->name() == own_; })) << "it was moved";
    ExpectEachOnItsOwn("it is back");
  }
}

// As long as it is moved over the console the room's window rather hides; the room isn't left without it for good.
TEST_P(WaylandTest, TheRoomsWindowIsBackWhenTheDesktopNoLongerMovesIt) {
  ASSERT_NO_FATAL_FAILURE(BeginQuestion());
  ExpectEachOnItsOwn("at the start");
  ASSERT_TRUE(Wait([&] {
    if (Screen().isVisible()) Sway("[title=\"Second Screen\"] move container to output " + own_);
    return !Screen().isVisible();
  })) << "it gives in";
  ExpectEachOnItsOwn("it is back");
}

TEST_P(WaylandTest, KeysThatReachTheRoomsWindowUnderADialogAreTheDialogs) {
  ASSERT_NO_FATAL_FAILURE(BeginQuestion());
  FormWindow& names = *driver_->Form("frmPlayerNames");
  auto* box = names.findChild<QLineEdit*>("txtPlayerName_1");
  for (int times = 0; times < 2; ++times) {
    // The dialog has a message loop of its own.
    QTimer::singleShot(0, &names, [&] {
      EXPECT_TRUE(Wait([&] { return names.isActiveWindow(); }));
      box->setFocus();
      for (const QString& output : {own_, room_}) {
        Sway("focus output " + output);
        const QString typed = output == own_ ? "zoe" : "amy";
        box->selectAll();
        EXPECT_TRUE(Key({typed}));
        EXPECT_TRUE(Wait([&] { return box->text().toLower() == typed; }))
            << "the keyboard is given to what is on " << output.toStdString();
      }
      EXPECT_TRUE(Key({"-k", "Escape"}));
      EXPECT_TRUE(Wait([&] { return !names.isVisible(); }));
      names.close();
    });
    Main().mnuFileAddPlayerNames.Click();
    Sway("focus output " + own_);
  }
  EXPECT_TRUE(IsPhase(driver_->TheShow(), PhaseKind::QuestionOpen)) << "no key rang in";
  ExpectKeys();
}

TEST_P(WaylandTest, AQuestionStandsOverTheConsoleWhileTheRoomsWindowHasTheKeyboard) {
  ASSERT_NO_FATAL_FAILURE(BeginQuestion());
  ASSERT_TRUE(Sway("focus output " + room_));
  // Not by what a compositor calls active: the toolkit hears of that before it has changed its own mind.
  ASSERT_TRUE(Wait([&] { return QApplication::activeWindow() == &Screen(); }));
  const QWidget* over = nullptr;
  QTimer::singleShot(0, &Console(), [&] {
    EXPECT_TRUE(Wait([] { return QApplication::activeModalWidget() != nullptr; }));
    over = QApplication::activeModalWidget()->parentWidget();
    QApplication::activeModalWidget()->close();
  });
  driver_->TheShow().platform.dialogs.MessageBox("The disk is full.", "Pawnfield", BoxKind::Critical);
  EXPECT_EQ(over, &Console());
}

// A compositor takes an open list away from whoever loses the keyboard, and ends a program that draws it all the same.
TEST_P(WaylandTest, AListThatIsOpenedWhileTheRoomsWindowComesUpIsOpenAfterIt) {
  // The rule stays for the compositor's life; the cases before have none.
  ASSERT_TRUE(Sway("for_window [title=\"Second Screen\"] focus"));
  auto* box = Console().findChild<QComboBox*>("cboTimedResponse");
  ASSERT_TRUE(Wait([&] { return Screen().isVisible() && Shows(room_, Screen()); }));
  // Before the first key a list would be a window of its own, and none that belongs to the console.
  ASSERT_TRUE(Wait([&] {
    box->setFocus();
    return Key({"-k", "Down"}) && box->currentIndex() > 0;
  }));
  for (int times = 0; times < 3; ++times) {
    driver_->TheShow().frmSS.Visible = false;
    ASSERT_TRUE(Wait([&] { return !Shows(room_, Screen()); }));
    driver_->TheShow().frmSS.Visible = true;
    box->showPopup();
    driver_->Pause(100);
    EXPECT_TRUE(Wait([&] { return Screen().isVisible() && Shows(room_, Screen()); }));
    EXPECT_TRUE(Wait([&] { return box->view()->isVisible(); }));
    box->hidePopup();
  }
  ASSERT_NO_FATAL_FAILURE(BeginQuestion());
  ExpectKeys();
}

// On a busy machine the compositor tells a window of its screen after the toolkit's guess has been taken for it.
TEST(WaylandScreens, TheConsolesOwnIsTheOneThatTheDesktopTellsHoweverLate) {
  const QList<QScreen*> list = QGuiApplication::screens();
  ASSERT_EQ(list.size(), 2);
  for (QScreen* guess : list) {
    QScreen* told = list[0] == guess ? list[1] : list[0];
    Screens screens;
    screens.MoveHome(*guess);
    EXPECT_EQ(screens.Second(), told);
    screens.MoveHome(*told);
    EXPECT_EQ(screens.Home(), told);
    EXPECT_EQ(screens.Second(), guess);
  }
}

INSTANTIATE_TEST_SUITE_P(StartedAt, WaylandTest, testing::Values("HEADLESS-1", "HEADLESS-2"));

}  // namespace
}  // namespace pawnfield
