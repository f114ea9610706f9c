// Every dialog can be worked by the keyboard alone: Tab reaches all that acts, the focus is seen, Enter and Escape end
// it.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include "places.h"
#include "platform/desktop/volume_slider_view.h"

namespace pawnfield {
namespace {

class KeyboardForms : public testing::Test {
 protected:
  FormWindow& Window(Form& form) {
    for (FormWindow* window : program_.Windows()) {
      if (window->objectName() == QString::fromStdString(form.Name())) return *window;
    }
    throw std::runtime_error("no window of " + form.Name());
  }
  FormWindow& Open(Form& form) {
    form.Visible = true;
    FormWindow& window = Window(form);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << form.Name();
    return window;
  }
  // Those that act and can be seen, each option group counting as its chosen one.
  static QWidgetList Acting(QWidget& window) {
    QWidgetList acting;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      const bool acts = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                        qobject_cast<QComboBox*>(widget) != nullptr || qobject_cast<QLineEdit*>(widget) != nullptr ||
                        qobject_cast<QAbstractSlider*>(widget) != nullptr;
      const bool named = !widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_");
      if (acts && named && widget->isVisible() && widget->isEnabled()) acting.append(widget);
    }
    return acting;
  }
  static void ExpectSeenAndReached(FormWindow& window) {
    const QWidgetList acting = Acting(window);
    QWidgetList reached;
    for (qsizetype i = 0; i < 2 * acting.size() + 10; ++i) {
      QTest::keyClick(window.focusWidget() != nullptr ? window.focusWidget() : &window, Qt::Key_Tab);
      reached.append(window.focusWidget());
    }
    for (QWidget* widget : acting) {
      const std::string name = window.objectName().toStdString() + " " + widget->objectName().toStdString();
      EXPECT_TRUE(reached.contains(widget)) << name;
      widget->setFocus(Qt::TabFocusReason);
      const QImage with = widget->grab().toImage();
      widget->clearFocus();
      EXPECT_NE(with, widget->grab().toImage()) << name << " doesn't show its focus";
    }
  }

  QTemporaryDir folder_;
  DesktopProgram program_{PlacesIn(folder_)};
  Show& show_ = program_.TheShow();
};

TEST_F(KeyboardForms, TabReachesEveryControlOfTheDialogsAndItsFocusIsSeen) {
  for (Form* form : {static_cast<Form*>(&show_.frmPlayerNames), static_cast<Form*>(&show_.frmHelpAbout),
                     static_cast<Form*>(&show_.frmGameTypeHelp), static_cast<Form*>(&show_.frmGameInProgress),
                     static_cast<Form*>(&show_.frmConfigKeys), static_cast<Form*>(&show_.frmEditor),
                     static_cast<Form*>(&show_.frmEditChoice), static_cast<Form*>(&show_.frmDialog2),
                     static_cast<Form*>(&show_.frmSoundEffects), static_cast<Form*>(&show_.frmOptionalHeaders),
                     static_cast<Form*>(&show_.frmMapMF), static_cast<Form*>(&show_.frmSetInterface),
                     static_cast<Form*>(&show_.frmConnectToProjector)}) {
    ExpectSeenAndReached(Open(*form));
    form->Visible = false;
  }
}

TEST_F(KeyboardForms, BothTabsOfTheOptionsToo) {
  show_.frmOptions.btnApply.Enabled = true;
  FormWindow& window = Open(show_.frmOptions);
  for (const int tab : {0, 1}) {
    window.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(tab);
    ExpectSeenAndReached(window);
  }
}

TEST_F(KeyboardForms, EnterPressesTheDefaultOrTheFocusedButtonAndEscapeCloses) {
  PlayerNamesForm& form = show_.frmPlayerNames;
  std::string pressed;
  form.btnOK.OnClick = [&] { pressed += "OK "; };
  form.btnClearAll.OnClick = [&] { pressed += "Clear "; };
  FormWindow& window = Open(form);
  auto* box = window.findChild<QLineEdit*>("txtPlayerName_1");
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Return);
  auto* clear = window.findChild<QWidget*>("btnClearAll");
  clear->setFocus();
  QTest::keyClick(clear, Qt::Key_Return);
  EXPECT_EQ(pressed, "OK Clear ");
  QTest::keyClick(clear, Qt::Key_Escape);
  EXPECT_FALSE(form.Visible);
}

TEST_F(KeyboardForms, GoingToANameBoxMarksItsTextAndTellsTheForm) {
  TextBox& name = show_.frmPlayerNames.txtPlayerName[2];
  int told = 0;
  name.OnGotFocus = [&] { ++told, name.SelectAll(); };
  name.Text = "CY";
  FormWindow& window = Open(show_.frmPlayerNames);
  auto* box = window.findChild<QLineEdit*>("txtPlayerName_2");
  window.findChild<QWidget*>("btnOK")->setFocus();
  QTest::mouseClick(box, Qt::LeftButton);
  QTest::qWait(20);
  EXPECT_EQ(told, 1);
  QTest::keyClicks(box, "Di");
  EXPECT_EQ(name.Text.Get(), "Di");
}

TEST_F(KeyboardForms, SlidersAnswerKeysWheelAndDrag) {
  VolumeSlider& slider = show_.frmOptions.picEvent;
  FormWindow& window = Open(show_.frmOptions);
  window.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(1);
  LoadSlider(slider, 50);
  std::string steps;
  slider.RealSlider.OnStep = [&](int percent) {
    steps += std::to_string(percent) + " ";
    MoveKnobTo(slider, percent);
    ShowPercent(slider);
  };
  auto* view = window.findChild<VolumeSliderView*>("pnlEvent");
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Up, Qt::Key_Left, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home}) {
    QTest::keyClick(view, key);
  }
  EXPECT_EQ(steps, "51 52 51 41 100 0 ");
  LoadSlider(slider, 50);
  slider.RealSlider.OnMouseDown = [&](MouseButton button, double x) { GrabKnob(slider, button, x); };
  slider.RealSlider.OnMouseMove = [&](double x) { DragKnob(slider, x); };
  const QPoint middle = view->rect().center();
  QTest::mousePress(view, Qt::LeftButton, {}, middle);
  QTest::mouseMove(view, middle + QPoint((view->width() - 14) / 4, 0));
  EXPECT_NEAR(ShowPercent(slider), 75, 1);
}

}  // namespace
}  // namespace pawnfield
