// The set editor in its window: what its boxes take and refuse, how a set prints, and a set written, saved, loaded and
// played in the real windows.

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFontDialog>
#include <QFontInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPaintEngine>
#include <QPdfWriter>
#include <QPrinter>
#include <QTest>
#include <QTreeWidget>
#include <functional>
#include <map>

#include "desktop/files/native_path.h"
#include "desktop/system/qt_dialogs.h"
#include "desktop/system/qt_printing.h"
#include "desktop/windows/set_text_edit.h"
#include "editor_driver.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "places.h"
#include "platform/escapes.h"
#include "sets/table_text.h"
#include "show_suite.h"

namespace pawnfield {
namespace {

class SetTextEditTest : public testing::Test {
 protected:
  SetTextEditTest() {
    box_.MaxLength = 10;
    binding_ = MakeSetTextBinding(box_, view_);
    view_.show();
  }
  std::string AfterPaste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    view_.paste();
    return box_.Text;
  }

  Form form_{"frmTest"};
  TextBox box_{form_, "txtTest"};
  SetTextEdit view_;
  std::unique_ptr<Observer> binding_;
};

TEST_F(SetTextEditTest, WhatIsPastedOrTypedKeepsToTheFilesRoomAndOneLine) {
  const std::string alpha = EscapeOf(0x3B1);
  const std::tuple<const char16_t*, std::string, const char16_t*> cases[] = {
      {u"e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301",
       "\xE9\xE9\xE9\xE9\xE9\xE9\xE9\xE9\xE9\xE9", u"Only 10 characters fit here. The rest was left out."},
      {u"a\r\nb\nc", "a b c", u""},
      {u"x\u00a0y\u20ac\u2019", "x\xA0y\x80\x92", u""},
      {u"\u4e2d", EscapeOf(0x4E2D), u""},
      {u"\U0001F600\u05d0", EscapeOf(0x1F600) + EscapeOf(0x5D0), u""},
      // Each of them takes five bytes of the ten.
      {u"\u03b1\u03b1\u03b1", alpha + alpha,
       u"Only 10 characters fit here, and letters of other alphabets count as five. The rest was left out."},
      {u"a\u0007", "", u"U+0007 can't be kept in a set file and was not taken."},
  };
  for (const auto& [pasted, kept, notice] : cases) {
    box_.Text = std::string();
    EXPECT_EQ(AfterPaste(QString::fromUtf16(pasted)), kept);
    if (*notice != 0) {
      EXPECT_EQ(view_.Notice(), QString::fromUtf16(notice));
    }
  }
  box_.Text = std::string();
  QTest::keyClicks(&view_, "0123456789ab");
  EXPECT_EQ(box_.Text.Get(), "0123456789");
  view_.selectAll();
  EXPECT_EQ(AfterPaste("new"), "new");
  QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(0x03b1)));
  QCoreApplication::sendEvent(&view_, &key);
  QTest::keyClick(&view_, Qt::Key_Return);
  EXPECT_EQ(box_.Text.Get(), "new" + alpha);
  // A break that a sheet brought is one in the box, and stays one when something is written behind it.
  box_.Text = "a" + EscapeOf('\r') + EscapeOf('\n') + "b";
  EXPECT_EQ(view_.Content(), "a\nb");
  view_.moveCursor(QTextCursor::End);
  QTest::keyClicks(&view_, "c");
  EXPECT_EQ(box_.Text.Get(), "a" + EscapeOf('\n') + "bc");
}

PrintDocument LongQuestions(int count) {
  PrintDocument document{"Long Questions", {{"Long Questions", " "}}};
  for (int i = 1; i <= count; ++i) {
    const std::string words = QString("long words of question %1 ").arg(i).repeated(10).toStdString().substr(0, 250);
    document.Blocks.push_back({std::to_string(i) + ". " + words, "Answer " + std::to_string(i), " "});
  }
  return document;
}

int PagesOf(const QString& file) {
  QFile pdf(file);
  EXPECT_TRUE(pdf.open(QIODevice::ReadOnly));
  return static_cast<int>(pdf.readAll().count("/Type /Page\n"));
}

TEST(PrintTest, PagesBreakBetweenQuestionsAndCopiesBeginAnew) {
  const QTemporaryDir folder;
  const auto print = [&](const PrintDocument& document, int copies) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(folder.filePath("set.pdf"));
    PrintOn(printer, document, copies);
    return PagesOf(folder.filePath("set.pdf"));
  };
  EXPECT_EQ(print(LongQuestions(1), 1), 1);
  EXPECT_EQ(print(LongQuestions(1), 3), 3);
  const int pages = print(LongQuestions(100), 1);
  EXPECT_GT(pages, 5);
  EXPECT_LT(pages, 12);
  // One block longer than a page is carried on, and nothing of it is lost.
  EXPECT_GT(print({"T", {{"T", " "}, PrintBlock(100, "a line")}}, 1), 1);
  QPrinter nowhere(QPrinter::HighResolution);
  nowhere.setOutputFileName(folder.filePath("none/set.pdf"));
  EXPECT_THROW(PrintOn(nowhere, LongQuestions(1), 1), RuntimeError);
}

// Keeps the words that are printed, page by page, as one text.
class ReadEngine : public QPaintEngine {
 public:
  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  void updateState(const QPaintEngineState&) override {}
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    Words += item.text() + ' ';
    double& end = Ends[static_cast<int>(at.y())];
    end = std::max(end, at.x() + item.width());
  }
  Type type() const override { return User; }
  QString Words;
  // By how far down the page a line is, where it ends at the right.
  std::map<int, double> Ends;
};

class ReadPrinter : public QPdfWriter {
 public:
  explicit ReadPrinter(QIODevice* paper) : QPdfWriter(paper) {}
  QPaintEngine* paintEngine() const override { return &engine_; }
  bool newPage() override {
    engine_.Words += "/ ";
    return true;
  }
  const ReadEngine& Read() const { return engine_; }

 private:
  mutable ReadEngine engine_;
};

TEST(PrintTest, EachPageOfACopyHasItsNumberAndTheCount) {
  QBuffer paper;
  paper.open(QIODevice::WriteOnly);
  ReadPrinter printer(&paper);
  PaintDocument(printer, {"T", {{"T"}, PrintBlock(30, "line"), PrintBlock(30, "line")}}, 2);
  const QString numbers = QString(printer.Read().Words).remove("line ").remove("T ").simplified();
  EXPECT_EQ(numbers.toStdString(), "Page 1 of 2 / Page 2 of 2 / Page 1 of 2 / Page 2 of 2");
  EXPECT_EQ(printer.Read().Words.count("line "), 120);
}

TEST(PrintTest, QuestionsFromRightToLeftStandAtTheRightWithTheirAnswersIndentedThere) {
  QBuffer paper;
  paper.open(QIODevice::WriteOnly);
  ReadPrinter printer(&paper);
  const std::string letters = EscapeOf(0x5D0) + EscapeOf(0x5D1);
  PaintDocument(printer, {"T", {{"T"}, {"23. " + letters, letters, " "}, {"24. " + letters, "7", " "}}}, 1);
  std::vector<double> ends;
  for (const auto& [down, end] : printer.Read().Ends) ends.push_back(end);
  // The title, two blocks of three lines, and the page's number.
  ASSERT_EQ(ends.size(), 8U);
  const double indent = 18.0 * printer.logicalDpiX() / 72;
  for (const std::size_t question : {1U, 4U}) {
    EXPECT_NEAR(ends[question], printer.width(), 2);
    EXPECT_NEAR(ends[question + 1], printer.width() - indent, 2);
  }
  const QString words = printer.Read().Words;
  EXPECT_LT(words.indexOf(QChar(0x5D0)), words.indexOf("23")) << "the number stands at the right";
}

// What the font dialog opens on; OK is pressed then.
TEST(FontDialogTest, OpensOnWhatIsShownAndOkAloneChangesNothing) {
  PictureCache pictures;
  FormWindows windows{pictures};
  QtDialogs dialogs(windows);
  for (const Font& start : {Font{"Courier New", 28, true, true}, Font{"Comic Sans MS", 11, false, false},
                            Font{"Liberation Sans", 80, true, false}}) {
    QString opened;
    WhenUp<QFontDialog>([&opened](QFontDialog& dialog) {
      opened = QString("%1 %2").arg(dialog.currentFont().family()).arg(dialog.currentFont().pointSizeF());
      dialog.accept();
    });
    EXPECT_EQ(dialogs.ChooseFont(start), std::optional(start));
    const QString shown = QFontInfo(QFont(QString::fromStdString(start.Name))).family();
    EXPECT_EQ(opened, QString("%1 %2").arg(shown).arg(start.Size));
  }
}

// Answers the file dialog that is open by a press of Escape, and tells where it began.
QString WhereItBegins(QtDialogs& dialogs, const FileDialogRequest& request) {
  QString folder;
  WhenUp<QFileDialog>([&folder](QFileDialog& dialog) {
    folder = dialog.directory().path() + '|' + dialog.findChild<QLineEdit*>("fileNameEdit")->text() + '|' +
             dialog.nameFilters().join(';');
    EXPECT_LE(dialog.history().size(), 1);
    dialog.reject();
  });
  EXPECT_EQ(dialogs.ChooseFile(request), "");
  return folder;
}

TEST(FileDialogTest, BeginsWhereItIsReportedAndRemembersNothing) {
  const QTemporaryDir folder;
  PictureCache pictures;
  FormWindows windows{pictures};
  QtDialogs dialogs(windows);
  FileDialogRequest request;
  request.Filter = "Game Sets(*.txt)|*.txt";
  request.InitialFolder = SpelledPath(folder.path());
  request.FileName = "Quiz.txt";
  const QString filter = "|Game Sets (*.txt)";
  EXPECT_EQ(WhereItBegins(dialogs, request), folder.path() + "|Quiz.txt" + filter);
  request.FileName.clear();
  request.InitialFolder += "\\gone\\too";
  EXPECT_EQ(WhereItBegins(dialogs, request), folder.path() + '|' + filter);
  request.InitialFolder = "D:\\Shows";
  EXPECT_EQ(WhereItBegins(dialogs, request), QDir::currentPath() + '|' + filter);
}

class EditorShow : public ShowSuite {
 protected:
  static bool Asked() { return Main().btnQuestionCorrect.Visible && Main().btnQuestionCorrect.Enabled; }
  static bool Won() { return Main().picWinner.Visible; }
  static bool PlayedToTheWinner() {
    for (int square = 0; square < 9 && !Won(); ++square) {
      if (!Wait([] { return Main().btnContinue.Enabled || Asked() || Won(); })) return false;
      if (Main().btnContinue.Enabled) Press({"btnContinue"});
      if (!Wait([] { return Asked() || Won(); })) return false;
      if (Won()) break;
      Press({"btnQuestionCorrect"});
      bool claimed = false;
      if (!Wait([&] { return claimed = claimed || driver_->PressSquare(square / 3, square % 3); })) return false;
    }
    return Wait(Won);
  }
};

TEST_F(EditorShow, ASetIsWrittenSavedLoadedAndPlayedToTheWinner) {
  EditorDriver editor(*driver_);
  const QString sets = driver_->AppFolder() + "/Trivia Sets/";
  const bool written = editor.WithNewSet([&] {
    EXPECT_TRUE(editor.Write("Question 2?", "Answer 2"));
    EXPECT_TRUE(editor.Press("btnInsertQuestion"));
    QTest::keyClicks(QApplication::focusWidget(), "Is it 1 of 9?");
    EXPECT_TRUE(editor.Type("txtAnswer", "Answer 1"));
    EXPECT_EQ(TheShow().EditSet[0].QuestionText + TheShow().EditSet[1].QuestionText, "Is it 1 of 9?Question 2?");
    EXPECT_TRUE(editor.Press("btnForward") && editor.Press("btnNext"));
    EXPECT_TRUE(editor.Write("", "Answer 3", "btnPicture", sets + "Media/Flag 1.jpg") && editor.Press("btnNext"));
    EXPECT_TRUE(editor.Write("", "Answer 4", "btnSound", sets + "Media/Tune 1.mp3"));
    for (int i = 5; i <= 9; ++i) {
      EXPECT_TRUE(editor.Press("btnNext") && editor.Write(QString("Question %1?").arg(i), "Answer")) << i;
    }
    EXPECT_TRUE(editor.PressAndChoose("frmEditor", "btnSave", sets + "Ten"));
  });
  ASSERT_TRUE(written);
  EXPECT_TRUE(QFile::exists(sets + "Ten.txt"));
  ASSERT_TRUE(Press({"optGameType_2", "optGridControl_0", "optGameEnds_0"}) && driver_->Choose("cboList", "Ten"));
  EXPECT_EQ(TheShow().NumGameQuestions, 9);
  ASSERT_TRUE(Press({"btnStart"}));
  EXPECT_TRUE(PlayedToTheWinner());
  EXPECT_TRUE(Audience().picWinner.Visible);
  EXPECT_EQ(driver_->BoxTexts().size(), 1);
}

// The sheet of a host: quotation marks, breaks, umlauts, Greek and Hebrew in turn.
QByteArray HundredRows() {
  const char* words[] = {"\"Who said \"\"no\"\"; and why, question %1?\"", "\"Question %1\nin two lines?\"",
                         "\u00C4rger \u00FCber \u00D6l %1?", "\u03A0\u03BF\u03B9\u03B1 %1;",
                         "\u05DE\u05D4 \u05D4\u05D1\u05D9\u05E8\u05D4 %1?"};
  QByteArray rows = "\xEF\xBB\xBFQuestion,Answer\r\n";
  for (int i = 0; i < 100; ++i) {
    rows += QString::fromUtf8(words[i % 5]).arg(i + 1).toUtf8() + ",\"Answer, " + QByteArray::number(i + 1) + "\"\r\n";
  }
  return rows;
}

QByteArray BytesIn(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

TEST_F(EditorShow, ASheetOfAHundredQuestionsIsImportedSavedPlayedAndExported) {
  EditorDriver editor(*driver_);
  const QString sheet = driver_->AppFolder() + "/hundred.csv", out = driver_->AppFolder() + "/out.csv";
  const QString set = driver_->AppFolder() + "/Trivia Sets/Hundred.txt";
  QFile file(sheet);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(HundredRows()) > 0);
  file.close();
  editor.WhenShown("frmImport", [&] {
    const auto* rows = editor.Window("frmImport")->findChild<QTreeWidget*>("lstRows");
    EXPECT_EQ(rows->topLevelItemCount(), 100);
    EXPECT_EQ(rows->topLevelItem(4)->text(2), QString::fromUtf8("\u05DE\u05D4 \u05D4\u05D1\u05D9\u05E8\u05D4 5?"));
    EXPECT_TRUE(editor.Press("frmImport", "btnTake"));
  });
  const bool written = editor.WithNewSet([&] {
    EXPECT_TRUE(editor.ChooseEntry("mnuImport", sheet));
    const auto* list = editor.Window("frmEditor")->findChild<QTreeWidget*>("lstQuestions");
    EXPECT_EQ(list->topLevelItemCount(), 100);
    EXPECT_TRUE(editor.PressAndChoose("frmEditor", "btnSave", set));
    EXPECT_TRUE(editor.ChooseEntry("mnuExport", out));
  });
  ASSERT_TRUE(written);
  EXPECT_EQ(ReadTable(BytesIn(out).toStdString()), ReadTable(HundredRows().toStdString()));
  // The game before has to be over: its winner is in view for a while.
  ASSERT_TRUE(Wait([] { return Press({"optGameType_2", "optGridControl_0", "optGameEnds_0"}); }));
  ASSERT_TRUE(Wait([] { return driver_->Choose("cboList", "Hundred"); }));
  EXPECT_EQ(TheShow().NumGameQuestions, 100);
  ASSERT_TRUE(Press({"btnStart"}));
  EXPECT_TRUE(PlayedToTheWinner());
}

}  // namespace
}  // namespace pawnfield
