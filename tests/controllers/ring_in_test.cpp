// Presses of the wireless remotes: the gates they pass, the debounce and the routing.
#include "controllers/ring_in.h"

#include <algorithm>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;

const WordStory kPresses[] = {
    {"A press within 200 milliseconds is dropped and its time is not kept", "Trivia C, remotes",
     "remote 1, turn 1, incorrect, wait 150 ms, remote 1, turn nobody, remote 1, turn 1"},
    {"A press at a dialog is dropped and its time is kept", "Trivia C, remotes",
     "at a message box: remote 1, remote 1, turn nobody, wait 180 ms, remote 1, turn 1"},
    {"Remotes beyond the tables are reported once each and the show goes on", "Trivia C, remotes",
     "expect Description: Subscript out of range (remote 51), remote code 398, expect (remote 22), remote code 28, "
     "wait 1 s, remote code 398, remote code 28, turn nobody, remote 1, turn 1, remote code 29, turn 1"},
};

using RemoteStory = WordStoryTest;
TEST_P(RemoteStory, CountsByItsTime) { Play(); }
INSTANTIATE_TEST_SUITE_P(RingIn, RemoteStory, testing::ValuesIn(kPresses), WordStoryTest::Name);

TEST(RingIn, TheRoutingChoosesThePlayerWhoIsLitAndHeardTwiceByTheRemotesOwnLight) {
  GamePlayer player("Trivia C, remotes, Routing4=2");
  player.Do("remote 5, remote code 27, turn nobody, remote 4, turn 2");
  const SimPlatform& sim = player.fixture().sim;
  EXPECT_EQ(player.fixture().audience().picPlayer[1].Picture, "C:\\Pawnfield\\images\\scoreboxred.bmp");
  const std::string heard = "EventPlayer url C:\\Pawnfield\\Sound Effects\\RingsIn.mp3";
  EXPECT_EQ(std::count(sim.media.Log.begin(), sim.media.Log.end(), heard), 2);
  ASSERT_EQ(sim.hid.Writes.size(), 1U);
  EXPECT_EQ(sim.hid.Writes[0].Report, "\0cmd\4\0\0\0\0"s);
  player.form().Enabled = false;
  player.Do("incorrect, remote 3, turn nobody");
}

}  // namespace
}  // namespace pawnfield
