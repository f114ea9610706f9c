// The Help menu leads to the manual and the maker's pages, and says so when a page is gone.
#include "config/help.h"

#include "support/show_fixture.h"

namespace pawnfield {
namespace {

using Pages = std::vector<std::string>;

TEST(Help, EveryEntryOpensItsPageWhileAGameRunsTooAndTheAboutBoxClosesFirst) {
  ShowFixture fixture;
  fixture.Start();
  MainForm& form = fixture.form();
  form.optGameType[0].Click();
  form.btnStart.Click();
  for (Menu* entry : {&form.mnuHelpManual, &form.mnuHelpDocumentation, &form.mnuHelpSupport}) entry->Click();
  HelpAboutForm& about = fixture.show().frmHelpAbout;
  fixture.sim.dialogs.ExpectForm("frmHelpAbout", [&] {
    about.btnLicence.Click();
    EXPECT_FALSE(about.Visible);
  });
  form.mnuHelpAbout.Click();
  EXPECT_EQ(fixture.sim.pages.Opened, (Pages{"index.html", "documentation.html", "messages.html", "licence.html"}));
  EXPECT_TRUE(about.lblVersion.Caption->starts_with("Version 0."));
}

TEST(Help, MakersPageGivesWayToTheShippedOneAndThatToAMessage) {
  ShowFixture fixture;
  OpenHelpPage(fixture.show(), {"https://example.org/help", "index.html"});
  EXPECT_EQ(fixture.sim.pages.Opened, Pages{"https://example.org/help"});
  fixture.sim.pages.Works = false;
  fixture.sim.dialogs.ExpectMessage("The page \"index.html\" of the manual was not found.");
  OpenHelpPage(fixture.show(), {"https://example.org/help", "index.html"});
  EXPECT_EQ(fixture.sim.pages.Opened.back(), "index.html");
}

}  // namespace
}  // namespace pawnfield
