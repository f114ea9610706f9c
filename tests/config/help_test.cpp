// The Help menu leads to the manual and the maker's pages, and says so when a page is gone.
#include "config/help.h"

#include <gtest/gtest.h>

#include "support/show_fixture.h"

namespace pawnfield {
namespace {

TEST(Help, EveryEntryOpensItsPageWhileAGameRunsToo) {
  ShowFixture fixture;
  fixture.Start();
  MainForm& form = fixture.form();
  form.optGameType[0].Click();
  form.btnStart.Click();
  for (Menu* entry : {&form.mnuHelpManual, &form.mnuHelpDocumentation, &form.mnuHelpSupport}) entry->Click();
  const std::vector<std::string> opened{"index.html", "documentation.html", "messages.html"};
  EXPECT_EQ(fixture.sim.pages.Opened, opened);
}

TEST(Help, MakersPageGivesWayToTheShippedOneAndThatToAMessage) {
  ShowFixture fixture;
  OpenHelpPage(fixture.show(), {"https://example.org/help", "index.html"});
  EXPECT_EQ(fixture.sim.pages.Opened, std::vector<std::string>{"https://example.org/help"});
  fixture.sim.pages.Works = false;
  fixture.sim.dialogs.ExpectMessage("The page \"index.html\" of the manual was not found.");
  OpenHelpPage(fixture.show(), {"https://example.org/help", "index.html"});
  EXPECT_EQ(fixture.sim.pages.Opened.back(), "index.html");
}

TEST(Help, AboutBoxClosesBeforeTheLicenceOpens) {
  ShowFixture fixture;
  fixture.Start();
  HelpAboutForm& about = fixture.show().frmHelpAbout;
  EXPECT_EQ(about.lblVersion.Caption->find("Version 0."), 0u);
  fixture.sim.dialogs.ExpectForm("frmHelpAbout", [&] {
    about.btnLicence.Click();
    EXPECT_FALSE(about.Visible);
  });
  fixture.form().mnuHelpAbout.Click();
  EXPECT_EQ(fixture.sim.pages.Opened, std::vector<std::string>{"licence.html"});
}

}  // namespace
}  // namespace pawnfield
