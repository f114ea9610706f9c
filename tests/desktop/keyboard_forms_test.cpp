// Every dialog can be worked by the keyboard alone: Tab reaches all that acts, the focus is seen, Enter and Escape end
// it.

#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <array>

#include "desktop/system/house_box.h"
#include "desktop/windows/volume_slider_view.h"
#include "forms/config_keys_form.h"
#include "forms/connect_to_projector_form.h"
#include "forms/editor_form.h"
#include "forms/help_about_form.h"
#include "forms/import_form.h"
#include "forms/missing_media_form.h"
#include "forms/optional_headers_form.h"
#include "forms/options_form.h"
#include "forms/pages_form.h"
#include "forms/player_names_form.h"
#include "forms/press_forms.h"
#include "forms/results_form.h"
#include "forms/show_check_form.h"
#include "forms/small_forms.h"
#include "forms/sound_effects_form.h"
#include "places.h"
#include "toolkits_dialogs.h"

namespace pawnfield {
namespace {

class KeyboardForms : public ProgramTest {
 protected:
  FormWindow& Open(Form& form) {
    form.Visible = true;
    FormWindow& window = Window(form);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window, kSlowMachineMs)) << form.Name();
    return window;
  }
  static constexpr std::array kActing{"QAbstractButton",   "QComboBox",      "QLineEdit", "QAbstractSlider",
                                      "QAbstractItemView", "QPlainTextEdit", "QTextEdit"};
  // Those that act and can be seen, each option group counting as its chosen one.
  static QWidgetList Acting(QWidget& window) {
    QWidgetList acting;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      const bool acts =
          std::any_of(kActing.begin(), kActing.end(), [=](const char* kind) { return widget->inherits(kind); });
      const bool named = !widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_");
      // A light that only shows.
      if (widget->testAttribute(Qt::WA_TransparentForMouseEvents)) continue;
      if (acts && named && widget->isVisible() && widget->isEnabled()) acting.append(widget);
    }
    return acting;
  }
  static void ExpectSeenAndReached(QWidget& window, const QWidgetList& acting) {
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
};

TEST_F(KeyboardForms, TabReachesEveryControlOfTheDialogsAndItsFocusIsSeen) {
  show_.frmOptions.btnApply.Enabled = true;
  for (Form* form : std::initializer_list<Form*>{
           &show_.frmPlayerNames, &show_.frmHelpAbout, &show_.frmGameTypeHelp, &show_.frmGameInProgress,
           &show_.frmConfigKeys, &show_.frmEditor, &show_.frmEditChoice, &show_.frmDialog2, &show_.frmSoundEffects,
           &show_.frmOptionalHeaders, &show_.frmOptions, &show_.frmMapMF, &show_.frmSetInterface,
           &show_.frmConnectToProjector, &show_.frmPages, &show_.frmImport, &show_.frmResults, &show_.frmShowCheck}) {
    FormWindow& window = Open(*form);
    auto* tabs = window.findChild<QTabWidget*>();
    for (int tab = 0; tab < (tabs != nullptr ? tabs->count() : 1); ++tab) {
      if (tabs != nullptr) tabs->setCurrentIndex(tab);
      ExpectSeenAndReached(window, Acting(window));
    }
    form->Visible = false;
  }
}

TEST_F(KeyboardForms, TabReachesAllThatTheToolkitsDialogsHaveAndItsFocusIsSeen) {
  Make("data/Round 1.txt", "x");
  HouseBox question(nullptr);
  question.setText("Save?");
  question.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  ToolkitsDialogs dialogs(Native("data"));
  for (QDialog* window : std::initializer_list<QDialog*>{&question, &dialogs.Files, &dialogs.Fonts, &dialogs.Colors}) {
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window, 60000));
    QWidgetList acting;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
      const bool byTab = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
      if (byTab && widget->isVisible() && widget->isEnabled()) acting.append(widget);
    }
    EXPECT_GT(acting.size(), 1);
    ExpectSeenAndReached(*window, acting);
    window->hide();
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
  EXPECT_TRUE(QTest::qWaitFor([&] { return box->selectedText() == "CY"; }, kSlowMachineMs));
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
