// The Help menu leads to the manual and the maker's pages, and says so when a page is gone.
#include "config/help.h"

#include "forms/help_about_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

using Pages = std::vector<std::string>;

TEST(Help, EveryEntryOpensItsPageWhileAGameRunsTooAndTheAboutBoxClosesFirst) {
  GamePlayer player("Challenge A, 2 players, Finish Row");
  player.Do("press Manual, press Documentation, press Support, at the about box: press Licence");
  const HelpAboutForm& about = player.show().frmHelpAbout;
  EXPECT_FALSE(about.Visible);
  EXPECT_EQ(player.fixture().sim.pages.Opened,
            (Pages{"index.html", "documentation.html", "messages.html", "licence.html"}));
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
