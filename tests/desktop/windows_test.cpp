// Every form's controls have their widgets and the other way round; a user's action reaches the model, and a change of
// the model is seen.

#include <QAbstractButton>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QToolTip>
#include <QWindow>

#include "data/color_sight.h"
#include "data/house_colors.h"
#include "desktop/painting/player_card.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/bindings.h"
#include "desktop/windows/fitting_scale.h"
#include "desktop/windows/model_widgets.h"
#include "forms/editor_form.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/options_form.h"
#include "forms/small_forms.h"
#include "forms/sound_effects_form.h"
#include "places.h"
#include "platform/escapes.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "presentation/final_result.h"
#include "presentation/screen_pairs.h"

namespace pawnfield {
namespace {

using WindowsTest = ProgramTest;

TEST_F(WindowsTest, EveryControlHasItsWidgetAndEveryWidgetItsControl) {
  for (FormWindow* window : program_.Windows()) {
    EXPECT_EQ(window->Bindings()->UnboundControls(), std::vector<std::string>{}) << window->objectName().toStdString();
    EXPECT_EQ(window->Bindings()->UnboundWidgets(), std::vector<std::string>{}) << window->objectName().toStdString();
  }
}

TEST_F(WindowsTest, WhatHasNoTextHasAName) {
  for (const QWidget* widget : program_.Console().findChildren<QWidget*>()) {
    const std::string name = widget->objectName().toStdString();
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const bool silent = button != nullptr ? button->text().isEmpty() : widget->inherits("QComboBox");
    EXPECT_FALSE(silent && name.rfind("qt_", 0) != 0 && widget->accessibleName().isEmpty()) << name;
  }
}

TEST(FittingScale, LowersOnlyWhatMakesTheConsoleLargerThanItsMonitor) {
  const std::tuple<double, int, int, double> cases[] = {{1, 1280, 800, 1},      {2, 3840, 2160, 2},
                                                        {1.5, 1280, 800, 1.02}, {2, 1920, 1080, 1.38},
                                                        {1, 1024, 768, 1},      {1.25, 1280, 680, 1}};
  for (const auto& [ratio, width, height, scale] : cases) {
    EXPECT_NEAR(ratio * FittingShare(ratio, width, height), scale, 0.01) << ratio << ' ' << width;
  }
}

TEST(FittingScale, MonitorsAreKnownAgainOnlyWhereEachHasANameOfItsOwn) {
  const std::pair<QStringList, bool> cases[] = {{{"eDP-1", "HDMI-A-1"}, true},
                                                {{"eDP-1"}, true},
                                                {{"eDP-1", "Screen1"}, false},
                                                {{"", "HDMI-A-1"}, false},
                                                {{"DP-1", "DP-1"}, false}};
  for (const auto& [names, tell] : cases) EXPECT_EQ(NamesTell(names), tell) << names.join(',').toStdString();
}

TEST_F(WindowsTest, ButtonsClickTheirModelsOnlyWhenReachable) {
  int clicks = 0;
  form_.btnUndo.OnClick = [&] { ++clicks; };
  auto& button = Widget<QAbstractButton>("btnUndo");
  for (const bool enabled : {true, false}) {
    form_.btnUndo.Enabled = enabled;
    EXPECT_EQ(button.isEnabled(), enabled);
    button.click();
    EXPECT_EQ(clicks, 1);
  }
  form_.btnUndo.Caption = "Caf\xE9";
  EXPECT_EQ(button.text(), QString::fromUtf8("Caf\u00e9"));
  form_.btnUndo.Visible = false;
  EXPECT_TRUE(button.isHidden());
}

TEST_F(WindowsTest, OptionsFollowTheModelsChoice) {
  int chosen = 0;
  form_.optPlayers[0].OnClick = [&] { ++chosen; };
  auto& first = Widget<QAbstractButton>("optPlayers_0");
  // A second press still runs the handler, and the mark stays.
  for (const int times : {1, 2}) {
    first.click();
    EXPECT_EQ(chosen, times);
    EXPECT_TRUE(form_.optPlayers[0].Value && first.isChecked());
  }
  form_.optPlayers[1].SelectInGroup();
  EXPECT_FALSE(first.isChecked());
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

TEST_F(WindowsTest, FilesDroppedOnTheSoundTableTakeACellEachAndTheRestIsTold) {
  SoundEffectsForm& sounds = show_.frmSoundEffects;
  auto& table = *Window(sounds).findChild<QTableWidget*>("Grid1");
  sounds.Visible = true;
  std::string taken;
  sounds.Grid1.OnDropFile = [&](const std::string& path) {
    taken += std::to_string(sounds.Grid1.Row) + ":" + path.substr(path.find_last_of('\\') + 1) + " ";
  };
  const auto drop = [&](int row, const QStringList& names) {
    QMimeData data;
    QList<QUrl> files;
    for (const QString& name : names) files << QUrl::fromLocalFile(Native(name));
    data.setUrls(files);
    table.scrollToItem(table.item(row - 1, 1));
    const QPoint place = table.visualItemRect(table.item(row - 1, 1)).center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent release(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(table.viewport(), &enter);
    QApplication::sendEvent(table.viewport(), &release);
    return std::exchange(taken, "");
  };
  const int last = table.rowCount();
  EXPECT_EQ(drop(3, {"horn.wav", "film.mp4"}), "3:horn.wav 4:film.mp4 ");
  EXPECT_TRUE(QToolTip::text().isEmpty());
  EXPECT_EQ(drop(last, {"a.wav", "b.wav", "c.wav"}), std::to_string(last) + ":a.wav ");
  EXPECT_EQ(QToolTip::text(), "2 files found no cell left in this column.");
  QToolTip::hideText();
}

TEST_F(WindowsTest, TheSoundTableDrawsADashAPlusUnderTheMouseAndATriangle) {
  SoundEffectsForm& sounds = show_.frmSoundEffects;
  sounds.Visible = true;
  auto& table = *Window(sounds).findChild<QTableWidget*>("Grid1");
  const auto drawn = [&](QStyle::State state) {
    QImage picture(200, 30, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    QStyleOptionViewItem option;
    option.rect = picture.rect();
    option.state = state;
    table.itemDelegate()->paint(&painter, option, table.model()->index(8, 2));
    return picture;
  };
  const auto rowsInk = [](const QImage& picture) {
    int rows = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0, ink = 0; x < picture.width() && ink == 0; ++x) {
        ink = picture.pixelColor(x, y).lightness() > 60 ? 1 : 0;
        rows += ink;
      }
    }
    return rows;
  };
  ASSERT_TRUE(sounds.Grid1.Cell(9, 3).empty() || sounds.Grid1.Cell(9, 3) == sounds.Grid1.Placeholder);
  EXPECT_LE(rowsInk(drawn(QStyle::State_Enabled)), 3) << "a dash";
  EXPECT_GE(rowsInk(drawn(QStyle::State_Enabled | QStyle::State_MouseOver)), 8) << "a plus";
  sounds.Grid1.SetCell(9, 3, "applause.mp3");
  const QImage filled = drawn(QStyle::State_Enabled);
  EXPECT_GT(filled.pixelColor(12, 15).lightness(), 100) << "a triangle at the left";
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

TEST_F(WindowsTest, TypedTextOfAnyAlphabetReachesTheModelAndIsShownAsTyped) {
  int changes = 0;
  form_.txtDJCommand.OnChange = [&] { ++changes; };
  auto& line = Widget<QLineEdit>("txtDJCommand");
  // The console's keys fill this box; here it stands for any box that is typed into.
  line.setReadOnly(false);
  program_.Console().show();
  QTest::keyClicks(&line, "C4");
  line.setText(QString::fromUtf8("C4\u4e2d"));
  emit line.textEdited(line.text());
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(line.text(), QString::fromUtf8("C4\u4e2d"));
  EXPECT_EQ(form_.txtDJCommand.Text.Get(), "C4" + EscapeOf(0x4e2d));
}

TEST_F(WindowsTest, AClickAnywhereOnTheSplashAndAnyKeyReachIt) {
  int ends = 0;
  show_.frmSplash.OnClick = [&] { ++ends; };
  show_.frmSplash.Visible = true;
  FormWindow& splash = Window(show_.frmSplash);
  EXPECT_FALSE(splash.mask().contains(QPoint(0, 0))) << "the picture's corners are round";
  for (const QPoint place : {splash.rect().center(), QPoint(5, 5), QPoint(splash.width() / 2, splash.height() - 3)}) {
    QTest::mouseClick(splash.windowHandle(), Qt::LeftButton, {}, place);
  }
  EXPECT_EQ(ends, 3);
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Escape, Qt::Key_A}) QTest::keyClick(&splash, key);
  EXPECT_EQ(ends, 6);
  show_.frmSplash.Visible = false;
}

TEST_F(WindowsTest, SquaresAreHitWhereTheyStandAndNotThroughPanelsWhichAreSeenInOrderOfZ) {
  MakeGameBoard(show_, 885, 750, 5);
  program_.Console().resize(1280, 800);
  program_.Console().show();
  form_.picStandby.Visible = false;
  Canvas& board = program_.Console().Board();
  std::string hit;
  form_.img.ForEach([&](Image& square) { square.OnClick = [&] { hit += square.Name() + ' '; }; });
  const auto click = [&](int row, int column) {
    QTest::mouseClick(&board, Qt::LeftButton, {}, board.PixelRect(*form_.img.At(row, column)).center().toPoint());
  };
  for (const auto& [row, column] : {std::pair{0, 0}, {2, 3}, {4, 4}}) click(row, column);
  form_.picBonus.BackColor = kRed;
  form_.picMOD.BackColor = kGreen;
  form_.picBonus.Visible = form_.picMOD.Visible = true;
  click(2, 2);
  EXPECT_EQ(hit, "img00 img23 img44 ");
  const auto centre = [&] { return board.grab().toImage().pixelColor(board.rect().center()); };
  EXPECT_EQ(centre(), QColor(0, 255, 0));
  form_.picBonus.BringToFront();
  EXPECT_EQ(centre(), QColor(255, 0, 0));
  form_.picBonus.Visible = false;
  EXPECT_EQ(centre(), QColor(0, 255, 0));
}

TEST_F(WindowsTest, NamesAndScoresAreLegibleFromTheBackRow) {
  FSMainForm& audience = show_.frmFSMain;
  for (const char* text :
       {"PLAYER 1", "THE MAGNIFICENT SEVENTH GRADERS", "CHRISTOPHER-ALEXANDER", "-999999", "-1000050"}) {
    for (Label* label :
         {&audience.lblPlayer[0], &audience.Label11[2], &audience.lblBandName[1], &audience.lblBandScore[1],
          &audience.Winner.lblFinalName[2], &audience.Winner.lblFinalScore[0]}) {
      label->Caption = text;
      EXPECT_GE(program_.Audience().Screen().LetterHeight(*label), audience.Height / 40) << label->Name() << text;
    }
  }
  audience.txtOptionalHeading.Text = "Tonight's prizes are given by the Corner Bakery and by Smith & Daughters, Ltd.";
  EXPECT_GE(program_.Audience().Screen().LetterHeight(audience.txtOptionalHeading), audience.Height / 40);
  audience.lblAnswerClock.Caption = "10";
  EXPECT_GE(program_.Audience().Screen().LetterHeight(audience.lblAnswerClock), audience.Height / 40);
}

TEST_F(WindowsTest, TheResultIsLegibleFromTheBackRow) {
  WinnerPanel& result = show_.frmFSMain.Winner;
  show_.state.DualScreen = true;
  for (const char* name : {"BEN", "THE MAGNIFICENT SEVENTH GRADERS"}) {
    for (int player = 1; player <= kPlayers; ++player) SetPlayerName(show_, player, name);
    ShowResult(show_);
    for (const Label* label : {&result.lblWinnerHead, &result.lblWinnerName[0], &result.lblWinnerName[2],
                               &result.lblWinnerWord, &result.lblFinalName[1], &result.lblFinalScore[1]}) {
      EXPECT_GE(program_.Audience().Screen().LetterHeight(*label), show_.frmFSMain.Height / 40)
          << label->Name() << name;
    }
  }
}

TEST(RoomsColors, EveryTextStandsOutFromItsGround) {
  constexpr double kReadable = 4.5, kLarge = 3;
  for (int player = 1; player <= kPlayers; ++player) {
    for (const bool lit : {true, false}) {
      for (const Color text : {kPlayerColors[player], kWhite}) {
        EXPECT_GE(ContrastRatio(OnCard(text, lit), CardGround(player, lit)), kReadable) << player << lit;
      }
    }
    EXPECT_GE(ContrastRatio(kPlayerColors[player], kResultLight), kReadable) << player;
    // In the large letters of a name, to whoever lacks a kind of cone.
    for (const Sight sight : kAllSights) {
      const Color seen = SeenBy(sight, kPlayerColors[player]);
      EXPECT_GE(ContrastRatio(seen, SeenBy(sight, CardGround(player, true))), kLarge) << player;
      EXPECT_GE(ContrastRatio(seen, SeenBy(sight, kResultLight)), kLarge) << player;
    }
  }
  for (const Color text : {kQuietText, kGold}) EXPECT_GE(ContrastRatio(text, kResultLight), kReadable);
  // The letters and digits of the board's edge, and what is typed.
  for (const Color text : {FromRgb(0x9FB4EC), kWhite, kGold}) EXPECT_GE(ContrastRatio(text, kBoardLight), kReadable);
  for (const Color words : {kRightWords, kWrongWords}) {
    EXPECT_GE(ContrastRatio(words, kBlack), kReadable);
    for (const Sight sight : kAllSights) EXPECT_GE(ContrastRatio(SeenBy(sight, words), kBlack), kLarge);
  }
}

TEST_F(WindowsTest, TheTurnIsLightInThePlayersOwnColourAndTheOthersAreDim) {
  LightScoreBox(show_, 3);
  CopyPairs(show_);
  show_.frmFSMain.picStandby.Visible = form_.picStandby.Visible = false;
  Canvas& room = program_.Audience().Screen();
  room.resize(1920, 1080);
  const QImage picture = room.grab().toImage();
  const auto edgeOf = [&](std::size_t i) {
    // The middle of the card's upper edge.
    const QRectF card = room.PixelRect(show_.frmFSMain.picPlayer[i]);
    return picture.pixelColor(qRound(card.center().x()), qRound(card.top() + card.height() * 0.06));
  };
  EXPECT_GT(edgeOf(2).green(), 100);
  EXPECT_GT(edgeOf(2).green(), edgeOf(2).red() + 40) << "player 3's own colour";
  for (const std::size_t other : {0U, 1U}) EXPECT_LT(edgeOf(other).lightness(), 100) << other;
  auto& box = Widget<QLineEdit>("txtDJCommand");
  EXPECT_EQ(box.accessibleDescription(), "PLAYER 3");
  LightScoreBox(show_, 0);
  EXPECT_EQ(box.accessibleDescription(), "") << "nobody has the turn";
}

TEST_F(WindowsTest, TheBandHidesWhatIsBeneathItToTheLastPixel) {
  FSMainForm& audience = show_.frmFSMain;
  audience.picStandby.Visible = false;
  audience.picQuestion.Visible = true;
  audience.SetBand(true);
  Canvas& room = program_.Audience().Screen();
  for (const QSize size : {QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080), QSize(1920, 1200)}) {
    room.resize(size);
    audience.lblPlayer[1].Caption = "I";
    const QImage before = room.grab().toImage();
    audience.lblPlayer[1].Caption = "MAGNIFICENT";
    EXPECT_EQ(before, room.grab().toImage()) << size.width() << 'x' << size.height();
  }
}

TEST_F(WindowsTest, TheOptionsTabsTurnByKeyFromAnywhere) {
  FormWindow& window = Window(show_.frmOptions);
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window, kSlowMachineMs));
  auto* tabs = window.findChild<QTabWidget*>("SSTab1");
  const int first = tabs->currentIndex();
  window.findChild<QWidget*>("btnOK")->setFocus();
  QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_NE(tabs->currentIndex(), first);
  QTest::keyClick(&window, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(tabs->currentIndex(), first);
}

TEST_F(WindowsTest, TheEditorsTitleSaysTheFileAndWhetherItIsUnsaved) {
  FormWindow& window = Window(show_.frmEditor);
  EXPECT_TRUE(window.windowTitle().contains("New set"));
  show_.frmEditor.SetFile("C:\\Sets\\Friday.txt");
  EXPECT_TRUE(window.windowTitle().contains("Friday.txt"));
  EXPECT_FALSE(window.isWindowModified());
  show_.frmEditor.EditDirty = true;
  EXPECT_TRUE(window.isWindowModified());
}

TEST_F(WindowsTest, CloseBoxAsksTheForm) {
  bool mayClose = false;
  int asked = 0;
  form_.OnQueryUnload = [&] { return ++asked, mayClose; };
  form_.Visible = true;
  for (const int times : {1, 2}) {
    program_.Console().close();
    EXPECT_EQ(asked, times);
    EXPECT_EQ(form_.Visible, !mayClose);
    EXPECT_EQ(program_.Console().isHidden(), mayClose);
    mayClose = true;
  }
}

TEST_F(WindowsTest, ModalFormReturnsWhenItEnds) {
  GameTypeHelpForm& help = show_.frmGameTypeHelp;
  help.btnOk.OnClick = [&] { help.Unload(); };
  FormWindow& window = Window(help);
  WhenUp<FormWindow>([](FormWindow& up) { up.findChild<QAbstractButton*>("btnOk")->click(); });
  show_.platform.dialogs.ShowModal(help);
  EXPECT_FALSE(help.Visible);
  EXPECT_TRUE(window.isHidden());
}

}  // namespace
}  // namespace pawnfield
