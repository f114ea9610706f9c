// The keys of the console: what each kind of key does in each phase of each game type, the typed square, keypads.
#include "controllers/keyboard.h"

#include <memory>

#include "../support/show_fixture.h"
#include "controllers/shared_key.h"

namespace pawnfield {
namespace {

constexpr const char* kKeys = "17^\x0E\x13\x15\x1AyncX\r\b";

class Keyboard : public ShowFixture {
 public:
  explicit Keyboard(int gameType, int gridSize = 3) {
    WriteNumberedSet("Keys", 60);
    Preset("GameType", std::to_string(gameType));
    Preset("GridControl", std::to_string(gridSize));
    Preset("AutoContinue", "6");
    Start();
  }
  void Begin() {
    if (IsQuestionType(state.GameType)) ChooseSet("Keys");
    form().btnStart.Click();
  }
  void Type(const std::string& keys) {
    for (const char key : keys) form().KeyPress(static_cast<unsigned char>(key));
  }
  // Brings a started game to the phase.
  void Reach(const std::string& phase) {
    if (phase == "idle") return;
    Begin();
    if (phase == "open") return;
    if (state.GameType == kTriviaModeC) form().btnSelectPlayer[1].Click();
    if (phase == "held") return;
    if (IsQuestionType(state.GameType)) form().btnQuestionCorrect.Click();
    if (phase == "letter") Type("b");
    if (phase == "square") Type("b2");
    if (phase == "standby") form().btnStandbyMode.Click();
    if (phase != "between") return;
    Claim(0, 0);
    sim.clock.Advance(1000);
  }
  // A letter for each thing that the key changed: player, verdicts offered, question, its panel, entry, board, names
  // dialog, continue offered; "." for nothing.
  std::string Press(char key) {
    const std::vector<std::string> before = Look();
    Type({key});
    const std::vector<std::string> after = Look();
    std::string changes;
    for (std::size_t i = 0; i < after.size(); ++i) {
      if (before[i] != after[i]) changes += "pvqhebdk"[i];
    }
    return changes.empty() ? "." : changes;
  }
  // The writes to the shared key since the last look.
  std::string Written() {
    std::string text;
    for (const auto& [name, value] : sim.settings.Writes) text += name + "=" + value + " ";
    sim.settings.Writes.clear();
    return text;
  }

  GameState& state = show().state;

 private:
  std::vector<std::string> Look() {
    std::string board, dialogs;
    for (const auto& row : state.Board) board.append(row.begin(), row.end());
    for (const std::string& fault : sim.dialogs.TakeFaults()) dialogs += fault;
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
  // The phase, the game types, 1..5, that behave so, the keyboard control, and what each key changes.
  const std::tuple<const char*, std::string, bool, const char*> phases[] = {
      //               1 7 ^ Ctrl+N Ctrl+S Ctrl+U Ctrl+Z y n c X Enter Backspace
      {"idle", "12345", true, ". . . . . . . . . . . . ."},    {"open", "12", true, ". . . p . . d . . e . p ."},
      {"open", "3", true, ". . . p vhk . d vh p e . p ."},     {"open", "4", true, ". . . p pvhk . d vh p e . p ."},
      {"open", "5", true, "pv pv pv p hk . d . . e . p ."},    {"held", "5", true, ". . . . pvhk . d vh pv e . . ."},
      {"placing", "3", true, ". . . p k . d . . e . p ."},     {"placing", "4", true, ". . . p pk . d . . e . p ."},
      {"placing", "5", true, ". . . . pk . d . . e . . ."},    {"letter", "12", true, "e . . p . . d . . . . . e"},
      {"letter", "3", true, "e . . p k . d . . . . . e"},      {"square", "1", true, ". . . p . . d . . . . peb e"},
      {"square", "2", true, ". . . p . . d . . . . eb e"},     {"square", "5", true, ". . . . pk . d . . . . peb e"},
      {"between", "1", true, ". . . p . pb d . . e . p ."},    {"between", "2", true, ". . . p . b d . . e . p ."},
      {"between", "3", true, ". . . p . pb d . . vqhk . . ."}, {"between", "4", true, ". . . p p b d . . vqhk . . ."},
      {"between", "5", true, ". . . p . b d . . qhk . . ."},   {"standby", "1", true, ". . . p . . . . . . . . ."},
      {"standby", "3", true, ". . . p k . . . . . . . ."},     {"standby", "5", true, ". . . . pk . . . . . . . ."},
      {"open", "13", false, ". . . . . . . . . e . p ."},      {"open", "5", false, "pv pv pv . . . . . . e . p ."},
      {"between", "35", false, ". . . . . . . . . . . . ."}};
  for (const auto& [phase, types, keyControl, effects] : phases) {
    for (const char type : types) {
      std::unique_ptr<Keyboard> keyboard;
      std::string changes;
      for (const char* key = kKeys; *key != 0; ++key) {
        if (!keyboard) {
          keyboard = std::make_unique<Keyboard>(type - '0');
          keyboard->Reach(phase);
          keyboard->state.KeyControl = keyControl;
        }
        changes += (changes.empty() ? "" : " ") + keyboard->Press(*key);
        if (!changes.ends_with('.')) keyboard.reset();
      }
      EXPECT_EQ(changes, effects) << phase << " in type " << type;
    }
  }
}

TEST(Keyboard, TypesASquareByColumnLetterAndRowDigit) {
  const std::tuple<const char*, int, const char*, const char*> entries[] = {
      {"a letter of the board", 3, "c", "C"},
      {"no column D on 3x3", 3, "d", ""},
      {"column D on 4x4", 4, "D", "D"},
      {"no column E on 4x4", 4, "e", ""},
      {"never a column F", 5, "f", ""},
      {"a digit needs its letter", 5, "2", ""},
      {"a row past the board", 3, "b4", "B"},
      {"row 5 on 5x5", 5, "b5", "B5"},
      {"never a row 6", 5, "b6", "B"},
      {"back from the digit", 5, "b5\b", "B"},
      {"back to nothing", 5, "b5\b\b", ""},
      {"a third key changes nothing", 5, "b5a", "B5"},
      {"the column C of row 2", 3, "B\bC2\r", ""}};
  for (const auto& [what, size, keys, shown] : entries) {
    Keyboard keyboard(kChallengeModeA, size);
    keyboard.Begin();
    keyboard.Type(keys);
    EXPECT_EQ(keyboard.form().txtDJCommand.Text, shown) << what;
    EXPECT_EQ(keyboard.state.Board[1][2], std::string(keys).ends_with('\r') ? 1 : 0) << what;
  }
}

TEST(Keyboard, LettersBringUpTheirMediaWhateverElseTheyDo) {
  Keyboard keyboard(kTriviaModeA);
  for (const std::size_t row : {9U, 11U, 33U, 34U}) {
    const std::string path = "C:\\" + std::to_string(row) + ".wav";
    keyboard.sim.files.Write(path, "sound");
    keyboard.show().soundBanks[1][row] = path;
  }
  keyboard.Begin();
  keyboard.state.KeyControl = false;
  std::string played;
  for (const char key : std::string("AzYb@[`{c5")) {
    keyboard.sim.media.KeyPressPlayer.Url.clear();
    keyboard.Type({key});
    played += keyboard.sim.media.KeyPressPlayer.Url;
  }
  EXPECT_EQ(played, "C:\\9.wavC:\\34.wavC:\\33.wavC:\\11.wav");
  EXPECT_TRUE(keyboard.form().btnQuestionCorrect.Visible) << "keyboard control is off";
  EXPECT_EQ(keyboard.form().txtDJCommand.Text, "A") << "the letter is a column as well";
}

TEST(Keyboard, KeypadsRingInByTheRouting) {
  // The mode, the key, what its pad is routed to, the player after it and the writes to the shared key.
  const std::tuple<int, char, std::size_t, int, int, const char*> keypads[] = {
      {8, '4', 4, 2, 2, "sendkeypress=0 "},
      {8, '0', 10, 3, 3, "sendkeypress=0 "},
      {8, '4', 4, 4, 0, ""},
      {8, '3', 5, 1, 0, ""},
      {8, '^', 6, 1, 0, ""},
      {9, '1', 1, 1, 1, "sendkeypress=0 10=PLAYER 1 "},
      {9, '9', 9, 2, 2, "sendkeypress=0 11=PLAYER 2 "},
      {6, '4', 4, 2, 4, ""}};
  for (const auto& [mode, key, controller, routed, player, written] : keypads) {
    Keyboard keyboard(kTriviaModeC);
    keyboard.state.SerialComm = mode;
    keyboard.state.Routing.fill(0);
    keyboard.state.Routing[controller] = routed;
    keyboard.Begin();
    keyboard.Written();
    keyboard.Type({key});
    EXPECT_EQ(keyboard.state.CurrentPlayer, player) << mode << key;
    EXPECT_EQ(keyboard.Written(), written) << mode << key;
  }
  Keyboard keyboard(kTriviaModeC);
  keyboard.Begin();
  keyboard.state.Routing.fill(2);
  const std::tuple<int, int, int> groups[] = {{1, 6, 0}, {2, 5, 0}, {0, 0, 0}, {0, 10, 0}, {3, 0, 0}, {2, 0, 2}};
  for (const auto& [group, number, player] : groups) {
    SelectControllerPlayer(keyboard.show(), group, number);
    EXPECT_EQ(keyboard.state.CurrentPlayer, player) << group << " " << number;
  }
}

TEST(Keyboard, TellsTheExternalKeyboardProgramWhenPressesAreWanted) {
  Keyboard keyboard(kTriviaModeC);
  MainForm& form = keyboard.form();
  keyboard.state.SerialComm = 9;
  const std::string on = "sendkeypress=1 ", off = "sendkeypress=0 ";
  form.fileClearAllScores.Click();
  EXPECT_EQ(keyboard.Written(), "10=0 11=0 13=0 ");
  keyboard.sim.dialogs.ExpectFile("C:\\Pawnfield\\Trivia Sets\\Keys.txt");
  form.btnSelectGame.Click();
  EXPECT_EQ(keyboard.Written(), "10=0 11=0 12=0 ");
  form.btnStart.Click();
  EXPECT_EQ(keyboard.Written(), on + on) << "at the start and for its question";
  form.btnSelectPlayer[1].Click();
  form.btnQuestionIncorrect.Click();
  EXPECT_EQ(keyboard.Written(), off + on);
  form.btnSelectPlayer[1].Click();
  form.btnQuestionCorrect.Click();
  keyboard.Claim(1, 1);
  keyboard.sim.clock.Advance(1000);
  form.btnUndo.Click();
  EXPECT_EQ(keyboard.Written(), off + "11=0 ");
  keyboard.state.AutoContinue = 3;
  form.btnSkipQuestion.Click();
  keyboard.sim.clock.Advance(3000);
  EXPECT_EQ(keyboard.Written(), on + on) << "the question and the automatic continue";
  keyboard.sim.settings.FailSaves = 3;
  keyboard.sim.dialogs.ExpectMessage("Procedure: WriteSharedKey");
  for (int i = 0; i < 4; ++i) SendKeyPress(keyboard.show(), false);
  EXPECT_EQ(keyboard.Written(), off) << "three failures are told once";
}

}  // namespace
}  // namespace pawnfield
