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

constexpr const char* kKeys[] = {"1", "7", "^^", "^N", "^S", "^U", "^Z", "y", "n", "c", "X", "^M", "^H"};

class Keyboard : public GamePlayer {
 public:
  // A game of that type for three on a board of 3x3, on which the user advances, brought to a phase.
  Keyboard(char type, const std::string& script, const char* options = "m")
      : GamePlayer(std::string(1, type) + " 3 3 full " + (type < '3' ? "-" : options)) {
    Play(script);
  }
  // A letter for each thing that the key changed: player, verdicts offered, question, its panel, entry, board, names
  // dialog, continue offered; "." for nothing.
  std::string PressKey(const char* key) {
    const std::vector<std::string> before = Look();
    Play(std::string("keys:") + key);
    const std::vector<std::string> after = Look();
    std::string changes;
    for (std::size_t i = 0; i < after.size(); ++i) {
      if (before[i] != after[i]) changes += "pvqhebdk"[i];
    }
    return changes.empty() ? "." : changes;
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
  // The game types that behave so, how the phase is reached, the keyboard control, and what each key changes.
  const std::tuple<std::string, const char*, bool, const char*> phases[] = {
      // 1 7 ^ Ctrl+N Ctrl+S Ctrl+U Ctrl+Z y n c X Enter Backspace
      {"12", "", true, ". . . p . . d . . e . p ."},
      {"3", "", true, ". . . p vhk . d vh p . . . ."},
      {"4", "", true, ". . . p pvhk . d vh p . . . ."},
      {"5", "", true, "pv . . . hk . d . . . . . ."},
      {"5", "r2", true, ". . . . pvhk . d vh pv . . . ."},
      {"3", "+", true, ". . . p k . d . . e . p ."},
      {"4", "+", true, ". . . p pk . d . . e . p ."},
      {"5", "r2 +", true, ". . . . pk . d . . e . . ."},
      {"12", "keys:b", true, "e . . p . . d . . . . . e"},
      {"3", "+ keys:b", true, "e . . p k . d . . . . . e"},
      {"1", "keys:b2", true, ". . . p . . d . . . . peb e"},
      {"2", "keys:b2", true, ". . . p . . d . . . . eb e"},
      {"5", "r2 + keys:b2", true, ". . . . pk . d . . . . peb e"},
      {"1", "00", true, ". . . p . pb d . . e . p ."},
      {"2", "00", true, ". . . p . b d . . e . p ."},
      {"3", "+ 00", true, ". . . p . pb d . . vqhk . . ."},
      {"4", "+ 00", true, ". . . p p b d . . vqhk . . ."},
      {"5", "r2 + 00", true, ". . . . . pb d . . qhk . . ."},
      {"1", "H", true, ". . . p . . . . . . . . ."},
      {"3", "+ H", true, ". . . p k . . . . . . . ."},
      {"5", "r2 + H", true, ". . . . pk . . . . . . . ."},
      {"1", "", false, ". . . . . . . . . e . p ."},
      {"3", "", false, ". . . . . . . . . . . . ."},
      {"5", "", false, "pv . . . . . . . . . . . ."},
      {"3", "+ 00", false, ". . . . . . . . . . . . ."}};
  for (const auto& [types, script, keyControl, effects] : phases) {
    for (const char type : types) {
      std::unique_ptr<Keyboard> keyboard;
      std::string changes;
      for (const char* key : kKeys) {
        if (!keyboard) keyboard = std::make_unique<Keyboard>(type, script);
        keyboard->state.KeyControl = keyControl;
        changes += (changes.empty() ? "" : " ") + keyboard->PressKey(key);
        if (!changes.ends_with('.')) keyboard.reset();
      }
      EXPECT_EQ(changes, effects) << script << " in type " << type;
    }
  }
}

const Story kEntries[] = {
    {"NoKeyActsBeforeTheStart", "5 3 3 full mi",
     "keys:27^^^N^S^UyncX^M^H turn=0 question=0 board=000/000/000 names="
     "PLAYER_1/PLAYER_2/PLAYER_3"},
    {"OnABoardOf3x3", "1 3 3 full",
     "keys:d txtDJCommand= keys:b4 txtDJCommand=B keys:^HC2^M board=000/001/000 txtDJCommand="},
    {"OnABoardOf4x4", "1 3 4 full", "keys:e txtDJCommand= keys:D4 txtDJCommand=D4"},
    {"OnABoardOf5x5", "1 3 5 full",
     "keys:2f txtDJCommand= keys:e6 txtDJCommand=E keys:5a txtDJCommand=E5 keys:^H txtDJCommand=E keys:^H "
     "txtDJCommand="},
};

using TypedSquare = StoryTest;
TEST_P(TypedSquare, IsAColumnLetterAndARowDigit) { Play(); }
INSTANTIATE_TEST_SUITE_P(Keyboard, TypedSquare, testing::ValuesIn(kEntries), StoryTest::Name);

TEST(Keyboard, LettersBringUpTheirMediaWhateverElseTheyDo) {
  Keyboard keyboard('3', "");
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
  keyboard.Play("btnQuestionCorrect=on txtDJCommand=");
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
    Keyboard keyboard('5', "");
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
  Keyboard keyboard('5', "", "mi");
  keyboard.state.SerialComm = InterfaceCode::PublishingKeypads;
  keyboard.Written();
  const std::string on = "sendkeypress=1 ", off = "sendkeypress=0 ";
  // Only what has changed is written.
  const std::pair<const char*, std::string> steps[] = {
      {"fileClearAllScores", "10=0 11=0 13=0 "},
      {"file:C:\\Pawnfield\\Trivia_Sets\\Long.txt btnSelectGame", "12=0 "},
      {"btnStart", on},
      // Back to what stands there.
      {"r2 -", ""},
      {"r2", off},
      {"+ 11 U", ""},
      // The question and the automatic continue.
      {"cboAutoContinue:0 S >", on}};
  for (const auto& [script, written] : steps) {
    keyboard.Play(script);
    EXPECT_EQ(keyboard.Written(), written) << script;
  }
  keyboard.fixture().sim.settings.FailSaves = 3;
  keyboard.Play("?Procedure:_WriteSharedKey");
  for (int i = 0; i < 4; ++i) {
    SendKeyPress(keyboard.show(), false);
    FlushSharedKey(keyboard.show());
  }
  EXPECT_EQ(keyboard.Written(), off) << "three failures are told once";
}

TEST(Keyboard, APressIsSeenBeforeTheKeyboardProgramReadsOfIt) {
  Keyboard keyboard('5', "");
  keyboard.state.SerialComm = InterfaceCode::PublishingKeypads;
  BeginSavingSettings(keyboard.show());
  const auto& writes = keyboard.fixture().sim.settings.Writes;
  keyboard.fixture().sim.settings.Writes.clear();
  keyboard.form().KeyPress('2');
  keyboard.Play("turn=2 btnQuestionCorrect=on");
  EXPECT_TRUE(writes.empty()) << "nothing goes to the disk between the press and its light";
  keyboard.fixture().sim.clock.Advance(100);
  EXPECT_EQ(writes.size(), 2U) << "the press is wanted no more, and whose it is";
}

}  // namespace
}  // namespace pawnfield
