// The keys of the console: what each kind of key does in each phase of each game type, the typed square, keypads.
#include "controllers/keyboard.h"

#include <algorithm>
#include <memory>

#include "forms/main_form.h"
#include "outward/shared_key.h"
#include "show/settings.h"
#include "show/settings_table.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

constexpr const char* kKeys[] = {"1", "7", "^", "ctrl n", "ctrl s", "ctrl u",   "ctrl z",
                                 "y", "n", "c", "X",      "enter",  "backspace"};
// What a key can change, in the order of Look.
constexpr const char* kChanges[] = {"turn", "verdicts", "question", "panel", "entry", "board", "names", "Continue"};

class Keyboard : public GamePlayer {
 public:
  // A game of that type for three on a board of 3x3, on which the user advances, brought to a phase.
  explicit Keyboard(const std::string& type, const std::string& words = "", const std::string& options = "")
      : GamePlayer(type + (type.starts_with("Trivia") ? ", user advances" : "") + options) {
    if (!words.empty()) Do(words);
  }
  // What the key changed, parted by blanks.
  std::string PressKey(const char* key) {
    const std::vector<std::string> before = Look();
    Do(std::string("key ") + key);
    const std::vector<std::string> after = Look();
    std::string changes;
    for (std::size_t i = 0; i < after.size(); ++i) {
      if (before[i] != after[i]) changes += (changes.empty() ? "" : " ") + std::string(kChanges[i]);
    }
    return changes;
  }
  // The writes to the shared key since the last look, once the present event is done.
  std::string Written() {
    FlushSharedKey(show());
    std::string text;
    for (const auto& [name, value] : fixture().sim.settings.Writes) {
      if (!IsSetting(name)) text += name + "=" + value + " ";
    }
    fixture().sim.settings.Writes.clear();
    return text;
  }

  GameState& state = show().state;

 private:
  static bool IsSetting(const std::string& key) {
    return std::ranges::any_of(SettingsTable(), [&](const SettingRow& row) { return row.Key == key; });
  }
  std::vector<std::string> Look() {
    std::string board, dialogs;
    for (const auto& row : state.Board) board.append(row.begin(), row.end());
    for (const std::string& fault : fixture().sim.dialogs.TakeErrors()) dialogs += fault;
    return {std::to_string(state.CurrentPlayer),
            std::to_string(form().btnQuestionCorrect.Visible),
            std::to_string(state.CurrentQuestion),
            std::to_string(form().picQuestion.Visible),
            show().entry.DJEntry + "/" + form().txtDJCommand.Text.Get(),
            board,
            dialogs,
            std::to_string(form().btnContinue.Enabled)};
  }
};

TEST(Keyboard, EachKeyDoesItsPartInEachPhase) {
  // The game types that behave so, how the phase is reached, the keyboard control, and what each key changes; a key
  // that isn't named changes nothing.
  const std::tuple<std::vector<const char*>, const char*, bool, const char*> phases[] = {
      {{"Challenge A", "Challenge B"}, "", true, "ctrl n: turn; ctrl z: names; c: entry; enter: turn"},
      {{"Trivia A"},
       "",
       true,
       "ctrl n: turn; ctrl s: verdicts panel Continue; ctrl u: verdicts panel; ctrl z: names; y: verdicts panel; n: "
       "turn"},
      {{"Trivia B"},
       "",
       true,
       "ctrl n: turn; ctrl s: turn verdicts panel Continue; ctrl u: verdicts panel; ctrl z: names; y: verdicts panel; "
       "n: turn"},
      {{"Trivia C"}, "", true, "1: turn verdicts; ctrl s: panel Continue; ctrl u: panel; ctrl z: names"},
      {{"Trivia C"},
       "player 2 rings in",
       true,
       "ctrl s: turn verdicts panel Continue; ctrl u: turn verdicts; ctrl z: names; y: verdicts panel; n: turn "
       "verdicts"},
      {{"Trivia A"},
       "correct",
       true,
       "ctrl n: turn; ctrl s: Continue; ctrl u: verdicts panel; ctrl z: names; c: entry; enter: turn"},
      {{"Trivia B"},
       "correct",
       true,
       "ctrl n: turn; ctrl s: turn Continue; ctrl u: verdicts panel; ctrl z: names; c: entry; enter: turn"},
      {{"Trivia C"},
       "player 2 rings in, correct",
       true,
       "ctrl s: turn Continue; ctrl u: verdicts panel; ctrl z: names; c: entry"},
      {{"Challenge A", "Challenge B"},
       "key b",
       true,
       "1: entry; ctrl n: turn; ctrl u: entry; ctrl z: names; backspace: entry"},
      {{"Trivia A"},
       "correct, key b",
       true,
       "1: entry; ctrl n: turn; ctrl s: Continue; ctrl u: verdicts panel entry; ctrl z: names; backspace: entry"},
      {{"Challenge A"},
       "keys b2",
       true,
       "ctrl n: turn; ctrl u: entry; ctrl z: names; enter: turn entry board; backspace: entry"},
      {{"Challenge B"},
       "keys b2",
       true,
       "ctrl n: turn; ctrl u: entry; ctrl z: names; enter: entry board; backspace: entry"},
      {{"Trivia C"},
       "player 2 rings in, correct, keys b2",
       true,
       "ctrl s: turn Continue; ctrl u: verdicts panel entry; ctrl z: names; enter: turn entry board; backspace: entry"},
      {{"Challenge A"}, "claim A1", true, "ctrl n: turn; ctrl u: turn board; ctrl z: names; c: entry; enter: turn"},
      {{"Challenge B"}, "claim A1", true, "ctrl n: turn; ctrl u: board; ctrl z: names; c: entry; enter: turn"},
      {{"Trivia A"},
       "correct, claim A1",
       true,
       "ctrl n: turn; ctrl u: turn board; ctrl z: names; c: verdicts question panel Continue"},
      {{"Trivia B"},
       "correct, claim A1",
       true,
       "ctrl n: turn; ctrl s: turn; ctrl u: board; ctrl z: names; c: verdicts question panel Continue"},
      {{"Trivia C"},
       "player 2 rings in, correct, claim A1",
       true,
       "ctrl u: turn board; ctrl z: names; c: question panel Continue"},
      {{"Challenge A"}, "hide", true, "ctrl n: turn"},
      {{"Trivia A"}, "correct, hide", true, "ctrl n: turn; ctrl s: Continue; ctrl u: verdicts panel"},
      {{"Trivia C"}, "player 2 rings in, correct, hide", true, "ctrl s: turn Continue; ctrl u: verdicts panel"},
      {{"Challenge A"}, "", false, "c: entry; enter: turn"},
      {{"Trivia A"}, "", false, ""},
      {{"Trivia C"}, "", false, "1: turn verdicts"},
      {{"Trivia A"}, "correct, claim A1", false, ""}};
  for (const auto& [types, steps, keyControl, effects] : phases) {
    for (const char* type : types) {
      std::unique_ptr<Keyboard> keyboard;
      std::string changes;
      for (const char* key : kKeys) {
        if (!keyboard) keyboard = std::make_unique<Keyboard>(type, steps);
        keyboard->state.KeyControl = keyControl;
        const std::string change = keyboard->PressKey(key);
        if (change.empty()) continue;
        changes += (changes.empty() ? "" : "; ") + std::string(key) + ": " + change;
        keyboard.reset();
      }
      EXPECT_EQ(changes, effects) << type << ": " << steps;
    }
  }
}

const WordStory kEntries[] = {
    {"No key acts before the start", "Trivia C, user advances, not started",
     "keys 27, key ^, key ctrl n, key ctrl s, key ctrl u, keys yncX, key enter, key backspace, turn nobody, question "
     "1, board 000/000/000, names is PLAYER 1/PLAYER 2/PLAYER 3"},
    {"On a board of 3x3", "Challenge A",
     "key d, entry is empty, keys b4, entry is B, key backspace, keys C2, key enter, board 000/001/000, entry is "
     "empty"},
    {"On a board of 4x4", "Challenge A, 4x4", "key e, entry is empty, keys D4, entry is D4"},
    {"On a board of 5x5", "Challenge A, 5x5",
     "keys 2f, entry is empty, keys e6, entry is E, keys 5a, entry is E5, key backspace, entry is E, key backspace, "
     "entry is empty"},
};

using TypedSquare = WordStoryTest;
TEST_P(TypedSquare, IsAColumnLetterAndARowDigit) { Play(); }
INSTANTIATE_TEST_SUITE_P(Keyboard, TypedSquare, testing::ValuesIn(kEntries), WordStoryTest::Name);

const WordStory kPieces[] = {
    {"Enter in a challenge puts the next piece at both hands", "Challenge A",
     "cursor is CursorX.png, key enter, cursor is CursorO.png, room cursor is CursorO.png, says Enter passed the turn "
     "to player 2."},
    {"Ctrl N in a challenge puts the next piece at the hand", "Challenge A", "key ctrl n, cursor is CursorO.png"},
};

using NextPiece = WordStoryTest;
TEST_P(NextPiece, IsAtTheHand) { Play(); }
INSTANTIATE_TEST_SUITE_P(Keyboard, NextPiece, testing::ValuesIn(kPieces), WordStoryTest::Name);

TEST(Keyboard, LettersBringUpTheirMediaWhateverElseTheyDo) {
  Keyboard keyboard("Trivia A");
  SimPlatform& sim = keyboard.fixture().sim;
  for (const std::size_t row : {9U, 11U, 33U, 34U}) {
    const std::string path = "C:\\" + std::to_string(row) + ".wav";
    sim.files.Write(path, "sound");
    keyboard.show().soundBanks[1][row] = path;
  }
  keyboard.state.KeyControl = false;
  std::string played;
  for (const char key : std::string("AzYb@[`{c5")) {
    sim.media.KeyPressPlayer.Url.clear();
    keyboard.form().KeyPress(key);
    played += sim.media.KeyPressPlayer.Url;
  }
  EXPECT_EQ(played, "C:\\9.wavC:\\34.wavC:\\33.wavC:\\11.wav");
  keyboard.Do("Correct is on, entry is empty");
}

TEST(Keyboard, KeypadsRingInByTheRouting) {
  // The mode, the key, what its pad is routed to, the player after it and the writes to the shared key.
  using enum InterfaceCode;
  const std::tuple<InterfaceCode, char, std::size_t, int, int, const char*> keypads[] = {
      {Keypads, '4', 4, 2, 2, "sendkeypress=0 "},
      {Keypads, '0', 10, 3, 3, "sendkeypress=0 "},
      {Keypads, '3', 5, 1, 0, ""},
      {Keypads, '^', 6, 1, 0, ""},
      {PublishingKeypads, '9', 9, 2, 2, "sendkeypress=0 11=PLAYER 2 "},
      {Manual, '4', 4, 2, 0, ""},
      {Manual, '2', 4, 3, 2, ""}};
  for (const auto& [mode, key, controller, routed, player, written] : keypads) {
    Keyboard keyboard("Trivia C");
    keyboard.state.SerialComm = mode;
    keyboard.state.Routing.fill(0);
    keyboard.state.Routing[controller] = routed;
    keyboard.Written();
    keyboard.form().KeyPress(key);
    EXPECT_EQ(keyboard.state.CurrentPlayer, player) << static_cast<int>(mode) << key;
    EXPECT_EQ(keyboard.Written(), written) << static_cast<int>(mode) << key;
  }
}

TEST(Keyboard, TellsTheExternalKeyboardProgramWhenPressesAreWanted) {
  Keyboard keyboard("Trivia C", "", ", not started");
  keyboard.state.SerialComm = InterfaceCode::PublishingKeypads;
  keyboard.Written();
  const std::string on = "sendkeypress=1 ", off = "sendkeypress=0 ";
  // Only what has changed is written.
  const std::pair<const char*, std::string> steps[] = {
      {"clear all scores", "10=0 11=0 13=0 "},
      {"file C:\\Pawnfield\\Trivia Sets\\Long.txt, press Select Game", "12=0 "},
      {"start", on},
      // Back to what stands there.
      {"player 2 rings in, incorrect", ""},
      {"player 2 rings in", off},
      {"correct, claim B2, undo", ""},
      // The question and the automatic continue.
      {"pause of 3 s, skip, wait 3 s", on}};
  for (const auto& [words, written] : steps) {
    keyboard.Do(words);
    EXPECT_EQ(keyboard.Written(), written) << words;
  }
  keyboard.fixture().sim.settings.FailSaves = 3;
  keyboard.Do("expect Procedure: WriteSharedKey");
  for (int i = 0; i < 4; ++i) {
    SendKeyPress(keyboard.show(), false);
    FlushSharedKey(keyboard.show());
  }
  EXPECT_EQ(keyboard.Written(), off) << "three failures are reported once";
}

TEST(Keyboard, APressIsSeenBeforeTheKeyboardProgramReadsOfIt) {
  Keyboard keyboard("Trivia C");
  keyboard.state.SerialComm = InterfaceCode::PublishingKeypads;
  BeginSavingSettings(keyboard.show());
  const auto& writes = keyboard.fixture().sim.settings.Writes;
  keyboard.fixture().sim.settings.Writes.clear();
  keyboard.form().KeyPress('2');
  keyboard.Do("turn 2, Correct is on");
  EXPECT_TRUE(writes.empty()) << "nothing goes to the disk between the press and its light";
  keyboard.fixture().sim.clock.Advance(100);
  EXPECT_EQ(writes.size(), 2U) << "the press is wanted no more, and whose it is";
}

}  // namespace
}  // namespace pawnfield
