// The shipped manual: every link and picture of its pages is there, and the menu's pages open in its window.

#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QTest>
#include <QTextBrowser>

#include "config/help_pages.h"
#include "desktop/windows/desktop_pages.h"

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

}  // namespace
}  // namespace pawnfield
