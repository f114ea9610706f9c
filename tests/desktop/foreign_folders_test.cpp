// A whole program below folders of other alphabets: its pictures are there, and its sets are listed, play and are shown
// by their names.

#include <QComboBox>

#include "desktop/files/windows_1252.h"
#include "desktop/windows/audience_window.h"
#include "forms/fs_main_form.h"
#include "places.h"
#include "show_suite.h"

namespace pawnfield {
namespace {

class ForeignFolders : public testing::TestWithParam<qsizetype> {};

TEST_P(ForeignFolders, ShowPicturesAndPlaySetsOfSuchNames) {
  const QString name = kForeignNames[GetParam()];
  const QTemporaryDir folder;
  ShowDriver driver(folder.path() + '/' + name);
  QFile set(driver.AppFolder() + "/Trivia Sets/" + name + ".txt");
  ASSERT_TRUE(set.open(QFile::WriteOnly));
  QDir().mkpath(driver.AppFolder() + "/Trivia Sets/Media/" + name);
  QImage(40, 30, QImage::Format_RGB32).save(driver.AppFolder() + "/Trivia Sets/Media/" + name + "/one.bmp");
  set.write(".\\Media\\" + QByteArray::fromStdString(Escape(name)) + "\\one.bmp\r\nOne\r\nP\r\n");
  set.close();
  ASSERT_TRUE(driver.Start());
  Show& show = driver.TheShow();
  // A black board has one colour.
  const QImage room = driver.Program().Audience().grab().toImage();
  std::set<QRgb> colours;
  for (int x = 0; x < room.width(); x += 7) colours.insert(room.pixel(x, room.height() / 2));
  EXPECT_GT(colours.size(), 10U);
  ASSERT_TRUE(driver.Choose("cboList", name));
  EXPECT_EQ(driver.Program().Console().findChild<QComboBox*>("cboList")->currentText(), name);
  EXPECT_TRUE(show.state.GameLoaded);
  EXPECT_EQ(show.NumGameQuestions, 1);
  ASSERT_TRUE(driver.Press("btnStart"));
  ASSERT_TRUE(driver.WaitFor([&] { return show.frmFSMain.picQuestionPicture.Visible.Get(); }));
  EXPECT_TRUE(driver.BoxTexts().filter("rror").isEmpty()) << driver.BoxTexts().join('|').toStdString();
}

INSTANTIATE_TEST_SUITE_P(OfEach, ForeignFolders, testing::Range<qsizetype>(0, 4));

}  // namespace
}  // namespace pawnfield
