// Every form's controls have their widgets and the other way round; a user's action reaches the model, and a change of
// the model is seen.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "places.h"
#include "platform/desktop/bindings.h"
#include "platform/desktop/fitting_scale.h"
#include "platform/desktop/model_widgets.h"
#include "presentation/board_layout.h"

namespace pawnfield {
namespace {

class WindowsTest : public testing::Test {
 protected:
  template <typename T>
  T& Widget(const char* name) {
    auto* widget = program_.Console().findChild<T*>(name);
    EXPECT_NE(widget, nullptr) << name;
    return *widget;
  }

  QTemporaryDir folder_;
  DesktopProgram program_{PlacesIn(folder_)};
  MainForm& form_ = program_.TheShow().frmMain;
};

TEST_F(WindowsTest, EveryControlHasItsWidgetAndEveryWidgetItsControl) {
  for (FormWindow* window : program_.Windows()) {
    EXPECT_EQ(window->Bindings()->UnboundControls(), std::vector<std::string>{}) << window->objectName().toStdString();
    EXPECT_EQ(window->Bindings()->UnboundWidgets(), std::vector<std::string>{}) << window->objectName().toStdString();
  }
}

TEST_F(WindowsTest, EveryControlThatActsHasAnAccessibleName) {
  for (const QWidget* widget : program_.Console().findChildren<QWidget*>()) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const bool silent = button != nullptr ? button->text().isEmpty() : widget->inherits("QComboBox");
    if (silent && !widget->objectName().startsWith("qt_")) {
      EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
  }
}

TEST_F(WindowsTest, NothingIsCutAtTheLeastSize) {
  program_.Console().show();
  program_.Console().resize(program_.Console().minimumSize());
  QTest::qWait(50);
  for (const QAbstractButton* button : program_.Console().findChildren<QAbstractButton*>()) {
    if (!button->isVisible()) continue;
    const QRect shown = button->visibleRegion().boundingRect();
    EXPECT_EQ(shown, button->rect()) << button->objectName().toStdString();
    EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), button->width());
    const bool lamp = button->property("role") == "lamp";
    EXPECT_GE(button->height(), lamp ? 16 : 22) << button->objectName().toStdString();
  }
}

TEST(FittingScale, LowersOnlyWhatMakesTheConsoleLargerThanItsMonitor) {
  EXPECT_EQ(FittingShare(1, 1280, 800), 1);
  EXPECT_EQ(FittingShare(2, 3840, 2160), 1);
  EXPECT_NEAR(1.5 * FittingShare(1.5, 1280, 800), 1.02, 0.01);
  EXPECT_NEAR(2 * FittingShare(2, 1920, 1080), 1.38, 0.01);
  EXPECT_NEAR(FittingShare(1, 1024, 768), 0.86, 0.01);
}

TEST_F(WindowsTest, ButtonsClickTheirModelsOnlyWhenReachable) {
  int clicks = 0;
  form_.btnUndo.OnClick = [&] { ++clicks; };
  form_.btnUndo.Enabled = true;
  auto& button = Widget<QAbstractButton>("btnUndo");
  button.click();
  form_.btnUndo.Enabled = false;
  EXPECT_FALSE(button.isEnabled());
  button.click();
  EXPECT_EQ(clicks, 1);
  form_.btnUndo.Caption = "Caf\xE9";
  EXPECT_EQ(button.text(), QString::fromUtf8("Caf\u00e9"));
  form_.btnUndo.Visible = false;
  EXPECT_TRUE(button.isHidden());
}

TEST_F(WindowsTest, OptionsFollowTheModelsChoice) {
  int chosen = 0;
  form_.optPlayers[0].OnClick = [&] { ++chosen; };
  Widget<QAbstractButton>("optPlayers_0").click();
  EXPECT_TRUE(form_.optPlayers[0].Value);
  // A second press still runs the handler, and the mark stays.
  Widget<QAbstractButton>("optPlayers_0").click();
  EXPECT_EQ(chosen, 2);
  EXPECT_TRUE(Widget<QAbstractButton>("optPlayers_0").isChecked());
  form_.optPlayers[1].SelectInGroup();
  EXPECT_FALSE(Widget<QAbstractButton>("optPlayers_0").isChecked());
  EXPECT_TRUE(Widget<QAbstractButton>("optPlayers_1").isChecked());
}

TEST_F(WindowsTest, CheckBoxAndItsTextToggleTogether) {
  const int before = form_.chkAnimation.Value;
  QTest::mouseClick(&Widget<QWidget>("lblShowAnimation"), Qt::LeftButton);
  EXPECT_EQ(form_.chkAnimation.Value, 1 - before);
  EXPECT_EQ(Widget<QAbstractButton>("chkAnimation").isChecked(), before == 0);
  Widget<QAbstractButton>("chkAnimation").click();
  EXPECT_EQ(form_.chkAnimation.Value, before);
}

TEST_F(WindowsTest, ListsFillBeforeTheyOpenAndPickThroughTheModel) {
  form_.cboList.OnDropDown = [&] { form_.cboList.List = {"One", "Two"}; };
  std::string picked;
  form_.cboList.OnClick = [&] { picked = form_.cboList.Text(); };
  auto& box = Widget<ModelComboBox>("cboList");
  emit box.AboutToOpen();
  ASSERT_EQ(box.count(), 2);
  emit box.activated(1);
  EXPECT_EQ(picked, "Two");
  form_.cboList.ListIndex = 0;
  EXPECT_EQ(box.currentText(), "One");
}

TEST_F(WindowsTest, TypedTextReachesTheModelUnlessItCantBeSpelled) {
  int changes = 0;
  form_.txtDJCommand.OnChange = [&] { ++changes; };
  auto& line = Widget<QLineEdit>("txtDJCommand");
  // The console's keys fill this box; here it stands for any box that is typed into.
  line.setReadOnly(false);
  program_.Console().show();
  QTest::keyClicks(&line, "C4");
  EXPECT_EQ(form_.txtDJCommand.Text.Get(), "C4");
  EXPECT_EQ(changes, 2);
  line.setText(QString::fromUtf8("C4\u4e2d"));
  emit line.textEdited(line.text());
  EXPECT_EQ(line.text(), "C4");
  EXPECT_EQ(form_.txtDJCommand.Text.Get(), "C4");
}

TEST_F(WindowsTest, SquaresAreHitWhereTheyStandAndNotThroughPanels) {
  MakeGameBoard(program_.TheShow(), 885, 750, 5);
  program_.Console().resize(1280, 800);
  program_.Console().show();
  form_.picStandby.Visible = false;
  Canvas& board = program_.Console().Board();
  std::string hit;
  form_.img.ForEach([&](Image& square) { square.OnClick = [&] { hit += square.Name() + ' '; }; });
  for (const auto& [row, column] : {std::pair{0, 0}, {2, 3}, {4, 4}}) {
    QTest::mouseClick(&board, Qt::LeftButton, {}, board.PixelRect(*form_.img.At(row, column)).center().toPoint());
  }
  EXPECT_EQ(hit, "img00 img23 img44 ");
  form_.picQuestion.Visible = true;
  QTest::mouseClick(&board, Qt::LeftButton, {}, board.PixelRect(*form_.img.At(0, 0)).center().toPoint());
  EXPECT_EQ(hit, "img00 img23 img44 ");
}

TEST_F(WindowsTest, CanvasPaintsInOrderOfZAndAgainAfterAChange) {
  Canvas& board = program_.Console().Board();
  program_.Console().resize(1280, 800);
  program_.Console().show();
  form_.picStandby.Visible = false;
  form_.picBonus.BackColor = kRed;
  form_.picBonus.Visible = true;
  form_.picMOD.BackColor = kGreen;
  form_.picMOD.Visible = true;
  const auto centre = [&] { return board.grab().toImage().pixelColor(board.rect().center()); };
  EXPECT_EQ(centre(), QColor(0, 255, 0));
  form_.picBonus.BringToFront();
  EXPECT_EQ(centre(), QColor(255, 0, 0));
  form_.picBonus.Visible = false;
  EXPECT_EQ(centre(), QColor(0, 255, 0));
}

TEST_F(WindowsTest, NamesAndScoresAreLegibleFromTheBackRow) {
  FSMainForm& audience = program_.TheShow().frmFSMain;
  Canvas& screen = program_.Audience().Screen();
  for (const char* text :
       {"PLAYER 1", "THE MAGNIFICENT SEVENTH GRADERS", "CHRISTOPHER-ALEXANDER", "-999999", "-1000050"}) {
    for (Label* label : {&audience.lblPlayer[0], &audience.Label11[2]}) {
      label->Caption = text;
      EXPECT_GE(screen.LetterHeight(*label), audience.Height / 40) << text;
    }
  }
}

TEST_F(WindowsTest, CloseBoxAsksTheForm) {
  bool mayClose = false;
  int asked = 0;
  form_.OnQueryUnload = [&] { return ++asked, mayClose; };
  form_.Visible = true;
  program_.Console().close();
  EXPECT_TRUE(form_.Visible);
  mayClose = true;
  program_.Console().close();
  EXPECT_EQ(asked, 2);
  EXPECT_FALSE(form_.Visible);
  EXPECT_TRUE(program_.Console().isHidden());
}

TEST_F(WindowsTest, ModalFormReturnsWhenItEnds) {
  GameTypeHelpForm& help = program_.TheShow().frmGameTypeHelp;
  help.btnOk.OnClick = [&] { help.Unload(); };
  FormWindow* window = nullptr;
  for (FormWindow* each : program_.Windows()) {
    if (each->objectName() == "frmGameTypeHelp") window = each;
  }
  ASSERT_NE(window, nullptr);
  QTimer::singleShot(50, window, [&] { window->findChild<QAbstractButton*>("btnOk")->click(); });
  program_.TheShow().platform.dialogs.ShowModal(help);
  EXPECT_FALSE(help.Visible);
  EXPECT_TRUE(window->isHidden());
}

}  // namespace
}  // namespace pawnfield
