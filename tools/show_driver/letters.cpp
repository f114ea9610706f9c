#include "letters.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QTextStream>
#include <QTimer>
#include <QTreeWidget>

#include "desktop/files/windows_1252.h"
#include "desktop/windows/console_window.h"
#include "desktop/windows/form_window.h"
#include "editor_driver.h"
#include "forms/main_form.h"
#include "forms/results_form.h"
#include "presentation/both_screens.h"
#include "record/ring_in_order.h"
#include "show/show_record.h"

namespace pawnfield {

namespace {

// Ends in a sign, begins with a number, holds another alphabet, takes several lines; and Greek.
constexpr const char16_t* kRows[][2] = {
    {u"\u05DE\u05D4 \u05D4\u05D1\u05D9\u05E8\u05D4 \u05E9\u05DC \u05E6\u05E8\u05E4\u05EA?",
     u"\u05E4\u05E8\u05D9\u05D6!"},
    {u"3 + 4 \u05D4\u05DD \u05DB\u05DE\u05D4?", u"7"},
    {u"\u05DE\u05D9 \u05DB\u05EA\u05D1 \u05D0\u05EA Hamlet (1603)?", u"William Shakespeare"},
    {u"\u05D0\u05D9\u05D6\u05D4 \u05DB\u05D5\u05DB\u05D1 \u05DC\u05DB\u05EA \u05DE\u05E1\u05EA\u05D5\u05D1\u05D1 "
     u"\u05D4\u05DB\u05D9 \u05DE\u05D4\u05E8 \u05E1\u05D1\u05D9\u05D1 \u05E2\u05E6\u05DE\u05D5, "
     u"\u05D5\u05DB\u05DE\u05D4 \u05E9\u05E2\u05D5\u05EA?",
     u"\u05E6\u05D3\u05E7, 9.9 \u05E9\u05E2\u05D5\u05EA"},
    {u"\u03A0\u03BF\u03B9\u03B1 \u03B5\u03AF\u03BD\u03B1\u03B9 \u03B7 \u03C0\u03CC\u03BB\u03B7;",
     u"\u0391\u03B8\u03AE\u03BD\u03B1"}};
constexpr int kTimesOver = 6;

class Letters {
 public:
  Letters(ShowDriver& driver, const QString& folder)
      : driver_(driver), editor_(driver), folder_(QFileInfo(folder).absoluteFilePath()) {}

  bool Run() {
    Do("make the set", MakeSet());
    Do("play it", Play());
    Do("results", Results());
    return works_;
  }

 private:
  void Do(const QString& what, bool done) {
    if (!done) QTextStream(stderr) << "did not work: " << what << '\n';
    works_ = works_ && done;
  }

  QString WriteSheet() {
    QFile sheet(folder_ + "/letters.csv");
    Do("make a sheet", sheet.open(QIODevice::WriteOnly));
    sheet.write("Question,Answer\n");
    for (int i = 0; i < kTimesOver; ++i) {
      for (const auto& [question, answer] : kRows) {
        const QString row = QString("\"%1\",\"%2\"\n").arg(QString::fromUtf16(question), QString::fromUtf16(answer));
        sheet.write(row.toUtf8());
      }
    }
    return sheet.fileName();
  }

  bool MakeSet() {
    const QString sheet = WriteSheet();
    editor_.WhenShown("frmImport", [this] {
      editor_.TakePicture("frmImport", "letters-preview");
      Do("take the sheet", editor_.Press("frmImport", "btnTake"));
    });
    return editor_.WithNewSet([&] {
      Do("import", editor_.ChooseEntry("mnuImport", sheet));
      for (const int row : {0, 1, 3, 4}) {
        auto* list = editor_.Window("frmEditor")->findChild<QTreeWidget*>("lstQuestions");
        list->setCurrentItem(list->topLevelItem(row));
        driver_.Pause(200);
        editor_.TakePicture("frmEditor", "letters-editor");
      }
      const QString set =
          driver_.AppFolder() + QString::fromUtf16(u"/Trivia Sets/\u05D7\u05D9\u05D3\u05D5\u05DF 5.txt");
      Do("save", editor_.PressAndChoose("frmEditor", "btnSave", set));
      PrintTo("set.pdf");
      Do("print", editor_.Press("btnPrint"));
    });
  }

  // Gives the dialog that comes up next the file and accepts it.
  void PrintTo(const QString& name) {
    auto* look = new QTimer(&driver_.Program().Console());
    QObject::connect(look, &QTimer::timeout, look, [look, this, name] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      look->stop();
      look->deleteLater();
      auto* file = dialog->findChild<QLineEdit*>("filename");
      Do("a file to print to", file != nullptr);
      if (file != nullptr) file->setText(folder_ + '/' + name);
      QMetaObject::invokeMethod(dialog, "accept");
    });
    look->start(100);
  }

  bool Play() {
    Show& show = driver_.TheShow();
    MainForm& form = show.frmMain;
    bool worked = driver_.Press("optGameType_4");
    worked = driver_.Choose("cboList", QString::fromUtf16(u"\u05D7\u05D9\u05D3\u05D5\u05DF 5")) && worked;
    worked = driver_.WaitFor([&] { return form.btnStart.Enabled && show.mediaCheck.Left == 0; }) && worked;
    const char16_t* names[] = {u"\u05D3\u05D5\u05D3", u"\u05E8\u05D7\u05DC",
                               u"\u0391\u03BD\u03B4\u03C1\u03AD\u03B1\u03C2"};
    for (int player = 1; player <= 3; ++player)
      SetPlayerName(show, player, Escape(QString::fromUtf16(names[player - 1])));
    form.mnuFileShowCheck.Click();
    driver_.Pause(500);
    driver_.TakePicture(*driver_.Form("frmShowCheck"), "letters-show-check");
    worked = driver_.Press("btnStart") && worked;
    for (int question = 0; question < 5; ++question) worked = PlayQuestion(question) && worked;
    return worked;
  }

  bool PlayQuestion(int question) {
    Show& show = driver_.TheShow();
    MainForm& form = show.frmMain;
    if (!driver_.WaitFor([&] { return form.picQuestion.Visible.Get(); })) return false;
    driver_.Pause(300);
    const std::int64_t now = show.platform.clock.NowUs();
    const int first = 1 + question % 3, second = 1 + (question + 1) % 3;
    AddPress(show, PressOf(show, first, PressWay::Remote, now));
    bool worked = driver_.Press(QString("btnSelectPlayer_%1").arg(first - 1));
    AddPress(show, PressOf(show, second, PressWay::Remote, now + 97000));
    driver_.TakePictures("letters-question");
    if (question == 2) {
      worked = driver_.Press("btnQuestionIncorrect") && worked;
      worked = driver_.Press(QString("btnSelectPlayer_%1").arg(second - 1)) && worked;
    }
    worked = driver_.Press("btnQuestionCorrect") && worked;
    driver_.TakePictures("letters-correct");
    worked = driver_.WaitFor([&] { return !form.picCorrect.Visible; }) && worked;
    worked = driver_.PressSquare(question, (question * 2) % 5) && worked;
    driver_.Pause(1500);
    driver_.TakePictures("letters-claimed");
    if (form.btnContinue.Enabled) driver_.Press("btnContinue");
    return worked;
  }

  bool Results() {
    Show& show = driver_.TheShow();
    driver_.Press("btnEndGame");
    driver_.Pause(500);
    driver_.TakePictures("letters-winner");
    show.platform.records.Flush();
    show.frmMain.mnuFileResults.Click();
    driver_.Pause(500);
    driver_.TakePicture(*driver_.Form("frmResults"), "letters-results");
    PrintTo("results.pdf");
    show.frmResults.btnPrint.Click();
    show.frmResults.btnClose.Click();
    return QFile::exists(folder_ + "/results.pdf") && QFile::exists(folder_ + "/set.pdf");
  }

  ShowDriver& driver_;
  EditorDriver editor_;
  QString folder_;
  bool works_ = true;
};

}  // namespace

bool ShowLetters(ShowDriver& driver, const QString& folder) { return Letters(driver, folder).Run(); }

}  // namespace pawnfield
