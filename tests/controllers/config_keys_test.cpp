// frmConfigKeys: which letters it takes, and what its buttons keep.
#include "support/game_player.h"

namespace pawnfield {
namespace {

const Story kConfigKeys[] = {
    // The boxes open with Y and N; a sign, an accent, a digit and the other box's letter are refused.
    {"TakesTwoDifferentLetters", "3 3 3 full mi",
     "btnEditKeyboardCtrl@frmConfigKeys { txtKey(0):n txtKey(0)= txtKey(1):W txtKey(1)=W txtKey(0):A txtKey(0)=A "
     "txtKey(1):z txtKey(1)=z txtKey(0):Z txtKey(0)= txtKey(0):7 txtKey(0)= txtKey(1):[ txtKey(1)= txtKey(0):{ "
     "txtKey(0)= txtKey(1):@ txtKey(1)= txtKey(0):` txtKey(0)= txtKey(1):\xE9 txtKey(1)= txtKey(0):_ txtKey(0)=_ "
     "btnCancel } btnEditKeyboardCtrl@frmConfigKeys { txtKey(0)=Y txtKey(1)=N btnCancel }"},
    {"FinishedKeepsTheLettersAndTheConsoleGoesOnWithYAndN", "3 3 3 full mi",
     "btnEditKeyboardCtrl@frmConfigKeys { txtKey(0):R txtKey(1):W btnFinished } "
     "btnEditKeyboardCtrl@frmConfigKeys { txtKey(0)=R btnKeyDefaults txtKey(0)=Y btnCancel } "
     "btnEditKeyboardCtrl@frmConfigKeys { txtKey(0)=R txtKey(1)=W btnCancel } "
     "cboList:1 btnStart keys:r btnQuestionCorrect=on keys:y btnQuestionCorrect=-"},
};

using ConfigKeys = StoryTest;
TEST_P(ConfigKeys, GoAsWritten) { Play(); }
INSTANTIATE_TEST_SUITE_P(Stories, ConfigKeys, testing::ValuesIn(kConfigKeys), StoryTest::Name);

}  // namespace
}  // namespace pawnfield
