// The shipped manual: every link and picture of its pages is there, and the menu's pages open in its window.

#include <gtest/gtest.h>

#include <QDir>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocument>

#include "config/help_pages.h"
#include "desktop/windows/desktop_pages.h"
#include "forms/editor_form.h"
#include "forms/options_form.h"
#include "places.h"

namespace pawnfield {
namespace {

TEST(Manual, NoLinkOrPictureOfItsPagesLeadsNowhere) {
  const QDir folder(ManualFolder());
  const QStringList pages = folder.entryList({"*.html"});
  ASSERT_FALSE(pages.isEmpty());
  static const QRegularExpression link("(?:href|src)=\"([^\"#]+)");
  for (const QString& page : pages) {
    QFile file(folder.filePath(page));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    for (auto matches = link.globalMatch(QString::fromUtf8(file.readAll())); matches.hasNext();) {
      const QString target = matches.next().captured(1);
      EXPECT_TRUE(target.startsWith("http") || folder.exists(target))
          << page.toStdString() << ": " << target.toStdString();
    }
  }
}

TEST(Manual, OpensThePagesOfTheMenuAndFollowsTheirLinks) {
  DesktopPages pages(ManualFolder());
  for (const HelpPage& page : {kManualPage, kDocumentationPage, kSupportPage, kLicencePage}) {
    EXPECT_TRUE(pages.Open(page.Shipped)) << page.Shipped;
  }
  EXPECT_FALSE(pages.Open("missing.html"));
  auto* browser = pages.Window()->findChild<QTextBrowser*>();
  ASSERT_NE(browser, nullptr);
  EXPECT_EQ(browser->source().fileName(), "licence.html");
  emit browser->anchorClicked(QUrl("index.html"));
  EXPECT_EQ(browser->source().fileName(), "index.html");
  QTest::keyClick(browser, Qt::Key_Escape);
  EXPECT_FALSE(pages.Window()->isVisible());
}

// What the check before the show offers to print is black on white, and one page.
TEST(Manual, TheEmergencyPageIsOnePageOfPaper) {
  const auto page = PaperPage(QUrl::fromLocalFile(ManualFolder() + "/emergency.html"));
  // A4 less the printer's margins of 2 cm, in the pixels in which fonts are measured without a printer.
  page->setPageSize(QSizeF(595 - 2 * 57, 842 - 2 * 57) * QGuiApplication::primaryScreen()->logicalDotsPerInch() / 72);
  page->setDocumentMargin(0);
  EXPECT_TRUE(page->toPlainText().contains("Bring It Back"));
  EXPECT_EQ(page->pageCount(), 1);
  EXPECT_FALSE(page->toHtml().contains("#e6eaf2", Qt::CaseInsensitive));
}

TEST(Manual, EachWindowsPageOfF1IsThere) {
  const QDir folder(ManualFolder());
  const char* const forms[] = {"frmMain",
                               "frmOptions",
                               "frmPlayerNames",
                               "frmEditor",
                               "frmSoundEffects",
                               "frmConfigKeys",
                               "frmMapMF",
                               "frmConnectToProjector",
                               "frmGameTypeHelp",
                               "frmHelpAbout",
                               ""};
  std::set<std::string> pages;
  for (const char* form : forms) {
    EXPECT_TRUE(folder.exists(HelpPageOf(form))) << form;
    pages.insert(HelpPageOf(form));
  }
  // The options and the players' names share theirs.
  EXPECT_EQ(pages.size(), std::size(forms) - 1);
}

TEST(Manual, TheLicenceWrapsAtTheEdgeOfItsPage) {
  ManualWindow window(ManualFolder());
  ASSERT_TRUE(window.ShowPage("licence.html"));
  window.resize(500, 400);
  const QScrollBar& sideways = *window.findChild<QTextBrowser*>()->horizontalScrollBar();
  EXPECT_TRUE(QTest::qWaitFor([&] { return sideways.maximum() == 0; }, kSlowMachineMs));
}

class HelpKeyTest : public ProgramTest {};

TEST_F(HelpKeyTest, F1OpensTheWindowsOwnPageAlsoOverAModalWindow) {
  const auto page = [&] { return program_.ManualPages().Window()->findChild<QTextBrowser*>()->source().fileName(); };
  WhenUp<FormWindow>([&](FormWindow& options) {
    QTest::keyClick(&options, Qt::Key_F1);
    EXPECT_EQ(page(), "options.html");
    // It can be worked: a window that the modal one keeps shut gets no key.
    QTest::keyClick(program_.ManualPages().Window()->findChild<QTextBrowser*>(), Qt::Key_Escape);
    EXPECT_FALSE(program_.ManualPages().Window()->isVisible());
    show_.frmOptions.Unload();
  });
  show_.platform.dialogs.ShowModal(show_.frmOptions);
  Window(show_.frmEditor).show();
  QTest::keyClick(&Window(show_.frmEditor), Qt::Key_F1);
  EXPECT_EQ(page(), "preparing-sets.html");
}

}  // namespace
}  // namespace pawnfield
