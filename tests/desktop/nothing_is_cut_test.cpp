// Computed from the widgets of every form: no text is cut or too small, no two controls overlap, and nothing reaches
// over its frame. The console holds at every size from the smallest screen to the largest.

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_arrangement.h"
#include "desktop/windows/key_button.h"
#include "desktop/windows/line_views.h"
#include "desktop/windows/model_widgets.h"
#include "forms/main_form.h"
#include "forms/show_check_form.h"
#include "places.h"
#include "program/check_rows.h"

namespace pawnfield {
namespace {

using Names = std::vector<std::string>;

// The toolkit's own parts inside a widget, and what stands on a canvas or over a button by intent.
bool IsInnerPart(const QWidget& widget) {
  const QString name = widget.objectName();
  if (name.startsWith("qt_") || name == "shpStart" || widget.isWindow()) return true;
  for (const QWidget* parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
    for (const char* kind : {"QComboBox", "QAbstractItemView", "QTabBar", "QAbstractScrollArea", "QLineEdit",
                             "QMenuBar", "QAbstractButton", "QLabel", "QProgressBar"}) {
      if (parent->inherits(kind) && name != "pnlChips" && !name.startsWith("chp")) return true;
    }
  }
  return false;
}

std::string Called(const QWidget& widget) {
  const QString name = widget.objectName();
  return (name.isEmpty() ? widget.metaObject()->className() : name).toStdString();
}

std::vector<QWidget*> SeenWidgets(const QWidget& window) {
  std::vector<QWidget*> seen;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->isVisible() && !IsInnerPart(*widget)) seen.push_back(widget);
  }
  return seen;
}

// A label that shrinks its text has to hold it in the smallest letters there are.
bool LabelFits(const QLabel& label) {
  if (label.text().isEmpty() || qobject_cast<const ElidedLabel*>(&label) != nullptr) return true;
  QFont font = label.font();
  if (qobject_cast<const ModelLabel*>(&label) != nullptr) font.setPixelSize(kSmallestPixels);
  const int flags = static_cast<int>(label.alignment()) | (label.wordWrap() ? Qt::TextWordWrap : 0);
  const QRect room = label.contentsRect();
  const QRect needed = QFontMetrics(font).boundingRect(room, flags, label.text());
  return needed.width() <= room.width() && needed.height() <= room.height() + 2;
}

bool TextFits(QWidget& widget) {
  if (auto* key = qobject_cast<KeyButton*>(&widget)) return key->NeededWidth() <= key->width();
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    const int text = button->fontMetrics().boundingRect(QRect(), Qt::TextShowMnemonic, button->text()).width();
    const int mark = button->inherits("QRadioButton") || button->inherits("QCheckBox") ? 20 : 0;
    return text + mark <= button->width();
  }
  if (auto* list = qobject_cast<QComboBox*>(&widget)) {
    return list->fontMetrics().horizontalAdvance(list->currentText()) <= list->width() - 26;
  }
  auto* label = qobject_cast<QLabel*>(&widget);
  return label == nullptr || LabelFits(*label);
}

bool HasText(const QWidget& widget) {
  return widget.inherits("QAbstractButton") || widget.inherits("QLabel") || widget.inherits("QComboBox") ||
         widget.inherits("QLineEdit");
}

Names Overlapping(const std::vector<QWidget*>& seen) {
  Names found;
  for (std::size_t a = 0; a < seen.size(); ++a) {
    for (std::size_t b = a + 1; b < seen.size(); ++b) {
      if (seen[a]->parentWidget() != seen[b]->parentWidget()) continue;
      // What stands on the board is painted over it by intent.
      if (seen[a]->parentWidget()->objectName().endsWith("Canvas")) continue;
      if (seen[a]->geometry().intersects(seen[b]->geometry()))
        found.push_back(Called(*seen[a]) + "/" + Called(*seen[b]));
    }
  }
  return found;
}

Names Faults(const QWidget& window) {
  const std::vector<QWidget*> seen = SeenWidgets(window);
  Names found = Overlapping(seen);
  for (QWidget* widget : seen) {
    if (!widget->parentWidget()->rect().contains(widget->geometry()))
      found.push_back(Called(*widget) + " over its frame");
    if (!TextFits(*widget)) found.push_back(Called(*widget) + " cut");
    if (HasText(*widget) && QFontInfo(widget->font()).pixelSize() < kSmallestPixels) {
      found.push_back(Called(*widget) + " too small");
    }
  }
  return found;
}

class NothingIsCut : public ProgramTest {
 protected:
  // Everything that the console can have to tell, at its longest.
  void FillConsole() {
    const std::string longest = "THE MAGNIFICENT SEVENTH GRADERS";
    for (int player = 1; player <= kPlayers; ++player) {
      form_.lblPlayer1[PlayerIndex(player)].Caption = longest;
      form_.Score(player).Caption = form_.ScoreCopy(player).Caption = "-999999";
      form_.btnBuzzer[PlayerIndex(player)].Enabled = true;
    }
    form_.lblLineWho.Caption = longest;
    form_.lblLineExpected.Caption = "chooses a square: click it, or type letter and digit";
    form_.lblLineCount.Caption = "Question 100 of 100";
    form_.lblLineClock.Caption = "TIME IS UP";
    form_.lblLineContinue.Caption = "Continue in 5 s";
    form_.lblLineSet.Caption = "General Knowledge for the Seventh Grade";
    form_.lblLineNext.Caption = std::string("Next: ") + std::string(200, 'w');
    form_.lblInPlay.Caption = "LOCKED IN PLAY";
    form_.lblUndoNote.Caption = longest + " takes C5, +350";
    form_.lblNowPlaying.Caption = "NOW: The march of the gladiators.mp3 12:34";
    form_.lblRingInOrder.Caption = "QUESTION 100";
    form_.lstRingInOrder.ListItems = {{"1", longest, "first", "", "2"},
                                      {"2", longest,
                                       "+12 ms (\xB1"
                                       "15), too close to call",
                                       "amber", "1"},
                                      {"3", longest,
                                       "+310 ms (\xB1"
                                       "15)",
                                       "", "3"}};
    for (Control* shown :
         {static_cast<Control*>(&form_.lblRingInOrder), static_cast<Control*>(&form_.lstRingInOrder),
          static_cast<Control*>(&form_.chpRecord), static_cast<Control*>(&form_.chpPhones),
          static_cast<Control*>(&form_.btnQuestionCorrect), static_cast<Control*>(&form_.lblSelectPlayer),
          static_cast<Control*>(&form_.btnQuestionIncorrect)}) {
      shown->Visible = true;
    }
    form_.btnAnswerClock.Enabled = true;
    form_.chpAudience.Caption = "AUDIENCE 3840x2160";
    form_.chpBuzzers.Caption = "BUZZERS WIRELESS";
    form_.chpSound.Caption = "NO SOUND DEVICE";
    form_.chpRecord.Caption = "RECORD";
    form_.chpPhones.Caption = "PHONES 3 of 3";
    form_.lblStatusBar.Caption = "Nobody has the turn: press Next Player, or let a player ring in.";
  }

  Names At(const QSize& size) {
    program_.Console().resize(size);
    program_.Console().show();
    // Styles and sizes of a window that has just been resized settle within some turns of the message loop.
    (void)QTest::qWaitFor([this] { return Faults(program_.Console()).empty(); }, 4000);
    EXPECT_EQ(program_.Console().size(), size);
    return Faults(program_.Console());
  }
};

TEST_F(NothingIsCut, OfTheConsoleAtAnySize) {
  // The smallest room of a desktop, less the frame that a window has there.
  for (const QSize size :
       {QSize(1280, 648), QSize(1280, 680), QSize(1366, 768), QSize(1600, 900), QSize(1920, 1080), QSize(3840, 2160)}) {
    for (const bool filled : {false, true}) {
      SCOPED_TRACE(std::to_string(size.width()) + "x" + std::to_string(size.height()) + (filled ? " filled" : ""));
      if (filled) FillConsole();
      EXPECT_EQ(At(size), Names{});
    }
  }
}

TEST_F(NothingIsCut, OfTheConsoleWhileItShowsTheLetters) {
  form_.lstCues.ListItems = {{"A", "applause.mp3", "sound", "0:12", "0:07"}};
  form_.fraCues.Visible = true;
  for (const QSize size : {QSize(1280, 648), QSize(1920, 1080)}) EXPECT_EQ(At(size), Names{});
}

TEST_F(NothingIsCut, OfAnyOtherForm) {
  for (FormWindow* window : program_.Windows()) {
    if (window == &program_.Console() || window == &program_.Audience()) continue;
    // As large as it wants to be, and no larger than the smallest desktop.
    for (const QSize room : {QSize(3840, 2160), QSize(1280, 648)}) {
      SCOPED_TRACE(window->objectName().toStdString() + " in " + std::to_string(room.width()));
      window->resize(window->sizeHint().boundedTo(room));
      window->show();
      (void)QTest::qWaitFor([&] { return Faults(*window).empty(); }, 2000);
      EXPECT_TRUE(QRect(QPoint(), room).contains(window->rect())) << window->height();
      EXPECT_EQ(Faults(*window), Names{});
      window->hide();
    }
  }
}

// Boxes, note and findings come up while the window stands, on the smallest desktop and on a large one.
TEST_F(NothingIsCut, OfTheShowCheckWithAllThatItCanTell) {
  ShowCheckForm& check = show_.frmShowCheck;
  FormWindow& window = Window(check);
  const auto tell = [&check](const std::string& light, const std::string& sentence, bool more) {
    for (std::size_t i = 0; i < kCheckRows; ++i) {
      check.chpLight[i].Caption = light;
      check.lblSentence[i].Caption = sentence;
      check.btnMend[i].Visible = check.btnTry[i].Visible = more;
      check.btnMend[i].Caption = check.btnTry[i].Caption = std::string("Press each once");
    }
    for (std::size_t i = 0; i < kPlayers; ++i) {
      check.lblPress[i].Visible = more;
      check.lblPress[i].Caption = std::string("1 PLAYER 1: ok, the phone of seat 1, 12 ms");
    }
    check.lblPressNote.Visible = check.lstFindings.Visible = more;
    check.lblPressNote.Caption = std::string("1 PLAYER 1's press came twice within 0 ms: by pad 101 and by pad 101.");
  };
  for (const QSize room : {QSize(1280, 648), QSize(3840, 2160)}) {
    tell("? ...", "", false);
    window.resize(window.sizeHint().boundedTo(room));
    window.show();
    tell(SignOf(ChipState::Red) + " NOT READY",
         "No sound device: nothing is heard. Plug it in or start the sound server, sounds come back by themselves "
         "within "
         "a second or two.",
         true);
    (void)QTest::qWaitFor([&] { return Faults(window).empty(); }, 2000);
    EXPECT_EQ(Faults(window), Names{});
    EXPECT_LE(window.minimumSizeHint().height(), 648);
    window.hide();
  }
}

TEST_F(NothingIsCut, AndTheBoardKeepsTheMiddleOfTheConsole) {
  for (const QSize size : {QSize(1280, 648), QSize(1366, 768), QSize(1920, 1080), QSize(3840, 2160)}) {
    EXPECT_EQ(At(size), Names{});
    const QSize board = program_.Console().Board().size();
    EXPECT_GE(board.width(), size.width() / 2) << size.width();
    EXPECT_GE(board.height(), size.height() * 45 / 100) << size.height();
  }
}

TEST(ConsoleArrangement, GrowsColumnsAndTypeWithTheWindow) {
  const std::tuple<QSize, double> cases[] = {
      {QSize(1280, 680), 1},     {QSize(1599, 1200), 1},   {QSize(1760, 990), 1.1},  {QSize(1920, 1080), 1.25},
      {QSize(1920, 1000), 1.15}, {QSize(2560, 1440), 1.5}, {QSize(3840, 2160), 1.5}, {QSize(2560, 800), 1.05}};
  for (const auto& [size, growth] : cases) {
    EXPECT_NEAR(ConsoleArrangement::GrowthIn(size), growth, 0.051) << size.width() << 'x' << size.height();
  }
}

}  // namespace
}  // namespace pawnfield
