// Presses of the wireless remotes: the gates they pass, the debounce and the routing.
#include "controllers/ring_in.h"

#include <algorithm>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;

const Story kPresses[] = {
    {"APressWithin200MillisecondsIsDroppedAndItsTimeIsNotKept", "5 3 3 full w",
     "1 >30 turn=1 - >150 1 >30 turn=0 1 >30 turn=1"},
    {"APressAtADialogIsDroppedAndItsTimeIsKept", "5 3 3 full w", "[ 1 >30 ] 1 >30 turn=0 >180 1 >30 turn=1"},
    {"RemotesBeyondTheTablesAreReportedOnceEachAndTheShowGoesOn", "5 3 3 full w",
     "?Description:_Subscript_out_of_range_(remote_51) #398 >30 ?(remote_22) #28 >30 >1000 #398 >30 #28 >30 turn=0 "
     "1 >30 turn=1 #29 >30 turn=1"},
};

using RemoteStory = StoryTest;
TEST_P(RemoteStory, GoesAsWritten) { Play(); }
INSTANTIATE_TEST_SUITE_P(RingIn, RemoteStory, testing::ValuesIn(kPresses), StoryTest::Name);

TEST(RingIn, TheRoutingChoosesThePlayerWhoIsLitAndHeardTwiceByTheRemotesOwnLight) {
  GamePlayer player("5 3 3 full w Routing4=2");
  player.Play("5 >30 #27 >30 turn=0 4 >30 turn=2");
  const SimPlatform& sim = player.fixture().sim;
  EXPECT_EQ(player.fixture().audience().picPlayer[1].Picture, "C:\\Pawnfield\\images\\scoreboxred.bmp");
  const std::string heard = "EventPlayer url C:\\Pawnfield\\Sound Effects\\RingsIn.mp3";
  EXPECT_EQ(std::count(sim.media.Log.begin(), sim.media.Log.end(), heard), 2);
  ASSERT_EQ(sim.hid.Writes.size(), 1U);
  EXPECT_EQ(sim.hid.Writes[0].Report, "\0cmd\4\0\0\0\0"s);
  player.form().Enabled = false;
  player.Play("- 3 >30 turn=0");
}

}  // namespace
}  // namespace pawnfield
