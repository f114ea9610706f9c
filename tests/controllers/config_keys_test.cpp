// frmConfigKeys: which letters it takes, and what its buttons keep.
#include "support/game_player.h"

namespace pawnfield {
namespace {

// The boxes open with Y and N.
const WordStory kConfigKeys[] = {
    {"Two different letters are taken", "Trivia A, user advances, not started",
     "at the keys dialog: incorrect key typed W; incorrect key is W; correct key typed A; correct key is A; press "
     "Cancel"},
    {"The letter of the other box is refused", "Trivia A, user advances, not started",
     "at the keys dialog: correct key typed n; correct key is empty; press Cancel"},
    {"The letter of the other box is refused in capitals too", "Trivia A, user advances, not started",
     "at the keys dialog: incorrect key typed z; incorrect key is z; correct key typed Z; correct key is empty; press "
     "Cancel"},
    {"A digit is refused", "Trivia A, user advances, not started",
     "at the keys dialog: correct key typed 7; correct key is empty; press Cancel"},
    {"The signs beside the letters are refused", "Trivia A, user advances, not started",
     "at the keys dialog: incorrect key typed [; incorrect key is empty; correct key typed {; correct key is empty; "
     "incorrect key typed @; incorrect key is empty; correct key typed `; correct key is empty; press Cancel"},
    {"An accent is refused", "Trivia A, user advances, not started",
     "at the keys dialog: incorrect key typed \xE9; incorrect key is empty; press Cancel"},
    {"A blank is taken", "Trivia A, user advances, not started",
     "at the keys dialog: correct key typed blank; correct key is blank; press Cancel"},
    {"Cancel brings back Y and N", "Trivia A, user advances, not started",
     "at the keys dialog: correct key typed A; press Cancel, at the keys dialog: correct key is Y; incorrect key is N; "
     "press Cancel"},
    {"Finished saves the letters", "Trivia A, user advances, not started",
     "at the keys dialog: correct key typed R; incorrect key typed W; press Finished, at the keys dialog: correct key "
     "is R; incorrect key is W; press Cancel"},
    {"Defaults that are cancelled are not saved", "Trivia A, user advances, not started",
     "at the keys dialog: correct key typed R; press Finished, at the keys dialog: press Default Keys; correct key is "
     "Y; press Cancel, at the keys dialog: correct key is R; press Cancel"},
    {"The console judges with Y and N whatever the letters are", "Trivia A, user advances, not started",
     "at the keys dialog: correct key typed R; incorrect key typed W; press Finished, choose the set from the list, "
     "start, key r, Correct is on, key y, Correct is hidden"},
};

using ConfigKeys = WordStoryTest;
TEST_P(ConfigKeys, AreTwoLetters) { Play(); }
INSTANTIATE_TEST_SUITE_P(Stories, ConfigKeys, testing::ValuesIn(kConfigKeys), WordStoryTest::Name);

}  // namespace
}  // namespace pawnfield
