// Three phones, the host's page and the scores in a real browser, on the real program in its windows: a game from the
// PIN to the winner, with a network that is lost and a program that dies amid it. Skips where no browser is installed.
// With PAWNFIELD_PICTURES set to a folder, each page is saved there in each state and size.
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

#include "desktop/files/windows_1252.h"
#include "desktop/windows/form_window.h"
#include "forms/main_form.h"
#include "forms/pages_form.h"
#include "places.h"
#include "show/page_state.h"
#include "show/phase.h"
#include "show_suite.h"

namespace pawnfield {
namespace {

class PhonesInBrowser : public ShowSuite {
 protected:
  void SetUp() override {
    ShowSuite::SetUp();
    const bool driven = !QStandardPaths::findExecutable("chromedriver").isEmpty() &&
                        QProcess::execute(kPython, {"-c", "import selenium"}) == 0;
    if (!driven) GTEST_SKIP() << "no browser to drive";
    browser_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    browser_.start(kPython, {PAWNFIELD_PAGES_IN_BROWSER});
    ASSERT_EQ(Answer(), "ready");
  }
  void TearDown() override {
    browser_.closeWriteChannel();
    if (browser_.state() != QProcess::NotRunning && !browser_.waitForFinished(10000)) browser_.kill();
  }

  // The program goes on while the browser works.
  QString Answer(int ms = kSlowMachineMs) {
    Wait([this] { return browser_.canReadLine() || browser_.state() == QProcess::NotRunning; }, ms);
    return QString::fromUtf8(browser_.readLine()).trimmed();
  }
  void Do(const QString& command) {
    browser_.write((command + "\n").toUtf8());
    EXPECT_EQ(Answer(), "done") << command.toStdString();
  }
  QJsonObject Look(const QString& page) {
    browser_.write(("look " + page + "\n").toUtf8());
    return QJsonDocument::fromJson(Answer().toUtf8()).object();
  }
  // The page shows that, within two minutes.
  bool Shows(const QString& page, const QString& what, const QString& text) {
    QString shown;
    for (int i = 0; i < 600; ++i) {
      shown = Look(page)[what].toVariant().toString();
      if (shown.contains(text)) return true;
      driver_->Pause(200);
    }
    ADD_FAILURE() << page.toStdString() << " shows as its " << what.toStdString() << " \"" << shown.toStdString()
                  << "\"";
    return false;
  }
  // On small and large phones and on a tablet, upright and on its side, nothing is cut.
  void Picture(const QString& page, const QString& name) {
    const QString folder = qEnvironmentVariable("PAWNFIELD_PICTURES");
    for (const char* size : {"360 640", "390 844", "820 1180", "640 360", "1180 820"}) {
      Do("resize " + page + " " + size);
      const QJsonObject look = Look(page);
      EXPECT_FALSE(look["wide"].toBool()) << name.toStdString() << " is wider than " << size;
      EXPECT_EQ(look["cut"].toString().toStdString(), "") << name.toStdString() << " at " << size;
      if (!folder.isEmpty())
        Do("picture " + page + " " + folder + "/" + name + "-" + QString(size).replace(' ', 'x') + ".png");
    }
  }
  void PictureOfScores(const QString& name) {
    const QString folder = qEnvironmentVariable("PAWNFIELD_PICTURES");
    if (!folder.isEmpty()) Do("picture scores " + folder + "/" + name + ".png");
  }
  static QString Text(const Label& label) { return Unescape(label.Caption); }
  static PagesForm& Form() { return TheShow().frmPages; }
  static int Turn() { return Phase(TheShow()).Player; }

  void Join(const QString& phone, int seat, int width, int height) {
    Do(QString("open %1 %2 %3 %4").arg(phone, Text(Form().lblPhonesAddress)).arg(width).arg(height));
    if (seat == 1) {
      Picture(phone, "phone-pin");
      Do("pin " + phone + (Text(Form().lblPin) == "0000" ? " 0001" : " 0000"));
      EXPECT_TRUE(Shows(phone, "note", "That PIN is wrong."));
      Picture(phone, "phone-pin-wrong");
    }
    Do("pin " + phone + " " + Text(Form().lblPin));
    EXPECT_TRUE(Shows(phone, "seats", "true"));
    if (seat == 2) Picture(phone, "phone-seats");
    Do("seat " + phone + " " + QString::number(seat));
    EXPECT_TRUE(Shows(phone, "name", Text(Main().lblPlayer1[PlayerIndex(seat)])));
  }
  static bool Take(int row, int column) {
    return Wait([] { return IsPhase(TheShow(), PhaseKind::Claiming); }) && driver_->PressSquare(row, column) &&
           Wait([] { return !Main().tmrAnswer.Enabled.Get(); });
  }

  // The program ends as by a power cut, and the next one offers the show, which the driver takes.
  static bool DieAndComeBack() {
    delete driver_;
    driver_ = new ShowDriver(folder_->path());
    return driver_->Start() && Wait([] { return TheShow().pages->On; }, kSlowMachineMs);
  }
  // The console's RING-IN ORDER, row by row, as the host's page has it.
  static QString OrderAtConsole() {
    QStringList rows;
    for (const ListView::Row& row : Main().lstRingInOrder.ListItems.Get()) {
      const QString when = row[0] == "1" ? QString() : " " + QString::fromLatin1(row[2]);
      rows.append(Unescape(row[0] + " " + row[1]) + when);
    }
    return rows.join("   ");
  }

  // "Hannah", "What is the capital of Greece?" and the same in Greek.
  static inline const QString kHannah = QString::fromUtf8("\u05D7\u05E0\u05D4");
  static inline const QString kHebrewQuestion =
      QString::fromUtf8("\u05DE\u05D4 \u05D1\u05D9\u05E8\u05EA \u05D9\u05D5\u05D5\u05DF?");
  static inline const QString kGreekQuestion = QString::fromUtf8(
      "\u03A0\u03BF\u03B9\u03B1 \u03B5\u03AF\u03BD\u03B1\u03B9 \u03B7 "
      "\u03C0\u03C1\u03C9\u03C4\u03B5\u03CD\u03BF\u03C5\u03C3\u03B1;");

  // The system's own, for which the driver's library is installed.
  static constexpr const char* kPython = "/usr/bin/python3";
  QProcess browser_;
};

TEST_F(PhonesInBrowser, PlayAGameOnRealWindows) {
  // A name and a set with markup in them stay the texts they are, and such of other alphabets go their own way.
  const std::string names[] = {"ANNA", "BEN <i>", Escape(kHannah)};
  ASSERT_TRUE(Press({"optGameType_4"}));
  ASSERT_TRUE(Wait([] { return Main().optGridControl[0].IsShown(); }));
  ASSERT_TRUE(Press({"optGridControl_0"}));
  ASSERT_TRUE(driver_->Choose("cboAutoContinue", "User Advances"));
  ASSERT_TRUE(driver_->Choose("cboList", "General Knowledge 1"));
  ASSERT_TRUE(Wait([] { return Main().btnStart.Enabled.Get(); }));
  // The choice of a type and of a set gives the players their numbers again.
  for (std::size_t i = 0; i < kPlayers; ++i) Main().lblPlayer1[i].Caption = names[i];
  TheShow().GameSet[0].QuestionText =
      "Which <b>planet</b> is the largest? <img src=x onerror=\"document.title='taken'\">";
  TheShow().GameSet[0].AnswerText = "<script>document.title='taken'</script> Jupiter";
  TheShow().GameSet[1].QuestionText = Escape(kHebrewQuestion);
  TheShow().GameSet[1].AnswerText = Escape(kHannah);
  TheShow().GameSet[2].QuestionText = Escape(kGreekQuestion);
  Main().mnuFilePages.Click();
  Form().cboAddress.Select(
      static_cast<int>(std::find(Form().cboAddress.List->begin(), Form().cboAddress.List->end(), "127.0.0.1") -
                       Form().cboAddress.List->begin()));
  Form().btnSwitch.Click();
  ASSERT_TRUE(TheShow().pages->On) << Form().lblPagesStatus.Caption.Get();

  Join("anna", 1, 360, 640);
  Join("ben", 2, 390, 844);
  Join("chloe", 3, 640, 360);
  Do("open host " + Text(Form().lblHostAddress) + " 1024 768");
  Do("pin host " + Text(Form().lblHostPin));
  Do("open scores " + Text(Form().lblScoresAddress) + " 1920 1080");
  EXPECT_TRUE(Shows("ben", "word", "WAIT"));
  Picture("ben", "phone-wait");
  Picture("host", "host-before-the-game");
  ASSERT_TRUE(Press({"btnStart"}));
  for (const char* phone : {"anna", "ben", "chloe"}) EXPECT_TRUE(Shows(phone, "word", "PRESS"));
  for (const char* phone : {"anna", "ben", "chloe"}) Picture(phone, QString("phone-ready-") + phone);
  driver_->Pause(3000);

  // The others are locked out, and learn by how much; the console, the host and the phones say the same.
  Do("press ben");
  ASSERT_TRUE(Wait([] { return Turn() == 2; }));
  Do("press anna");
  Do("press chloe");
  EXPECT_TRUE(Shows("ben", "word", "YOU"));
  EXPECT_TRUE(Shows("chloe", "line", "has the floor; you were"));
  EXPECT_EQ(Turn(), 2);
  EXPECT_EQ(Main().lstRingInOrder.ListItems->size(), kPlayers);
  EXPECT_TRUE(Shows("host", "order", OrderAtConsole()));
  EXPECT_TRUE(Shows("anna", "word", "BEN"));
  EXPECT_TRUE(Shows("anna", "line", "has the floor; you were"));
  EXPECT_TRUE(Shows("host", "floor", "BEN <i> answers"));
  EXPECT_TRUE(Shows("host", "order", "2 ANNA +"));
  EXPECT_TRUE(Shows("host", "order", "3 " + kHannah + " +"));
  EXPECT_TRUE(Look("host")["inTurn"].toBool()) << "a name from right to left turns its margin round";
  EXPECT_TRUE(Shows("host", "next", kHebrewQuestion));
  EXPECT_TRUE(Shows("host", "answer", "<script>document.title='taken'</script> Jupiter"));
  EXPECT_TRUE(Shows("host", "question", "<b>planet</b>"));
  for (const char* page : {"host", "anna", "ben", "scores"}) {
    EXPECT_EQ(Look(page)["images"].toInt(), 0) << page;
    EXPECT_TRUE(Look(page)["title"].toString().startsWith("Pawnfield")) << page;
  }
  Picture("ben", "phone-floor");
  Picture("anna", "phone-other");
  Picture("host", "host");
  PictureOfScores("scores");
  if (const QString folder = qEnvironmentVariable("PAWNFIELD_PICTURES"); !folder.isEmpty()) {
    driver_->Form("frmPages")->grab().save(folder + "/pages.png");
  }
  ASSERT_TRUE(Press({"btnQuestionIncorrect"}));
  EXPECT_TRUE(Shows("anna", "word", "PRESS"));
  Do("press anna");
  ASSERT_TRUE(Wait([] { return Turn() == 1; }));
  ASSERT_TRUE(Press({"btnQuestionCorrect"}));
  EXPECT_TRUE(Shows("anna", "line", "take a square"));
  Picture("anna", "phone-claim");
  ASSERT_TRUE(Take(0, 0));
  EXPECT_TRUE(Shows("scores", "players", "ANNA50"));

  // A locked seat, and its lock taken off again.
  Form().btnLockSeat[2].Click();
  EXPECT_TRUE(Shows("chloe", "word", "LOCKED"));
  Picture("chloe", "phone-locked");
  Form().btnLockSeat[2].Click();

  // The network is gone for a while, and each phone finds its seat.
  const PagesPlace place = TheShow().pages->Place;
  TheShow().platform.webPages.Close();
  for (const char* phone : {"anna", "ben", "chloe"}) EXPECT_TRUE(Shows(phone, "word", "LOST"));
  Picture("ben", "phone-lost");
  Picture("host", "host-lost");
  TheShow().pages->Pages.clear();
  ASSERT_EQ(TheShow().platform.webPages.Open(place), place.Port);
  for (const char* phone : {"anna", "ben", "chloe"}) EXPECT_TRUE(Shows(phone, "word", "WAIT"));

  EXPECT_GT(Look("ben")["buzzes"].toInt(), 0) << "a phone buzzes for a press and for the floor";
  // By touch, by the space bar and by a clicker's key.
  const char* const presses[] = {"press anna", "key ben SPACE", "key chloe PAGE_DOWN"};
  const int squares[] = {1, 2, 3, 4, 5, 6, 7, 8};
  const char* const phones[] = {"anna", "ben", "chloe"};
  for (const int square : squares) {
    ASSERT_TRUE(Press({"btnContinue"}));
    const int player = square % 3;
    EXPECT_TRUE(Shows(phones[player], "word", "PRESS"));
    if (square <= 2) {
      EXPECT_TRUE(Shows("host", "question", square == 1 ? kHebrewQuestion : kGreekQuestion));
      Picture("host", square == 1 ? "host-hebrew" : "host-greek");
      PictureOfScores("scores-hebrew");
    }
    if (square == 4) {
      const std::string pin = TheShow().pages->Pin, board = Main().Score(1).Caption;
      ASSERT_TRUE(DieAndComeBack());
      EXPECT_TRUE(driver_->BoxTexts().join('\n').contains("A show was interrupted at"));
      EXPECT_EQ(TheShow().pages->Pin, pin);
      EXPECT_EQ(Main().Score(1).Caption.Get(), board);
      // Each is in its seat again, by itself, while the room sees standby.
      for (const char* phone : phones) EXPECT_TRUE(Shows(phone, "word", "WAIT"));
      EXPECT_TRUE(Shows("ben", "name", "BEN <i>"));
      EXPECT_TRUE(Shows("host", "answer", Unescape(TheShow().GameSet[4].AnswerText).trimmed()));
      ASSERT_TRUE(Press({"btnPlayMode"}));
      EXPECT_TRUE(Shows(phones[player], "word", "PRESS"));
    }
    Do(presses[player]);
    ASSERT_TRUE(Wait([player] { return Turn() == player + 1; })) << "square " << square;
    ASSERT_TRUE(Press({"btnQuestionCorrect"}));
    ASSERT_TRUE(Take(square / 3, square % 3));
    if (square < 8) {
      ASSERT_TRUE(Wait([] { return Main().btnContinue.Enabled.Get(); }));
    }
  }
  ASSERT_TRUE(Wait([] { return IsPhase(TheShow(), PhaseKind::Winner); }));
  EXPECT_TRUE(Shows("scores", "winner", "Game Over!"));
  PictureOfScores("scores-winner");
  EXPECT_TRUE(Shows("chloe", "word", "GAME OVER"));
  Picture("chloe", "phone-over");
  Picture("host", "host-winner");
  Form().btnSwitch.Click();
  Form().btnClose.Click();
}

}  // namespace
}  // namespace pawnfield
