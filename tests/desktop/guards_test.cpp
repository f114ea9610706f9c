// No key and no slip destroys a show: where the focus goes, what wants a hold, and what the dialogs do by Enter and
// Escape.

#include <QAccessible>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPointingDevice>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <map>

#include "desktop/windows/console_window.h"
#include "desktop/windows/hold_button.h"
#include "forms/main_form.h"
#include "forms/small_forms.h"
#include "places.h"
#include "program/handlers.h"
#include "toolkits_dialogs.h"

namespace pawnfield {
namespace {

class GuardsTest : public ProgramTest {
 protected:
  void SetUp() override {
    program_.Console().show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program_.Console(), kSlowMachineMs));
    for (Button* button : {&form_.btnReset, &form_.btnEndGame, &form_.btnStandbyMode, &form_.btnUndo, &form_.btnStart,
                           &form_.btnContinue, &form_.btnSkipQuestion, &form_.btnNextPlayer}) {
      button->Enabled = true;
      Count(*button);
    }
    for (std::size_t i = 0; i < 6; ++i) Count(form_.btnScore1Up[i]);
    form_.btnQuestionCorrect.Visible = form_.btnQuestionIncorrect.Visible = true;
  }
  void Count(Button& button) {
    button.OnClick = [this, &button] { pressed_ += button.Name() + " "; };
  }
  std::string Focus() {
    const QWidget* focus = program_.Console().focusWidget();
    return focus == nullptr ? "none" : focus->objectName().toStdString();
  }
  void Key(Qt::Key key) {
    QWidget* focus = program_.Console().focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &program_.Console(), key);
  }
  std::string TakePressed() { return std::exchange(pressed_, {}); }

  std::string pressed_;
};

TEST_F(GuardsTest, AClickOnAButtonLeavesTheFocusWhereItWas) {
  auto& box = Widget<QWidget>("txtDJCommand");
  for (const QAbstractButton* button : program_.Console().findChildren<QAbstractButton*>()) {
    if (!button->isVisible() || !button->isEnabled() || button->inherits("QToolButton")) continue;
    box.setFocus();
    QTest::mouseClick(const_cast<QAbstractButton*>(button), Qt::LeftButton);
    EXPECT_EQ(Focus(), "txtDJCommand") << button->objectName().toStdString();
  }
}

TEST_F(GuardsTest, AControlThatGreysOrGoesHandsTheFocusToTheSquaresBoxAndTheNextSpaceHitsNothing) {
  for (Button* button : {&form_.btnStart, &form_.btnUndo, &form_.btnContinue, &form_.btnSkipQuestion,
                         &form_.btnStandbyMode, &form_.btnQuestionCorrect, &form_.btnQuestionIncorrect}) {
    for (Property<bool>* property : {&button->Enabled, &button->Visible}) {
      auto& view = Widget<QWidget>(button->Name().c_str());
      view.setFocus(Qt::TabFocusReason);
      ASSERT_EQ(Focus(), button->Name());
      *property = false;
      EXPECT_EQ(Focus(), "txtDJCommand") << button->Name();
      Key(Qt::Key_Space);
      Key(Qt::Key_Return);
      EXPECT_EQ(TakePressed(), "") << button->Name();
      *property = true;
    }
  }
}

TEST_F(GuardsTest, WhatGreysOrGoesBehindAnotherWindowLeavesNoNeighbourTheFocusWhenTheConsoleIsBack) {
  form_.fraGridControl.Enabled = true;
  const std::pair<const char*, Property<bool>*> cases[] = {
      {"btnUndo", &form_.btnUndo.Enabled},
      {"btnQuestionCorrect", &form_.btnQuestionCorrect.Enabled},
      {"btnQuestionCorrect", &form_.btnQuestionCorrect.Visible},
      {"cboAutoContinue", &form_.cboAutoContinue.Visible},
      {"optGridControl_1", &form_.fraGridControl.Enabled},
  };
  for (const auto& [name, property] : cases) {
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other, kSlowMachineMs));
    Widget<QWidget>(name).setFocus(Qt::TabFocusReason);
    ASSERT_EQ(Focus(), name);
    *property = false;
    other.hide();
    program_.Console().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program_.Console(), kSlowMachineMs));
    EXPECT_EQ(Focus(), "txtDJCommand") << name;
    *property = true;
  }
}

TEST_F(GuardsTest, WithoutTheSquaresBoxTheBoardHasTheFocus) {
  auto& start = Widget<QWidget>("btnStart");
  for (Property<bool>* property : {&form_.txtDJCommand.Enabled, &form_.txtDJCommand.Visible}) {
    start.setFocus(Qt::TabFocusReason);
    *property = false;
    form_.btnStart.Enabled = false;
    EXPECT_EQ(Focus(), "pnlBoardCanvas");
    Key(Qt::Key_Space);
    EXPECT_EQ(TakePressed(), "");
    *property = form_.btnStart.Enabled = true;
  }
}

TEST_F(GuardsTest, TheConsoleComesUpWithTheFocusOnNoButton) {
  program_.Console().focusWidget()->clearFocus();
  Key(Qt::Key_Space);
  Key(Qt::Key_Return);
  EXPECT_EQ(TakePressed(), "");
  EXPECT_EQ(Focus(), "txtDJCommand");
}

TEST_F(GuardsTest, AWheelOverAListChoosesNothing) {
  form_.cboList.List = {"One", "Two", "Three"};
  form_.cboList.Enabled = form_.cboList.Visible = true;
  form_.cboList.ListIndex = 1;
  auto& list = Widget<QComboBox>("cboList");
  for (const int turn : {-120, 120}) {
    const QPointF at = list.rect().center();
    QWheelEvent wheel(at, list.mapToGlobal(at), {}, {0, turn}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&list, &wheel);
    EXPECT_EQ(form_.cboList.ListIndex, 1);
  }
}

TEST_F(GuardsTest, TabGoesRoundTheWholeConsole) {
  std::map<QString, int> reached;
  for (int i = 0; i < 200; ++i) {
    Key(Qt::Key_Tab);
    ++reached[QString::fromStdString(Focus())];
  }
  for (const QWidget* widget : program_.Console().findChildren<QWidget*>()) {
    const bool acts = widget->inherits("QPushButton") || widget->inherits("QComboBox") ||
                      widget->inherits("QCheckBox") || widget->inherits("QLineEdit");
    const bool seen = widget->isVisible() && widget->isEnabled() && !widget->visibleRegion().isEmpty();
    // The strips of light say who may ring in, and nothing comes of pressing them.
    const bool lamp = widget->objectName().startsWith("btnBuzzer");
    if (!acts || !seen || lamp || widget->objectName().isEmpty() || widget->objectName().startsWith("qt_")) continue;
    EXPECT_GE(reached[widget->objectName()], 2) << widget->objectName().toStdString();
  }
}

TEST_F(GuardsTest, WhatCanBeReachedByTabShowsItsFocus) {
  for (QWidget* widget : program_.Console().findChildren<QWidget*>()) {
    if (!widget->inherits("QPushButton") || !widget->isVisible() || !widget->isEnabled()) continue;
    widget->setFocus(Qt::TabFocusReason);
    const QImage with = widget->grab().toImage();
    widget->clearFocus();
    EXPECT_NE(with, widget->grab().toImage()) << widget->objectName().toStdString();
  }
}

// What is done to a button that wants a hold, and whether it acts.
struct Gesture {
  const char* name;
  std::function<void(HoldButton&)> act;
  bool acts;
  bool hints;
  friend void PrintTo(const Gesture& gesture, std::ostream* out) { *out << gesture.name; }
};

// So long, or until it acts.
void Wait(HoldButton& button, int ms) {
  bool held = false;
  const QObject context;
  QObject::connect(&button, &HoldButton::Held, &context, [&held] { held = true; });
  static_cast<void>(QTest::qWaitFor([&held] { return held; }, ms));
}

void Mouse(HoldButton& button, int ms) {
  QTest::mousePress(&button, Qt::LeftButton);
  Wait(button, ms);
  QTest::mouseRelease(&button, Qt::LeftButton);
}

void Space(HoldButton& button, int ms) {
  button.setFocus(Qt::TabFocusReason);
  QTest::keyPress(&button, Qt::Key_Space);
  Wait(button, ms);
  QTest::keyRelease(&button, Qt::Key_Space);
}

const Gesture kGestures[] = {
    {"AClick", [](HoldButton& b) { Mouse(b, 0); }, false, true},
    {"ADoubleClick", [](HoldButton& b) { Mouse(b, 0), Mouse(b, 0); }, false, true},
    {"APressOf700Milliseconds", [](HoldButton& b) { Mouse(b, 700); }, false, true},
    {"AHeldMouse", [](HoldButton& b) { Mouse(b, 5000); }, true, false},
    {"TheRightButton",
     [](HoldButton& b) {
       QTest::mousePress(&b, Qt::RightButton);
       QTest::qWait(950);
       QTest::mouseRelease(&b, Qt::RightButton);
     },
     false, false},
    {"APressThatSlidesOff",
     [](HoldButton& b) {
       QTest::mousePress(&b, Qt::LeftButton);
       QTest::mouseMove(&b, QPoint(-20, -20));
       QTest::qWait(950);
       QTest::mouseRelease(&b, Qt::LeftButton, {}, QPoint(-20, -20));
     },
     false, false},
    {"AHeldFinger",
     [](HoldButton& b) {
       static QPointingDevice* const screen = QTest::createTouchDevice();
       QWindow* window = b.window()->windowHandle();
       const QPoint at = b.mapTo(b.window(), b.rect().center());
       QTest::touchEvent(window, screen).press(0, at, window).commit();
       Wait(b, 5000);
       QTest::touchEvent(window, screen).release(0, at, window).commit();
     },
     true, false},
    {"ASpace", [](HoldButton& b) { Space(b, 0); }, false, true},
    {"AHeldSpace", [](HoldButton& b) { Space(b, 5000); }, true, false},
    {"AnEnter",
     [](HoldButton& b) {
       b.setFocus(Qt::TabFocusReason);
       QTest::keyClick(&b, Qt::Key_Return);
     },
     false, false},
    {"ManySpaces",
     [](HoldButton& b) {
       for (int i = 0; i < 20; ++i) Space(b, 50);
     },
     false, true},
    {"AHoldWhoseFocusIsTaken",
     [](HoldButton& b) {
       b.setFocus(Qt::TabFocusReason);
       QTest::keyPress(&b, Qt::Key_Space);
       b.window()->findChild<QWidget*>("txtDJCommand")->setFocus();
       QTest::qWait(950);
     },
     false, false},
    {"AClickThatTheProgramHearsLate",
     [](HoldButton& b) {
       QTest::mousePress(&b, Qt::LeftButton);
       QThread::msleep(1000);
       QCoreApplication::processEvents();
       QTest::mouseRelease(&b, Qt::LeftButton);
     },
     false, true},
};

class HoldGesture : public GuardsTest, public testing::WithParamInterface<Gesture> {};

TEST_P(HoldGesture, ActsOnlyWhenItIsHeld) {
  for (const char* name : {"btnReset", "btnEndGame"}) {
    form_.lblStatusBar.Caption = std::string();
    auto& button = Widget<HoldButton>(name);
    GetParam().act(button);
    EXPECT_EQ(TakePressed(), GetParam().acts ? std::string(name) + " " : "") << name;
    EXPECT_EQ(form_.lblStatusBar.Caption->find("Hold to") == 0, GetParam().hints) << form_.lblStatusBar.Caption.Get();
    EXPECT_EQ(button.Filled(), 0) << "the edge is empty again";
  }
}
INSTANTIATE_TEST_SUITE_P(Gestures, HoldGesture, testing::ValuesIn(kGestures),
                         [](const auto& gesture) { return std::string(gesture.param.name); });

TEST_F(GuardsTest, TheEdgeFillsWhileItIsHeld) {
  auto& button = Widget<HoldButton>("btnReset");
  QTest::mousePress(&button, Qt::LeftButton);
  QTest::qWait(200);
  const QImage early = button.grab().toImage();
  const double before = button.Filled();
  QTest::qWait(350);
  EXPECT_GT(button.Filled(), before);
  EXPECT_NE(button.grab().toImage(), early);
  QTest::mouseRelease(&button, Qt::LeftButton);
}

// Answers the next message box once it stands, by that key, and keeps what it looked like.
struct BoxSeen {
  QStringList Buttons;
  QString Head;
  QString Focus;
  Qt::WindowFlags Flags;
  bool Came = false;

  void Await(Qt::Key key) {
    WhenUp<QMessageBox>([this, key](QMessageBox& box) {
      Came = true;
      EXPECT_TRUE(QTest::qWaitForWindowActive(&box, kSlowMachineMs));
      for (const QAbstractButton* button : box.buttons()) Buttons.append(button->text().remove('&'));
      Buttons.sort();
      if (const auto* head = box.findChild<QLabel*>("pnlBoxHead")) Head = head->text();
      const auto* focus = qobject_cast<const QAbstractButton*>(box.focusWidget());
      Focus = focus == nullptr ? QString() : focus->text().remove('&');
      Flags = box.windowFlags();
      QTest::keyClick(box.focusWidget() != nullptr ? box.focusWidget() : &box, key);
    });
  }
};

TEST_F(GuardsTest, WhatIsNoHandIsAskedBeforeItWipesAGame) {
  for (Button* button : {&form_.btnReset, &form_.btnEndGame}) {
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&Widget<QWidget>(button->Name().c_str()));
    ASSERT_TRUE(access != nullptr && access->actionInterface() != nullptr);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
      BoxSeen box;
      box.Await(key);
      access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
      const auto answered = [&] { return box.Came && QApplication::activeModalWidget() == nullptr; };
      ASSERT_TRUE(QTest::qWaitFor(answered, kSlowMachineMs)) << button->Name();
      EXPECT_EQ(box.Focus, "Keep the Game");
      EXPECT_EQ(TakePressed(), "") << button->Name();
    }
  }
}

TEST_F(GuardsTest, AQuestionHasVerbsAndItsSafeAnswerByEnterAndEscape) {
  struct Case {
    BoxQuestion question;
    QStringList buttons;
    QString focus;
  };
  const Case cases[] = {
      {{"Are you sure you want to exit?", BoxKind::YesNoCancel, BoxAnswer::No, "Exit", "Stay"},
       {"Exit", "Stay"},
       "Stay"},
      {{"Save?", BoxKind::YesNoCancel, BoxAnswer::Cancel, "Save", "Don't Save", "Go On Editing"},
       {"Don't Save", "Go On Editing", "Save"},
       "Go On Editing"},
      {{"Replace?", BoxKind::YesNo, BoxAnswer::No, kReplace, kSpareFile}, {kSpareFile, kReplace}, kSpareFile},
  };
  for (const Case& c : cases) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
      BoxSeen box;
      box.Await(key);
      EXPECT_EQ(show_.platform.dialogs.Ask(c.question, kAppTitle), c.question.Safe);
      EXPECT_EQ(box.Buttons, c.buttons);
      EXPECT_EQ(box.Focus, c.focus);
      EXPECT_EQ(box.Head, kAppTitle);
      EXPECT_EQ(box.Flags & Qt::WindowMinimizeButtonHint, 0);
    }
  }
}

TEST_F(GuardsTest, AGameInProgressGoesOnByEnterAndByEscape) {
  AttachHandlers(show_);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    show_.state.GameType = GameMode::TriviaC;
    show_.state.GameInProgress = show_.state.GameLoaded = true;
    WhenUp<FormWindow>([key](FormWindow& window) {
      EXPECT_TRUE(QTest::qWaitForWindowActive(&window, kSlowMachineMs));
      EXPECT_EQ(window.focusWidget()->objectName(), "btnCancel");
      QTest::keyClick(window.focusWidget(), key);
    });
    form_.optGameType[0].Enabled = true;
    form_.optGameType[0].Click();
    EXPECT_TRUE(show_.state.GameInProgress);
    EXPECT_EQ(show_.state.GameType, GameMode::TriviaC);
  }
}

double Light(QRgb color) {
  const auto linear = [](int part) {
    const double share = part / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

// Of the ground, which is the commonest colour, and the letters, which are what differs from it most.
double ContrastIn(const QImage& picture) {
  std::map<QRgb, int> count;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++count[picture.pixel(x, y)];
  }
  const auto common =
      std::max_element(count.begin(), count.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
  const double ground = Light(common->first);
  double most = 1;
  for (const auto& [color, times] : count) {
    const double light = Light(color);
    most = std::max(most, (std::max(light, ground) + 0.05) / (std::min(light, ground) + 0.05));
  }
  return most;
}

TEST_F(GuardsTest, TheListsAndBoxesOfTheToolkitsDialogsCanBeRead) {
  Make("data/Round 1.txt", "x");
  ToolkitsDialogs dialogs(Native("data"));
  for (QDialog* dialog : std::initializer_list<QDialog*>{&dialogs.Files, &dialogs.Fonts, &dialogs.Colors}) {
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog, kSlowMachineMs));
    QTest::qWait(200);
    int looked = 0;
    for (QWidget* widget : dialog->findChildren<QWidget*>()) {
      const bool lists = widget->inherits("QAbstractItemView") || widget->inherits("QLineEdit") ||
                         widget->inherits("QSpinBox") || widget->inherits("QPushButton");
      if (!lists || !widget->isVisible() || !widget->isEnabled()) continue;
      const auto* view = qobject_cast<const QAbstractItemView*>(widget);
      if (view != nullptr && view->model() != nullptr && view->model()->rowCount(view->rootIndex()) == 0) continue;
      const auto* edit = qobject_cast<const QLineEdit*>(widget);
      if (edit != nullptr && edit->text().isEmpty()) continue;
      QWidget* seen = view != nullptr ? view->viewport() : widget;
      EXPECT_GE(ContrastIn(seen->grab().toImage()), 4.5)
          << dialog->metaObject()->className() << " " << widget->objectName().toStdString();
      EXPECT_LT(Light(seen->grab().toImage().pixel(seen->width() - 4, seen->height() - 4)), 0.3)
          << "a pale ground in the dark: " << widget->objectName().toStdString();
      ++looked;
    }
    EXPECT_GT(looked, 3);
  }
}

}  // namespace
}  // namespace pawnfield
