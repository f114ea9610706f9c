// What the console draws of its models beyond their texts, as pictures and by real keys.
#include <QAbstractButton>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "data/house_colors.h"
#include "desktop/painting/player_card.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "desktop/windows/hold_button.h"
#include "desktop/windows/line_views.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "places.h"
#include "presentation/board_layout.h"
#include "presentation/both_screens.h"
#include "presentation/final_result.h"
#include "presentation/text_fitting.h"
#include "program/handlers.h"
#include "show/phase.h"

namespace pawnfield {
namespace {

// How many of the picture's points are of that colour, but for the edges of letters.
int PointsOf(const QImage& picture, const QColor& color) {
  int points = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor at = picture.pixelColor(x, y);
      const int apart =
          std::abs(at.red() - color.red()) + std::abs(at.green() - color.green()) + std::abs(at.blue() - color.blue());
      points += apart < 30 ? 1 : 0;
    }
  }
  return points;
}

class ConsoleLooks : public ProgramTest {
 protected:
  void SetUp() override {
    program_.Console().resize(1280, 680);
    program_.Console().show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program_.Console(), kSlowMachineMs));
  }
  // A window that has just been resized settles within some turns of the loop, however long each takes.
  void Settle() {
    constexpr int kQuietTurns = 30;
    std::vector<QRect> before;
    int quiet = 0;
    const auto isQuiet = [&] {
      std::vector<QRect> now;
      for (const QWidget* widget : program_.Console().findChildren<QWidget*>()) now.push_back(widget->geometry());
      quiet = now == before ? quiet + 1 : 0;
      before = now;
      return quiet >= kQuietTurns;
    };
    EXPECT_TRUE(QTest::qWaitFor(isQuiet, 90000));
  }
  QImage Picture(const char* name) { return Widget<QWidget>(name).grab().toImage(); }
};

TEST_F(ConsoleLooks, TheRingInOrderHasThePlayersColoursWhateverTheirPlace) {
  const QColor colors[] = {QColor("#FF6B70"), QColor("#FFD84D"), QColor("#46E08C")};
  for (int player = 1; player <= kPlayers; ++player) {
    form_.lstRingInOrder.Visible = form_.lblRingInOrder.Visible = true;
    form_.lstRingInOrder.ListItems = {{"1", "ANNA", "first", "", std::to_string(player)}};
    QTest::qWait(30);
    const QImage order = Picture("lstRingInOrder");
    for (int other = 1; other <= kPlayers; ++other) {
      const int points = PointsOf(order, colors[other - 1]);
      EXPECT_EQ(points > 20, other == player) << "player " << player << " in the colour of " << other;
    }
  }
}

TEST_F(ConsoleLooks, TheLineHasNoGapWhereItHasNothingToSay) {
  const auto left = [this](const char* name) {
    auto& label = Widget<QWidget>(name);
    return label.mapTo(&program_.Console(), QPoint()).x();
  };
  const auto middle = [this](const char* name) {
    auto& widget = Widget<QWidget>(name);
    return widget.mapTo(&program_.Console(), widget.rect().center()).y();
  };
  for (const QSize size : {QSize(1280, 680), QSize(1366, 768), QSize(1600, 1000), QSize(1920, 1080)}) {
    program_.Console().resize(size);
    form_.lblLineCount.Caption = form_.lblLineWho.Caption = form_.lblLineNext.Caption = "";
    form_.lblLineExpected.Caption = "Choose a set";
    form_.btnAnswerClock.Enabled = false;
    Settle();
    EXPECT_NEAR(middle("lblLineExpected"), middle("pnlShowLine"), 2) << size.width();
    const int alone = left("lblLineExpected");
    const QRect board = Widget<QWidget>("pnlBoard").geometry();
    form_.lblLineCount.Caption = "Question 1 of 30";
    form_.lblLineNext.Caption = "Next: Which planet has the shortest day?";
    form_.btnAnswerClock.Enabled = true;
    Settle();
    EXPECT_EQ(left("lblLineCount"), alone) << size.width();
    EXPECT_GT(left("lblLineExpected"), alone) << size.width();
    EXPECT_EQ(Widget<QWidget>("pnlBoard").geometry(), board) << "the board stays where it is at " << size.width();
  }
}

TEST_F(ConsoleLooks, LongNamesAndScoresLeaveTheBoardWhereItIs) {
  for (const QSize size : {QSize(1280, 680), QSize(1280, 781), QSize(1920, 1080)}) {
    program_.Console().resize(size);
    form_.lblPlayer1[0].Caption = "I";
    form_.Score(1).Caption = "0";
    Settle();
    const QRect board = Widget<QWidget>("pnlBoard").geometry();
    form_.lblPlayer1[0].Caption = "THE MAGNIFICENT SEVENTH GRADERS";
    form_.Score(1).Caption = "-999999";
    Settle();
    EXPECT_EQ(Widget<QWidget>("pnlBoard").geometry(), board) << size.height();
  }
}

TEST_F(ConsoleLooks, TheEdgeAroundStartKeepsOffTheButtonAtAnySize) {
  form_.btnStart.Enabled = true;
  for (const QSize size : {QSize(1280, 680), QSize(1280, 781), QSize(1366, 768), QSize(1920, 1080)}) {
    program_.Console().resize(size);
    Settle();
    const QRect edge = Widget<QWidget>("shpStart").geometry();
    const QRect button = Widget<QWidget>("btnStart").geometry();
    // A line of three pixels, and the ground between the two.
    EXPECT_TRUE(edge.adjusted(4, 4, -4, -4).contains(button)) << size.height();
  }
}

TEST_F(ConsoleLooks, SignsGrowWithTheLettersBesideThem) {
  const auto isGrown = [this](double growth) {
    const int side = static_cast<int>(14 * growth);
    const auto* score = Widget<QLabel>("pnlScoreName1").findChild<QWidget*>();
    const int sides[] = {Widget<QAbstractButton>("btnSelectPlayer_0").iconSize().width(), score->width(),
                         Widget<QWidget>("pnlSignInBox").width() - static_cast<int>(2 * growth)};
    return std::all_of(std::begin(sides), std::end(sides), [&](int each) { return std::abs(each - side) <= 2; });
  };
  for (const auto& [size, growth] :
       {std::pair(QSize(1280, 680), 1.0), std::pair(QSize(3840, 2160), 1.5), std::pair(QSize(1920, 1080), 1.25)}) {
    program_.Console().resize(size);
    EXPECT_TRUE(QTest::qWaitFor([&, grown = growth] { return isGrown(grown); }, 60000)) << size.width();
  }
}

TEST_F(ConsoleLooks, TheAnswerStandsBesideTheSquareAndIsAsHigh) {
  const QWidget& square = Widget<QWidget>("pnlSquare");
  const QWidget& answer = Widget<QWidget>("fraAnswer");
  for (const QSize size : {QSize(1280, 680), QSize(1366, 768), QSize(1920, 1080), QSize(3840, 2160)}) {
    program_.Console().resize(size);
    Settle();
    EXPECT_EQ(answer.y(), square.y()) << size.width();
    EXPECT_EQ(answer.height(), square.height()) << size.width();
  }
}

TEST_F(ConsoleLooks, AQuestionStandsInTheMiddleOfTheBoardWhereItNeedsALineLessThanMeasured) {
  show_.frmMain.picStandby.Visible = false;
  show_.frmMain.picQuestion.Visible = true;
  form_.lblQuestion[0].Font = {"Segoe UI", 28, false, false};
  SetQuestion(show_, "Which planet has the shortest day?", form_.lblQuestion);
  const QImage board = Picture("pnlBoardCanvas");
  int first = board.height();
  int last = 0;
  for (int y = 0; y < board.height(); ++y) {
    if (PointsOf(board.copy(0, y, board.width(), 1), Qt::white) == 0) continue;
    first = std::min(first, y);
    last = y;
  }
  ASSERT_GT(last, first + board.height() / 3);
  EXPECT_NEAR(first + last, board.height(), board.height() / 12);
}

TEST_F(ConsoleLooks, WhatIsExpectedHasItsWholeSizeAndTheNextQuestionGivesWay) {
  form_.lblLineCount.Caption = "Question 1 of 10";
  form_.lblLineWho.Caption = "PLAYER 2";
  form_.lblLineExpected.Caption = "answers: judge with Y or N";
  form_.lblLineClock.Caption = "TIME IS UP";
  form_.btnAnswerClock.Enabled = true;
  form_.lblLineSet.Caption = "General Knowledge 1";
  form_.lblLineNext.Caption = "Next: " + std::string(200, 'w');
  for (const QSize size : {QSize(1280, 680), QSize(1600, 900), QSize(1920, 1080), QSize(3840, 2160)}) {
    program_.Console().resize(size);
    Settle();
    const auto& expected = Widget<QLabel>("lblLineExpected");
    EXPECT_GE(expected.width(), expected.fontMetrics().horizontalAdvance(expected.text())) << size.width();
    EXPECT_GT(Widget<QWidget>("lblLineNext").width(), 100) << size.width();
  }
}

TEST_F(ConsoleLooks, TheKeyboardsOptionHasTwoLinesAtAnySize) {
  for (const QSize size : {QSize(1280, 680), QSize(1366, 860), QSize(1920, 1080), QSize(3840, 2160)}) {
    program_.Console().resize(size);
    Settle();
    const auto& words = Widget<QLabel>("lblExtKeyboardCtrl");
    EXPECT_LT(words.height(), 3 * words.fontMetrics().height()) << size.width();
  }
}

TEST_F(ConsoleLooks, AnEmptyListOfLettersSaysHowItIsFilled) {
  form_.fraCues.Visible = true;
  QTest::qWait(30);
  const QColor ink("#8592AD");
  const auto points = [&] { return PointsOf(Widget<CueView>("lstCues").viewport()->grab().toImage(), ink); };
  EXPECT_GT(points(), 50);
  form_.lstCues.ListItems = {{"A", "applause.mp3", "sound", "0:12", ""}};
  QTest::qWait(30);
  EXPECT_LT(points(), 50);
}

TEST_F(ConsoleLooks, WhatWantsAHoldSaysSo) {
  for (const char* name : {"btnReset", "btnEndGame"}) {
    auto& button = Widget<HoldButton>(name);
    const QImage said = button.grab().toImage();
    button.SetKey("");
    EXPECT_NE(said, button.grab().toImage()) << name;
    button.SetKey("hold");
    EXPECT_EQ(said, button.grab().toImage()) << name;
  }
}

TEST_F(ConsoleLooks, RingInAndScoresBearTheNamesAndTheStripsSayWhenTheyAreOpen) {
  form_.lblPlayer1[1].Caption = "ANNA";
  EXPECT_EQ(Widget<QLabel>("pnlScoreName2").text(), "ANNA");
  const auto says = [&](const char* name, const char* words) {
    auto& button = Widget<KeyButton>(name);
    const QImage said = button.grab().toImage();
    button.SetFace("something else");
    EXPECT_NE(said, button.grab().toImage());
    button.SetFace(words);
    EXPECT_EQ(said, button.grab().toImage()) << name;
  };
  says("btnSelectPlayer_1", "2 ANNA");
  form_.btnBuzzer[0].Enabled = true;
  says("btnBuzzer_0", "open to ring in");
  form_.btnBuzzer[0].ToolTipText = "Closed until the next question is up";
  says("btnBuzzer_0", " ");
  EXPECT_EQ(Widget<QWidget>("btnBuzzer_0").toolTip(), "Closed until the next question is up");
  form_.btnBuzzer[0].ToolTipText = "";
  says("btnBuzzer_0", "open to ring in");
  form_.btnBuzzer[0].Enabled = false;
  says("btnBuzzer_0", " ");
  form_.ScoreCopy(3).Visible = false;
  EXPECT_FALSE(Widget<QWidget>("pnlScoreRow3").isVisible()) << "with two players";
}

TEST_F(ConsoleLooks, TheTurnsMarkerHasNoCornersOfItsOwn) {
  MakeGameBoard(show_, 885, 750, 5);
  form_.picStandby.Visible = false;
  form_.imgDJEntry.Visible = false;
  Canvas& board = program_.Console().Board();
  const QRect place = board.PixelRect(form_.imgDJEntry).toRect();
  const QImage without = board.grab().toImage();
  form_.imgDJEntry.Picture = show_.AppPath("\\Images\\X-100a.bmp");
  form_.imgDJEntry.Visible = true;
  // Decoded beside.
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return board.grab().toImage().pixelColor(place.center()) != without.pixelColor(place.center()); }, 90000));
  const QImage with = board.grab().toImage();
  for (const QPoint corner : {place.topLeft(), place.topRight(), place.bottomLeft(), place.bottomRight()}) {
    EXPECT_EQ(with.pixelColor(corner), without.pixelColor(corner));
  }
}

// What is drawn in shades of grey: white for what is nearer to the lightest point than to the darkest, else black.
QImage Shape(const QImage& grey) {
  int least = 255, most = 0;
  for (int y = 0; y < grey.height(); ++y) {
    const auto [low, high] = std::minmax_element(grey.constScanLine(y), grey.constScanLine(y) + grey.width());
    least = std::min<int>(least, *low);
    most = std::max<int>(most, *high);
  }
  QImage shape = grey.copy();
  for (int y = 0; y < grey.height(); ++y) {
    for (int x = 0; x < grey.width(); ++x) shape.scanLine(y)[x] = 2 * grey.constScanLine(y)[x] > least + most ? 255 : 0;
  }
  return shape;
}

QImage ShapeOf(const QIcon& icon) {
  QImage drawn = icon.pixmap(28).toImage().convertToFormat(QImage::Format_Alpha8);
  drawn.reinterpretAsFormat(QImage::Format_Grayscale8);
  return Shape(drawn);
}

QImage ShapeIn(const QImage& picture, const QRect& part) {
  return Shape(picture.copy(part).convertToFormat(QImage::Format_Grayscale8));
}

// The share of points in which two shapes differ.
double Apart(const QImage& one, const QImage& other) {
  EXPECT_EQ(one.size(), other.size());
  int apart = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) apart += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
  }
  return static_cast<double>(apart) / (one.width() * one.height());
}

// Where a player's sign stands on a card.
QRect SignOn(const QRectF& card) {
  const int side = qRound(card.height() * kCardSign);
  return {qRound(card.left() + card.height() * kCardSignLeft), qRound(card.center().y()) - side / 2, side, side};
}

// Where it stands before a winner's name of three letters.
QRect SignBefore(const QRectF& name) {
  const int unit = qRound(name.height() / 4);
  return QRect(name.center().toPoint() - QPoint(4 * unit, unit), QSize(2 * unit, 2 * unit));
}

// The winner's panel once it has grown.
void AwaitRest(Canvas& room) {
  constexpr int kGrownMs = 1000;
  QElapsedTimer elapsed;
  elapsed.start();
  QImage last;
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        const QImage before = std::exchange(last, room.grab().toImage());
        return elapsed.elapsed() > kGrownMs && before == last;
      },
      kSlowMachineMs));
}

TEST_F(ConsoleLooks, ALongNameKeepsOffTheEdgesOfItsCardsInTheRoom) {
  constexpr const char* kThreeLines = "MAXIMILIANA WORTHINGTON-SMYTHEE";
  FSMainForm& form = show_.frmFSMain;
  show_.state.DualScreen = true;
  SetPlayerName(show_, 2, kThreeLines);
  form.lblPlayer[1].Caption = form.lblBandName[1].Caption = kThreeLines;
  SetScore(show_, 1, "50");
  Canvas& room = program_.Audience().Screen();
  program_.Audience().resize(1920, 1080);
  const auto keepsOff = [&](const Label& name, const PictureBox& card) {
    const QImage picture = room.grab().toImage();
    const QRect place = room.PixelRect(name).toRect();
    const int edge = room.PixelRect(card).toRect().height() / 10;
    const QColor ink = ToQColor(OnCard(kPlayerColors[2], false));
    EXPECT_GT(PointsOf(picture.copy(place), ink), 200) << name.Name();
    for (const int top : {place.top(), place.bottom() - edge}) {
      EXPECT_EQ(PointsOf(picture.copy(place.left(), top, place.width(), edge), ink), 0) << name.Name();
    }
  };
  form.picStandby.Visible = false;
  keepsOff(form.lblPlayer[1], form.picPlayer[1]);
  form.SetBand(true);
  keepsOff(form.lblBandName[1], form.picBandPlayer[1]);
  form.SetBand(false);
  ShowResult(show_);
  form.picWinner.Visible = true;
  keepsOff(form.Winner.lblFinalName[1], form.Winner.picFinal[1]);
}

TEST_F(ConsoleLooks, PlayersAreToldApartByTheirSignsWhereNobodySeesAColour) {
  const auto icon = [this](const QString& name) { return ShapeOf(Widget<QAbstractButton>(name.toLatin1()).icon()); };
  LightScoreBox(show_, 0);
  show_.frmFSMain.picStandby.Visible = false;
  Canvas& room = program_.Audience().Screen();
  program_.Audience().resize(1920, 1080);
  const QImage cards = room.grab().toImage();
  show_.frmFSMain.SetBand(true);
  show_.frmFSMain.picQuestion.Visible = true;
  const QImage strips = room.grab().toImage();
  WinnerPanel& result = show_.frmFSMain.Winner;
  for (int player = 1; player <= kPlayers; ++player) SetPlayerName(show_, player, "SAM");
  show_.state.DualScreen = show_.frmFSMain.picWinner.Visible = true;
  AwaitRest(room);
  const auto winner = [&](int player) {
    for (int other = 1; other <= kPlayers; ++other) SetScore(show_, other, other == player ? "50" : "0");
    ShowResult(show_);
    return ShapeIn(room.grab().toImage(), SignBefore(room.PixelRect(result.lblWinnerName[PlayerIndex(player)])));
  };
  const auto signs = [&](int player) {
    const QString index = QString::number(player - 1);
    const QString number = QString::number(player);
    const QByteArray card = ("picPlayer" + number).toLatin1();
    LightScoreBox(show_, player);
    return std::map<std::string, QImage>{
        {"ring-in", icon("btnSelectPlayer_" + index)},
        {"strip of light", icon("btnBuzzer_" + index)},
        {"score row", ShapeIn(Picture(("pnlScoreName" + number).toLatin1()), {0, 0, 18, 40})},
        {"console's card", ShapeIn(Picture(card), SignOn(Widget<QWidget>(card).rect()).translated(2, 0))},
        {"square's box", Shape(Picture("pnlSignInBox").convertToFormat(QImage::Format_Grayscale8))},
        {"winner's name", winner(player)},
        {"room's card", ShapeIn(cards, SignOn(room.PixelRect(show_.frmFSMain.picPlayer[PlayerIndex(player)])))},
        {"room's strip", ShapeIn(strips, SignOn(room.PixelRect(show_.frmFSMain.picBandPlayer[PlayerIndex(player)])))}};
  };
  const std::map<std::string, QImage> of[] = {signs(1), signs(2), signs(3)};
  for (const auto& [one, other] : {std::pair{0, 1}, {0, 2}, {1, 2}}) {
    for (const auto& [place, shape] : of[one]) {
      EXPECT_GT(Apart(shape, of[other].at(place)), 0.05) << place << " of players " << one + 1 << " and " << other + 1;
    }
  }
  EXPECT_GT(Apart(icon("btnQuestionCorrect"), icon("btnQuestionIncorrect")), 0.1) << "check and cross";
}

TEST_F(ConsoleLooks, TheNameStandsWholeInTheSquaresBoxUntilSomethingIsTyped) {
  form_.PlayerBox(2).Picture = "scoreboxred.bmp";
  auto& box = Widget<QLineEdit>("txtDJCommand");
  const QColor ink("#FFD84D");
  const auto points = [&] { return PointsOf(Widget<QWidget>("pnlNameInBox").grab().toImage(), ink); };
  form_.lblPlayer1[1].Caption = "I";
  QTest::qWait(30);
  const int few = points();
  EXPECT_GT(few, 0);
  form_.lblPlayer1[1].Caption = "IIIIIIII";
  QTest::qWait(30);
  EXPECT_GT(points(), few * 5) << "a name of eight letters isn't cut";
  form_.txtDJCommand.Text = "B";
  QTest::qWait(30);
  EXPECT_FALSE(Widget<QWidget>("pnlNameInBox").isVisible());
  EXPECT_EQ(box.text(), "B");
}

TEST_F(ConsoleLooks, ATipSaysWhyAButtonCanNotBePressed) {
  AttachHandlers(show_);
  show_.state.GameType = GameMode::ChallengeA;
  form_.btnContinue.Enabled = false;
  auto& button = Widget<QWidget>("btnContinue");
  const QPoint middle = button.rect().center();
  QHelpEvent ask(QEvent::ToolTip, middle, button.mapToGlobal(middle));
  QApplication::sendEvent(&button, &ask);
  EXPECT_EQ(QToolTip::text(), "No game runs: press Start");
  QToolTip::hideText();
  form_.btnContinue.Enabled = true;
  QApplication::sendEvent(&button, &ask);
  EXPECT_EQ(QToolTip::text(), "Show the next question (C)");
  QToolTip::hideText();
}

TEST_F(ConsoleLooks, NoTipWearsTheFrameOfWhatItIsAbout) {
  form_.PlayerBox(2).Picture = "scoreboxred.bmp";
  int styled = 0;
  for (const QWidget* widget : program_.Console().findChildren<QWidget*>()) {
    if (widget->styleSheet().isEmpty()) continue;
    ++styled;
    // What is said without a selector holds for the widget's tip too.
    EXPECT_TRUE(widget->styleSheet().startsWith(QString(widget->metaObject()->className()).section("::", -1) + " {"))
        << widget->objectName().toStdString() << ": " << widget->styleSheet().toStdString();
  }
  EXPECT_GT(styled, 0) << "the square's box wears the turn";
}

TEST_F(ConsoleLooks, F9StartsTheSecondsOnceForEachStroke) {
  int started = 0;
  form_.btnAnswerClock.OnClick = [&] { ++started; };
  form_.btnAnswerClock.Enabled = true;
  QWidget* focus = program_.Console().focusWidget();
  QTest::keyClick(focus != nullptr ? focus : &program_.Console(), Qt::Key_F9);
  EXPECT_EQ(started, 1);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier, QString(), true);
  QApplication::sendEvent(focus != nullptr ? focus : &program_.Console(), &held);
  EXPECT_EQ(started, 1) << "a key that is held repeats nothing";
  form_.btnAnswerClock.Enabled = false;
  QTest::keyClick(focus != nullptr ? focus : &program_.Console(), Qt::Key_F9);
  EXPECT_EQ(started, 1);
}

}  // namespace
}  // namespace pawnfield
