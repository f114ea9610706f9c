// What the display's own mouse drags on the real windows: questions in the editor's list, and files of another program
// onto the editor and onto the console's list of sets.

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTreeWidget>

#include "desktop/files/bundle_file.h"
#include "desktop/files/native_path.h"
#include "desktop/windows/console_window.h"
#include "editor_driver.h"
#include "forms/main_form.h"
#include "sets/set_parser.h"
#include "show_suite.h"

namespace pawnfield {
namespace {

class DragShow : public ShowSuite {
 protected:
  void TearDown() override {
    source_.kill();
    source_.waitForFinished();
  }
  QTreeWidget* List() { return editor_.Window("frmEditor")->findChild<QTreeWidget*>("lstQuestions"); }
  // The wordings of the set in the editor, in the order of its list's rows.
  QString Order() {
    QString listed, held;
    for (int i = 0; i < List()->topLevelItemCount(); ++i) listed += List()->topLevelItem(i)->text(2);
    for (int i = 0; i < CountQuestions(TheShow().EditSet); ++i)
      held += QString::fromStdString(TheShow().EditSet[static_cast<std::size_t>(i)].QuestionText);
    EXPECT_EQ(listed, held);
    return listed;
  }
  // A place of a row on the desktop, so many pixels below its upper edge, or above its lower one where negative.
  QPoint RowAt(int row, int down) {
    const QRect place = List()->visualItemRect(List()->topLevelItem(row));
    return List()->viewport()->mapToGlobal(
        QPoint(place.left() + 90, down < 0 ? place.bottom() + down : place.top() + down));
  }
  // Another program holds the file, in front of the audience's window; it is dragged from there, and the program is
  // asked for it once it has been dropped. Whoever lets go before a busy program has said that it takes the file drags
  // it again.
  bool DropFile(const QString& file, const QPoint& to) {
    constexpr int kLeft = 1400, kTop = 200, kTries = 10;
    source_.start(QCoreApplication::applicationDirPath() + "/pawnfield_file_source",
                  {QString::number(kLeft), QString::number(kTop), file});
    const auto says = [this](const QByteArray& word) {
      return Wait([this] { return source_.canReadLine(); }, 60000) && source_.readLine().trimmed() == word;
    };
    bool taken = false;
    const bool there = says("ready");
    for (int tries = 0; there && !taken && tries < kTries; ++tries)
      taken = driver_->DragMouse(QPoint(kLeft + 60, kTop + 30), to) && says("taken");
    return taken;
  }
  QString Written(const QString& name, const QByteArray& bytes) {
    QFile file(folder_->path() + '/' + name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return file.fileName();
  }

  EditorDriver editor_{*driver_};
  QProcess source_;
};

TEST_F(DragShow, AQuestionIsDraggedDownAndUpAndASheetIsDroppedOnTheEditor) {
  const QString sheet = Written("more.csv", "Question,Answer\r\nE,5\r\nF,6\r\n");
  QStringList orders;
  bool dropped = false;
  const bool opened = editor_.WithNewSet([&] {
    EXPECT_TRUE(editor_.Write("A", "1"));
    for (const char* letter : {"B", "C", "D"}) EXPECT_TRUE(editor_.Press("btnNext") && editor_.Write(letter, "2"));
    orders << Order();
    editor_.TakePicture("frmEditor", "before-the-drag");
    EXPECT_TRUE(driver_->DragMouse(RowAt(0, 8), RowAt(2, -1)));
    orders << Order();
    EXPECT_TRUE(driver_->DragMouse(RowAt(3, 8), RowAt(0, 1)));
    orders << Order();
    // Let go beside the list, it stays where it is.
    EXPECT_TRUE(driver_->DragMouse(RowAt(1, 8), editor_.Window("frmEditor")->mapToGlobal(QPoint(5, 5))));
    orders << Order();
    editor_.Press("btnUndo");
    orders << Order();
    editor_.WhenShown("frmImport", [&] {
      editor_.TakePicture("frmImport", "dropped-sheet");
      dropped = editor_.Press("frmImport", "btnTake");
    });
    EXPECT_TRUE(DropFile(sheet, List()->viewport()->mapToGlobal(QPoint(60, 250))));
    EXPECT_TRUE(Wait([&] { return dropped; }));
    orders << Order();
    EXPECT_TRUE(editor_.PressAndChoose("frmEditor", "btnSave", folder_->path() + "/Dragged.txt"));
  });
  ASSERT_TRUE(opened);
  EXPECT_EQ(orders.join(' ').toStdString(), "ABCD BCAD DBCA DBCA BCAD BCADEF");
}

TEST_F(DragShow, APackedSetIsDroppedOnTheConsolesList) {
  const QString dog = Written("dog.jpg", "not looked at here");
  const QString bundle = folder_->path() + QString::fromUtf8("/\u05D7\u05D9\u05D3\u05D5\u05DF.pawnset");
  const auto goes = [](double) { return true; };
  ASSERT_TRUE(WriteBundle(bundle, "Dropped", "Who?\r\nMe\r\nT\r\ndog.jpg\r\nA dog\r\nP\r\n",
                          {{SpelledPath(dog), "dog.jpg"}}, goes));
  ASSERT_TRUE(Press({"optGameType_2"}));
  auto* list = Console().findChild<QWidget*>("cboList");
  EXPECT_TRUE(DropFile(bundle, list->mapToGlobal(list->rect().center())));
  EXPECT_TRUE(
      Wait([] { return driver_->BoxTexts().join('|').contains("Would you like to load the set \"Dropped\"?"); }));
  const QString sets = driver_->AppFolder() + "/Trivia Sets/";
  EXPECT_TRUE(QFile::exists(sets + "Dropped.txt") && QFile::exists(sets + "Media/Dropped/dog.jpg"));
  EXPECT_TRUE(Wait([] { return TheShow().NumGameQuestions == 2; }));
}

}  // namespace
}  // namespace pawnfield
