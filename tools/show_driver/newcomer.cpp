#include "newcomer.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <QTreeWidget>

#include "desktop/windows/form_window.h"
#include "editor_driver.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/show_check_form.h"
#include "show/phase.h"
#include "show/show_check_state.h"

namespace pawnfield {

namespace {

// Somebody who has never seen the window: he looks for what to press, and he types with two fingers and a look at the
// keys. Reading aloud, and reading the manual's own step.
constexpr double kPressSeconds = 6, kLetterSeconds = 0.5, kWordsPerMinute = 130;

// Ten rows: text, two pictures and a sound, as the manual's table begins.
struct Row {
  const char* Question;
  const char* Answer;
};
constexpr Row kRows[] = {{"Which planet has the shortest day?", "Jupiter"},
                         {"How many strings has a violin?", "Four"},
                         {"dog.jpg", "A dachshund"},
                         {"harbour.jpg", "Hamburg"},
                         {"anthem.mp3", "The anthem of France"},
                         {"What is the capital of Australia?", "Canberra"},
                         {"Who painted the Mona Lisa?", "Leonardo da Vinci"},
                         {"Which metal is liquid at room temperature?", "Mercury"},
                         {"How many players has a football team?", "Eleven"},
                         {"In which year did man first walk on the moon?", "1969"}};

class Newcomer {
 public:
  Newcomer(ShowDriver& driver, const QString& folder) : driver_(driver), editor_(driver), folder_(folder) {}

  bool Play() {
    QTextStream(stdout) << "step                                program  presses  letters  words  newcomer\n";
    Step("2. Write ten questions in a sheet", 90, [this] { return WriteSheet(); });
    Step("3. Bring the sheet into a set", 110, [this] { return MakeSet(); });
    Step("4. Choose what is played", 45, [this] { return ChooseGame(); });
    Step("5. Check", 70, [this] { return Check(); });
    Step("6. The first game", 90, [this] { return PlayGame(); });
    QTextStream(stdout) << "all steps but the installation: " << QString::number(minutes_, 'f', 1) << " minutes\n";
    return works_;
  }

 private:
  Show& TheShow() { return driver_.TheShow(); }
  MainForm& Form() { return TheShow().frmMain; }
  QString Sets() const { return driver_.AppFolder() + "/Trivia Sets/"; }
  QString Sheet() const { return QFileInfo(folder_).absoluteFilePath() + "/Friday.csv"; }

  // The words are those of the manual that are read before it is done.
  void Step(const char* name, int words, const std::function<bool()>& work) {
    presses_ = letters_ = 0;
    words_ = words;
    QElapsedTimer elapsed;
    elapsed.start();
    const bool worked = work();
    const double program = static_cast<double>(elapsed.elapsed()) / 1000;
    const double minutes =
        (program + presses_ * kPressSeconds + letters_ * kLetterSeconds) / 60 + words_ / kWordsPerMinute;
    minutes_ += minutes;
    works_ = works_ && worked;
    QTextStream(stdout) << QString("%1 %2 s %3 %4 %5 %6 min%7\n")
                               .arg(name, -34)
                               .arg(program, 6, 'f', 1)
                               .arg(presses_, 8)
                               .arg(letters_, 8)
                               .arg(words_, 6)
                               .arg(minutes, 8, 'f', 1)
                               .arg(worked ? "" : "  DID NOT WORK");
  }
  bool Press(const QString& widget) {
    ++presses_;
    return driver_.Press(widget) || Fails("press " + widget);
  }
  bool Fails(const QString& what) {
    QTextStream(stderr) << "did not work: " << what << '\n';
    return false;
  }
  bool Comes(const QString& what, const std::function<bool()>& condition) {
    return driver_.WaitFor(condition) || Fails(what);
  }

  // The sheet is typed; each cell ends with a key, and saving it takes a few presses.
  bool WriteSheet() {
    QFile sheet(Sheet());
    if (!sheet.open(QIODevice::WriteOnly)) return Fails("make the sheet");
    sheet.write("Question,Answer\n");
    letters_ += 17;
    for (const Row& row : kRows) {
      sheet.write(QByteArray(row.Question) + ',' + row.Answer + '\n');
      letters_ += static_cast<int>(qstrlen(row.Question) + qstrlen(row.Answer)) + 2;
    }
    presses_ += 8 + 3 * 3;
    const std::pair<const char*, const char*> media[] = {
        {"Flag 1.jpg", "dog.jpg"}, {"Flag 2.jpg", "harbour.jpg"}, {"Tune 1.mp3", "anthem.mp3"}};
    bool copied = true;
    for (const auto& [from, to] : media)
      copied = QFile::copy(Sets() + "Media/" + from, Sets() + "Media/" + to) && copied;
    return copied;
  }

  bool MakeSet() {
    bool worked = true;
    editor_.WhenShown("frmImport", [&] {
      editor_.TakePicture("frmImport", "newcomer-preview");
      words_ += 60;
      worked = EditorPress("frmImport", "btnTake") && worked;
    });
    presses_ += 2;
    const bool opened = editor_.WithNewSet([&] {
      presses_ += 4;
      worked = editor_.ChooseEntry("mnuImport", Sheet()) && worked;
      for (int i = 1; i < 10; ++i) worked = EditorPress("frmEditor", "btnNext") && worked;
      editor_.TakePicture("frmEditor", "newcomer-editor");
      words_ += 70;
      presses_ += 3;
      letters_ += 6;
      worked = editor_.PressAndChoose("frmEditor", "btnSave", Sets() + "Friday") && worked;
      presses_ += 1;
    });
    return (opened && worked && QFile::exists(Sets() + "Friday.txt")) || Fails("make the set");
  }
  bool EditorPress(const QString& form, const QString& widget) {
    ++presses_;
    return editor_.Press(form, widget) || Fails("press " + widget);
  }

  bool ChooseGame() {
    bool worked = true;
    for (const char* option : {"optGameType_2", "optPlayers_0", "optGridControl_0", "optGameEnds_0"})
      worked = Press(option) && worked;
    presses_ += 2;
    worked = (driver_.Choose("cboList", "Friday") || Fails("choose the set")) && worked;
    worked = Comes("the set is ready", [this] { return Form().btnStart.Enabled && TheShow().mediaCheck.Left == 0; }) &&
             worked;
    driver_.TakePictures("newcomer-set-chosen");
    return worked && TheShow().NumGameQuestions == 10;
  }

  bool Try(CheckRow row) {
    ++presses_;
    auto* button = driver_.Form("frmShowCheck")->findChild<QWidget*>(QString("btnTry_%1").arg(static_cast<int>(row)));
    if (button == nullptr || !button->isVisible()) return Fails("a button of the show check");
    QTest::mouseClick(button, Qt::LeftButton);
    return true;
  }
  bool Check() {
    constexpr int kTestPictureMs = 15000;
    ShowCheckForm& form = TheShow().frmShowCheck;
    presses_ += 2;
    Form().mnuFileShowCheck.Click();
    bool worked = Comes("the show check", [&form] { return form.Visible.Get(); });
    worked = Try(CheckRow::Audience) && worked;
    driver_.Pause(500);
    driver_.TakePictures("newcomer-test-picture");
    worked = driver_.WaitFor([this] { return !TheShow().frmFSMain.picTest.Visible.Get(); }, kTestPictureMs) && worked;
    worked = Try(CheckRow::Buzzers) && worked;
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_2}) {
      ++presses_;
      QTest::keyClick(driver_.Form("frmShowCheck")->focusWidget(), key);
    }
    worked = Comes("all have pressed", [this] { return TheShow().check->Presses.Asked == 0; }) && worked;
    // A machine without sound says so in its row.
    if (TheShow().SoundFound) {
      worked = Try(CheckRow::Sound) && worked;
      worked = Comes("all five were played", [this] { return TheShow().check->SoundsPlayed; }) && worked;
    }
    words_ += 120;
    driver_.TakePicture(*driver_.Form("frmShowCheck"), "newcomer-show-check");
    const ChipState set = ShowCheckForm::Of(form.chpLight, CheckRow::Set).State;
    if (set == ChipState::Red)
      worked = Fails(QString::fromStdString(ShowCheckForm::Of(form.lblSentence, CheckRow::Set).Caption));
    ++presses_;
    form.btnClose.Click();
    return worked;
  }

  bool PlayGame() {
    if (!Press("btnStart")) return false;
    const auto asked = [this] { return Form().btnQuestionCorrect.Visible && Form().btnQuestionCorrect.Enabled; };
    const auto won = [this] { return Form().picWinner.Visible.Get(); };
    // One player takes the diagonal, and the other one answers wrongly.
    for (int turn = 0; turn < 10 && !won(); ++turn) {
      if (!Comes("a question", [&] { return asked() || won() || Form().btnContinue.Enabled; })) return false;
      if (!asked() && !won() && !Press("btnContinue")) return false;
      if (!Comes("a question", [&] { return asked() || won(); })) return false;
      words_ += 25;
      if (won()) break;
      const bool right = Phase(TheShow()).Player == 1;
      if (turn == 0) {
        driver_.TakePictures("newcomer-question");
        // A slip of the hand, taken back.
        if (!Press("btnQuestionIncorrect")) return false;
        presses_ += 1;
        Form().btnUndo.Click();
        if (!Comes("the question again", asked)) return false;
      }
      if (!Press(right ? "btnQuestionCorrect" : "btnQuestionIncorrect")) return false;
      if (!right) continue;
      if (!Comes("a square to take", [&] { return IsPhase(TheShow(), PhaseKind::Claiming) || won(); })) return false;
      ++presses_;
      if (!Comes("take the square", [&] { return won() || driver_.PressSquare(squares_, squares_); })) return false;
      driver_.Pause(1500);
      if (squares_++ == 0) driver_.TakePictures("newcomer-square");
    }
    const bool ended = Comes("a winner", won);
    driver_.TakePictures("newcomer-winner");
    return ended && squares_ == 3;
  }

  ShowDriver& driver_;
  EditorDriver editor_;
  QString folder_;
  int presses_ = 0, letters_ = 0, words_ = 0, squares_ = 0;
  double minutes_ = 0;
  bool works_ = true;
};

}  // namespace

bool PlayNewcomersHour(ShowDriver& driver, const QString& folder) { return Newcomer(driver, folder).Play(); }

}  // namespace pawnfield
