// The keys of the console: what each kind of key does in each phase of each game type, the typed square, keypads, and
// whole games by keys alone.
#include "controllers/keyboard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "../support/show_fixture.h"
#include "controllers/shared_key.h"

namespace pawnfield {
namespace {

constexpr const char* kKeys = "17^\x0E\x13\x15\x1AyncX\r\b";

class Keyboard {
 public:
  explicit Keyboard(int gameType, int gridSize = 3) {
    fixture.WriteNumberedSet("Keys", 60);
    fixture.sim.settings.Preset("Pawnfield", "Settings", "GameType", std::to_string(gameType));
    fixture.sim.settings.Preset("Pawnfield", "Settings", "GridControl", std::to_string(gridSize));
    fixture.sim.settings.Preset("Pawnfield", "Settings", "AutoContinue", "6");
    fixture.Start();
  }
  void Begin() {
    if (IsQuestionType(show.state.GameType)) fixture.ChooseSet("Keys");
    form.btnStart.Click();
  }
  void Type(const std::string& keys) {
    for (const char key : keys) form.KeyPress(static_cast<unsigned char>(key));
  }
  // Brings a started game to the phase.
  void Reach(const std::string& phase) {
    if (phase == "idle") return;
    Begin();
    if (phase == "open") return;
    if (show.state.GameType == kTriviaModeC) form.btnSelectPlayer[1].Click();
    if (phase == "held") return;
    if (IsQuestionType(show.state.GameType)) form.btnQuestionCorrect.Click();
    if (phase == "letter") Type("b");
    if (phase == "square") Type("b2");
    if (phase == "standby") form.btnStandbyMode.Click();
    if (phase != "between") return;
    fixture.Claim(0, 0);
    fixture.sim.clock.Advance(1000);
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

  ShowFixture fixture;
  Show& show = fixture.show();
  MainForm& form = fixture.form();

 private:
  std::vector<std::string> Look() {
    std::string board;
    for (const auto& row : show.state.Board) board.append(row.begin(), row.end());
    std::string dialogs;
    for (const std::string& fault : fixture.sim.dialogs.TakeFaults()) dialogs += fault;
    const bool verdicts = form.btnQuestionCorrect.Visible;
    return {std::to_string(show.state.CurrentPlayer),
            std::to_string(verdicts),
            std::to_string(show.state.CurrentQuestion),
            std::to_string(form.picQuestion.Visible),
            show.entry.DJEntry + "/" + form.txtDJCommand.Text.Get(),
            board,
            dialogs,
            std::to_string(form.btnContinue.Enabled)};
  }
};

struct PhaseCase {
  const char* Phase;
  // The game types, 1..5, that behave so.
  const char* Types;
  bool KeyControl;
  // By key: 1 7 ^ Ctrl+N Ctrl+S Ctrl+U Ctrl+Z y n c X Enter Backspace.
  const char* Effects;
};

class KeysInPhase : public ::testing::TestWithParam<PhaseCase> {};

TEST_P(KeysInPhase, DoTheirPart) {
  const PhaseCase& row = GetParam();
  for (const char* type = row.Types; *type != 0; ++type) {
    std::unique_ptr<Keyboard> keyboard;
    std::string effects;
    for (const char* key = kKeys; *key != 0; ++key) {
      if (!keyboard) {
        keyboard = std::make_unique<Keyboard>(*type - '0');
        keyboard->Reach(row.Phase);
        keyboard->show.state.KeyControl = row.KeyControl;
      }
      effects += (effects.empty() ? "" : " ") + keyboard->Press(*key);
      if (!effects.ends_with('.')) keyboard.reset();
    }
    EXPECT_EQ(effects, row.Effects) << row.Phase << " in type " << *type;
  }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Phases, KeysInPhase, ::testing::Values(
    //                                       1  7  ^  N S    U  Z y  n  c   X CR  BS
    PhaseCase{"idle",    "12345", true,     ". . . . . . . . . . . . ."},
    PhaseCase{"open",    "12",    true,     ". . . p . . d . . e . p ."},
    PhaseCase{"open",    "3",     true,     ". . . p vhk . d vh p e . p ."},
    PhaseCase{"open",    "4",     true,     ". . . p pvhk . d vh p e . p ."},
    PhaseCase{"open",    "5",     true,     "pv pv pv p hk . d . . e . p ."},
    PhaseCase{"held",    "5",     true,     ". . . . pvhk . d vh pv e . . ."},
    PhaseCase{"placing", "3",     true,     ". . . p k . d . . e . p ."},
    PhaseCase{"placing", "4",     true,     ". . . p pk . d . . e . p ."},
    PhaseCase{"placing", "5",     true,     ". . . . pk . d . . e . . ."},
    PhaseCase{"letter",  "12",    true,     "e . . p . . d . . . . . e"},
    PhaseCase{"letter",  "3",     true,     "e . . p k . d . . . . . e"},
    PhaseCase{"square",  "1",     true,     ". . . p . . d . . . . peb e"},
    PhaseCase{"square",  "2",     true,     ". . . p . . d . . . . eb e"},
    PhaseCase{"square",  "5",     true,     ". . . . pk . d . . . . peb e"},
    PhaseCase{"between", "1",     true,     ". . . p . pb d . . e . p ."},
    PhaseCase{"between", "2",     true,     ". . . p . b d . . e . p ."},
    PhaseCase{"between", "3",     true,     ". . . p . pb d . . vqhk . . ."},
    PhaseCase{"between", "4",     true,     ". . . p p b d . . vqhk . . ."},
    PhaseCase{"between", "5",     true,     ". . . p . b d . . qhk . . ."},
    PhaseCase{"standby", "1",     true,     ". . . p . . . . . . . . ."},
    PhaseCase{"standby", "3",     true,     ". . . p k . . . . . . . ."},
    PhaseCase{"standby", "5",     true,     ". . . . pk . . . . . . . ."},
    PhaseCase{"open",    "13",    false,    ". . . . . . . . . e . p ."},
    PhaseCase{"open",    "5",     false,    "pv pv pv . . . . . . e . p ."},
    PhaseCase{"between", "35",    false,    ". . . . . . . . . . . . ."}));
// clang-format on

struct EntryCase {
  const char* What;
  int GridSize;
  const char *Keys, *Shown;
};

class TypedSquare : public ::testing::TestWithParam<EntryCase> {};

TEST_P(TypedSquare, ShowsWhatIsTypedSoFar) {
  Keyboard keyboard(kChallengeModeA, GetParam().GridSize);
  keyboard.Begin();
  keyboard.Type(GetParam().Keys);
  EXPECT_EQ(keyboard.form.txtDJCommand.Text, GetParam().Shown) << GetParam().What;
}

INSTANTIATE_TEST_SUITE_P(
    Keys, TypedSquare,
    ::testing::Values(EntryCase{"a letter of the board", 3, "c", "C"}, EntryCase{"no column D on 3x3", 3, "d", ""},
                      EntryCase{"column D on 4x4", 4, "D", "D"}, EntryCase{"no column E on 4x4", 4, "e", ""},
                      EntryCase{"never a column F", 5, "f", ""}, EntryCase{"a digit needs its letter", 5, "2", ""},
                      EntryCase{"a row past the board", 3, "b4", "B"}, EntryCase{"row 5 on 5x5", 5, "b5", "B5"},
                      EntryCase{"never a row 6", 5, "b6", "B"}, EntryCase{"back from the digit", 5, "b5\b", "B"},
                      EntryCase{"back to nothing", 5, "b5\b\b", ""},
                      EntryCase{"a third key changes nothing", 5, "b5a", "B5"}));

TEST(KeyboardTest, LetterIsTheColumnAndDigitTheRow) {
  Keyboard keyboard(kChallengeModeA);
  keyboard.Begin();
  keyboard.Type("B\bC2\r");
  EXPECT_EQ(keyboard.show.state.Board[1][2], 1);
  EXPECT_EQ(keyboard.show.state.LastSquareKey, "12");
  EXPECT_EQ(keyboard.form.txtDJCommand.Text, "");
}

TEST(KeyboardTest, HeldRingInKeyCountsOnce) {
  Keyboard keyboard(kTriviaModeC);
  keyboard.Begin();
  keyboard.Type("2");
  const std::size_t sounds = keyboard.fixture.sim.media.Log.size();
  keyboard.Type("2222213");
  EXPECT_EQ(keyboard.show.state.CurrentPlayer, 2);
  EXPECT_EQ(keyboard.fixture.sim.media.Log.size(), sounds);
  EXPECT_EQ(keyboard.fixture.audience().lblPlayerName.Caption, "PLAYER 2");
}

TEST(KeyboardTest, LettersBringUpTheirMediaWhateverElseTheyDo) {
  Keyboard keyboard(kTriviaModeA);
  for (const std::size_t row : {9U, 11U, 33U, 34U}) {
    const std::string path = "C:\\Pawnfield\\Sounds\\" + std::to_string(row) + ".wav";
    keyboard.fixture.sim.files.Write(path, "sound");
    keyboard.show.soundBanks[1][row] = path;
  }
  keyboard.Begin();
  keyboard.show.state.KeyControl = false;
  keyboard.fixture.sim.media.Log.clear();
  keyboard.Type("AzYb@[`{c5");
  std::string played;
  for (const std::string& line : keyboard.fixture.sim.media.Log) {
    if (line.starts_with("KeyPressPlayer url ")) played += line.substr(39) + " ";
  }
  EXPECT_EQ(played, "9.wav 34.wav 33.wav 11.wav ");
  EXPECT_TRUE(keyboard.form.btnQuestionCorrect.Visible) << "keyboard control is off";
  EXPECT_EQ(keyboard.form.txtDJCommand.Text, "A") << "the letter is a column as well";
}

struct KeypadCase {
  int SerialComm;
  // What the digit's pad is routed to.
  char Key;
  int Controller, Player;
  // CurrentPlayer, and the writes to the shared key.
  std::string Effect;
};

class Keypads : public ::testing::TestWithParam<KeypadCase> {};

TEST_P(Keypads, RingInByTheRouting) {
  const KeypadCase& row = GetParam();
  Keyboard keyboard(kTriviaModeC);
  keyboard.show.state.SerialComm = row.SerialComm;
  keyboard.show.state.Routing.fill(0);
  keyboard.show.state.Routing[static_cast<std::size_t>(row.Controller)] = row.Player;
  keyboard.Begin();
  auto& writes = keyboard.fixture.sim.settings.Writes;
  writes.clear();
  keyboard.Type({row.Key});
  std::string effect = std::to_string(keyboard.show.state.CurrentPlayer);
  for (const auto& [name, text] : writes) effect += " " + name + "=" + text;
  EXPECT_EQ(effect, row.Effect);
}

INSTANTIATE_TEST_SUITE_P(Keys, Keypads,
                         ::testing::Values(KeypadCase{8, '4', 4, 2, "2 sendkeypress=0"},
                                           KeypadCase{8, '0', 10, 3, "3 sendkeypress=0"}, KeypadCase{8, '4', 4, 4, "0"},
                                           KeypadCase{8, '3', 5, 1, "0"}, KeypadCase{8, '^', 6, 1, "0"},
                                           KeypadCase{9, '1', 1, 1, "1 sendkeypress=0 10=PLAYER 1"},
                                           KeypadCase{9, '9', 9, 2, "2 sendkeypress=0 11=PLAYER 2"},
                                           KeypadCase{9, '0', 10, 3, "3 sendkeypress=0 12=PLAYER 3"},
                                           KeypadCase{6, '4', 4, 2, "4"}));

TEST(KeyboardTest, GroupsOfPadsHaveTheirNumbers) {
  Keyboard keyboard(kTriviaModeC);
  keyboard.Begin();
  keyboard.show.state.Routing.fill(2);
  for (const auto& [group, number] : {std::pair{1, 6}, {2, 5}, {0, 0}, {0, 10}, {3, 0}}) {
    SelectControllerPlayer(keyboard.show, group, number);
    EXPECT_EQ(keyboard.show.state.CurrentPlayer, 0) << group << " " << number;
  }
  SelectControllerPlayer(keyboard.show, 2, 0);
  EXPECT_EQ(keyboard.show.state.CurrentPlayer, 2);
}

TEST(KeyboardTest, TellsTheExternalKeyboardProgramWhenPressesAreWanted) {
  Keyboard keyboard(kTriviaModeC);
  keyboard.show.state.SerialComm = 9;
  auto& writes = keyboard.fixture.sim.settings.Writes;
  const auto written = [&] {
    std::string text;
    for (const auto& [name, value] : writes) text += name + "=" + value + " ";
    writes.clear();
    return text;
  };
  const std::string on = "sendkeypress=1 ", off = "sendkeypress=0 ";
  keyboard.form.fileClearAllScores.Click();
  EXPECT_EQ(written(), "10=0 11=0 13=0 ");
  keyboard.fixture.sim.dialogs.ExpectFile("C:\\Pawnfield\\Trivia Sets\\Keys.txt");
  keyboard.form.btnSelectGame.Click();
  EXPECT_EQ(written(), "10=0 11=0 12=0 ");
  keyboard.form.btnStart.Click();
  EXPECT_EQ(written(), on + on) << "at the start and for its question";
  keyboard.form.btnSelectPlayer[1].Click();
  keyboard.form.btnQuestionIncorrect.Click();
  EXPECT_EQ(written(), off + on);
  keyboard.form.btnSelectPlayer[1].Click();
  keyboard.form.btnQuestionCorrect.Click();
  keyboard.fixture.Claim(1, 1);
  keyboard.fixture.sim.clock.Advance(1000);
  keyboard.form.btnUndo.Click();
  EXPECT_EQ(written(), off + "11=0 ");
  keyboard.show.state.AutoContinue = 3;
  keyboard.form.btnSkipQuestion.Click();
  keyboard.fixture.sim.clock.Advance(3000);
  EXPECT_EQ(written(), on + on) << "the question and the automatic continue";
  keyboard.fixture.sim.settings.FailSaves = 3;
  keyboard.fixture.sim.dialogs.ExpectMessage("Procedure: WriteSharedKey");
  for (int i = 0; i < 4; ++i) SendKeyPress(keyboard.show, false);
  EXPECT_EQ(written(), off) << "three failures are told once";
}

struct KeyGame {
  const char* Name;
  int GameType;
  // "/" Enter, "<" Backspace, "!" Ctrl+N, "*" Ctrl+S, "%" Ctrl+U; ">" lets two seconds pass.
  const char* Keys;
  const char *Board, *Scores, *Winner;
};

class GamesByKeys : public ::testing::TestWithParam<KeyGame> {};

TEST_P(GamesByKeys, ComeToTheirEnd) {
  const KeyGame& game = GetParam();
  const std::map<char, char> spelled{{'/', '\r'}, {'<', '\b'}, {'!', '\x0E'}, {'*', '\x13'}, {'%', '\x15'}};
  Keyboard keyboard(game.GameType);
  keyboard.form.optPlayers[0].Click();
  keyboard.form.optGameEnds[0].Click();
  keyboard.Begin();
  for (const char* key = game.Keys; *key != 0; ++key) {
    if (*key == '>') keyboard.fixture.sim.clock.Advance(2000);
    if (*key != '>') keyboard.Type({spelled.contains(*key) ? spelled.at(*key) : *key});
  }
  std::string board;
  for (std::size_t i = 0; i < 9; ++i) board += std::to_string(keyboard.show.state.Board[i / 3][i % 3]);
  EXPECT_EQ(board, game.Board);
  EXPECT_EQ(keyboard.fixture.Scores(), game.Scores);
  EXPECT_TRUE(keyboard.fixture.audience().picWinner.Visible);
  EXPECT_THAT(keyboard.fixture.audience().lblWinner.Caption.Get(), ::testing::HasSubstr(game.Winner));
}

INSTANTIATE_TEST_SUITE_P(Games, GamesByKeys,
                         ::testing::Values(KeyGame{"TriviaA", kTriviaModeA, "ya1/>cyb2/>cnya2/>c*cya3<<b1/>%b3/>cyc2/",
                                                   "100222010", "100 200 0", "PLAYER 2\r\nWins!"},
                                           KeyGame{"TriviaC", kTriviaModeC,
                                                   "222n1ya1/>c2yb2/>c*c1yb1/>%!b3/>c1yc1/>c1yb1/", "111020020",
                                                   "200 100 0", "PLAYER 1\r\nWins!"}),
                         [](const auto& game) { return game.param.Name; });

}  // namespace
}  // namespace pawnfield
