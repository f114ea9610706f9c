// What the console's load makes of stored settings, and what the exit makes of them again.
#include <set>
#include <sstream>

#include "forms/player_names_form.h"
#include "platform/text.h"
#include "show/settings_table.h"
#include "support/game_player.h"
#include "support/seen.h"

namespace pawnfield {
namespace {

// What a show saves that is started on a store and closed again, each as "key=value".
std::vector<std::string> SavedAfter(const std::vector<std::string>& store) {
  ShowFixture fixture(Screens::One);
  fixture.sim.files.Put("C:\\m.mp3", "music");
  for (const std::string& line : store) {
    fixture.Preset(line.substr(0, line.find('=')), line.substr(line.find('=') + 1));
  }
  fixture.Start();
  fixture.sim.settings.Writes.clear();
  fixture.Exit();
  std::vector<std::string> saved;
  for (const auto& [key, value] : fixture.sim.settings.Writes) saved.push_back(key + "=" + value);
  return saved;
}

std::vector<std::string> Words(const std::string& text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}

TEST(SettingsAtStart, EveryKeyComesBackAtTheExitInItsOrder) {
  // The external keyboard program is told before anything is saved.
  std::vector<std::string> store{"sendkeypress=0"};
  for (int i = 1; i <= 20; ++i) store.push_back("Routing" + std::to_string(i) + "=" + std::to_string(21 - i));
  for (const std::string& line : Words(
           "RememberCommPort=False MODPictureTimer=6 GameType=2 Players=2 HideQuestion=False GridControl=4 SoundSet=7 "
           "KeyControl=False Animation=True TimedResponse=7 PenaltyPoints=20 KeyCorrect=C KeyIncorrect=I "
           "GameEnds=True IncorrectPenalty=True LedEffects=13 LedSpeed=900 SerialComm=6 AutoContinue=5 "
           "Player1Penalty=False Player2Penalty=True Player3Penalty=False EventPlayerVolume=0 KeyPressPlayerVolume=22 "
           "SoundClipPlayerVolume=23 BackgroundPlayerVolume=24 CorrectIncorrectVolume=25 MicsOnWithBuzzer=True "
           "TSSupport=True Screen1BG=41 Screen2BG=42.5 Screen3BG=43 Screen1FG=51 Screen2FG=52 Screen3FG=53 "
           "Screen1Font=F1 Screen2Font=F2 Screen3Font=F3 Screen1FontSize=31 Screen2FontSize=32 Screen3FontSize=33 "
           "Screen1FontBold=False Screen2FontBold=True Screen3FontBold=False Screen1FontItalic=True "
           "Screen2FontItalic=False Screen3FontItalic=True FullScreenGameBoard=False ZR650=False LCDResolutions=3 "
           "BackGroundMusic=2 BgMusicFileName=C:\\m.mp3 LCDScreensTop=-45")) {
    store.push_back(line);
  }
  EXPECT_EQ(SavedAfter(store), store);
}

TEST(SettingsAtStart, ValuesAreTakenOrClamped) {
  // Stored values of a key, and what becomes of each.
  const std::tuple<std::string, const char*, const char*> clamps[] = {
      {"Routing1", "20 0", "20 1"},
      {"Routing20", "1 21", "1 1"},
      {"MODPictureTimer", "20 5 4 21", "20 5 5 5"},
      {"GameType", "1 5 0 6", "1 5 1 1"},
      {"Players", "3 4 1", "3 3 3"},
      {"GridControl", "3 2 6", "3 5 5"},
      {"TimedResponse", "10 4", "10 0"},
      {"PenaltyPoints", "10 15 -1 11", "10 0 0 0"},
      {"AutoContinue", "6 7 2", "6 3 3"},
      {"BackgroundPlayerVolume", "100 101 -1", "100 75 75"},
      {"LCDResolutions", "1 4 0 -1", "1 1 1 1"},
      {"Screen1FontSize", "0 -7", "100 -7"},
      {"BackGroundMusic", "3 -1", "0 0"},
      {"KeyCorrect", "Q", "Q"}};
  const auto savedFor = [](const std::string& key, const std::string& stored) {
    for (const std::string& line : SavedAfter({key + "=" + stored})) {
      if (line.starts_with(key + "=")) return line.substr(key.size() + 1);
    }
    return std::string("none");
  };
  for (const auto& [key, stored, saved] : clamps) {
    for (std::size_t i = 0; i < Words(stored).size(); ++i) {
      EXPECT_EQ(savedFor(key, Words(stored)[i]), Words(saved)[i]) << key << " stored as " << Words(stored)[i];
    }
  }
  EXPECT_EQ(savedFor("KeyCorrect", "   ") + savedFor("KeyIncorrect", ""), "YN");
  EXPECT_EQ(savedFor("Screen3Font", "   "), "Comic Sans MS");
}

TEST(SettingsAtStart, AnEmptyStoreComesUpInTriviaModeCForThree) {
  std::string saved;
  for (const std::string& line : SavedAfter({})) saved += line + " ";
  EXPECT_EQ(
      saved.substr(saved.find("Routing20")),
      "Routing20=20 RememberCommPort=False MODPictureTimer=5 GameType=5 Players=3 HideQuestion=True GridControl=5 "
      "SoundSet=1 KeyControl=True Animation=False TimedResponse=0 PenaltyPoints=0 KeyCorrect=Y KeyIncorrect=N "
      "GameEnds=False IncorrectPenalty=False LedEffects=0 LedSpeed=5 SerialComm=6 AutoContinue=3 "
      "Player1Penalty=False Player2Penalty=False Player3Penalty=False EventPlayerVolume=75 "
      "KeyPressPlayerVolume=75 SoundClipPlayerVolume=75 BackgroundPlayerVolume=75 CorrectIncorrectVolume=75 "
      "MicsOnWithBuzzer=False TSSupport=False Screen1BG=0 Screen2BG=0 Screen3BG=0 Screen1FG=16777215 "
      "Screen2FG=16777215 Screen3FG=16777215 Screen1Font=Comic Sans MS Screen2Font=Comic Sans MS "
      "Screen3Font=Comic Sans MS Screen1FontSize=100 Screen2FontSize=100 Screen3FontSize=100 "
      "Screen1FontBold=True Screen2FontBold=True Screen3FontBold=True Screen1FontItalic=False "
      "Screen2FontItalic=False Screen3FontItalic=False FullScreenGameBoard=False ZR650=False LCDResolutions=1 "
      "BackGroundMusic=0 BgMusicFileName= LCDScreensTop=0 ");
}

TEST(SettingsAtStart, ListsShowTheStoredChoice) {
  ShowFixture fixture;
  for (const auto& [key, value] : {std::pair{"AutoContinue", "6"},
                                   {"PenaltyPoints", "20"},
                                   {"TimedResponse", "5"},
                                   {"Scoring", "2"},
                                   {"SoundSet", "3"}}) {
    fixture.Preset(key, value);
  }
  fixture.Start();
  ExpectSeen(fixture.show(), "cboAutoContinue=User_Advances cboTimedResponse=5 cbxScore(0)=20 optSoundBank(2)=1",
             " the start");
  EXPECT_EQ(fixture.show().frmPlayerNames.cboPenaltyPoints.ListIndex, 11);
  EXPECT_TRUE(fixture.show().state.ShowBaseHeader);
}

TEST(Settings, ATextIsConvertedOrNothingIsTaken) {
  const std::tuple<const char*, const char*, const char*> texts[] = {
      {"LCDScreensTop", " -7 |2.5|3.5|32767|-32768", "-7|2|4|32767|-32768"},
      {"LCDScreensTop", "32768|-32769|1e300||five|True", "-|-|-|-|-|-"},
      {"Animation", "True|false|-1|0|yes||", "True|False|True|False|-|-|-"},
      {"Screen1BG", "42.5|-1e3|white", "42.5|-1000|-"}};
  for (const auto& [key, stored, wanted] : texts) {
    std::istringstream in(stored), out(wanted);
    for (std::string text, saved; std::getline(out, saved, '|');) {
      std::getline(in, text, '|');
      GameState state;
      const bool taken = SettingOf(key).Take(state, text);
      EXPECT_EQ(taken ? SettingOf(key).Text(state) : "-", saved) << key << " stored as " << text;
    }
  }
}

TEST(Settings, NoKeyStandsTwiceInTheTable) {
  std::set<std::string> keys;
  for (const SettingRow& row : SettingsTable()) EXPECT_TRUE(keys.insert(ToLower(row.Key)).second) << row.Key;
}

TEST(SettingsAtStart, OneBoxListsWhatCannotBeReadAndWhatStandsInstead) {
  ShowFixture fixture(Screens::One);
  for (const auto& [key, value] : {std::pair{"Routing7", "nonsense"},
                                   {"Routing2", "9"},
                                   {"GameType", "99999"},
                                   {"HideQuestion", "perhaps"},
                                   {"Screen3FontBold", ""},
                                   {"Screen3FontSize", "44"},
                                   {"Scoring", "many"},
                                   {"BackgroundPlayerVolume", "33"}}) {
    fixture.Preset(key, value);
  }
  fixture.sim.hid.PlugTransceiver();
  fixture.sim.dialogs.ExpectMessage(
      "These settings cannot be read. What stands instead:\r\n\r\nRouting7 = 7\r\nGameType = 5\r\n"
      "HideQuestion = True\r\nScreen3FontBold = True\r\nScoring = 5");
  fixture.Start();
  const GameState& state = fixture.show().state;
  EXPECT_EQ((std::array{state.Routing[7], state.Routing[2], static_cast<int>(state.GameType),
                        state.BackgroundPlayerVolume, state.ScreenFonts[3].FontSize, state.Scoring}),
            (std::array{7, 9, static_cast<int>(GameMode::TriviaC), 33, 44, 5}));
  EXPECT_TRUE(IsFormVisible(fixture.show(), "frmMain"));
  EXPECT_TRUE(fixture.sim.settings.Writes.empty()) << "what can't be read stays for whoever can";
}

TEST(SettingsAtStart, AStoreThatCannotBeReadIsReportedOnce) {
  ShowFixture fixture(Screens::One);
  fixture.sim.settings.Unreadable = "pawnfield.ini is no plain file.";
  fixture.sim.hid.PlugTransceiver();
  fixture.sim.dialogs.ExpectMessage("pawnfield.ini is no plain file.");
  fixture.Start();
}

TEST(SettingsInTheShow, AnOptionIsKeptWhenItChanges) {
  const std::pair<const char*, const char*> changes[] = {
      {"choose Challenge A", "GameType=1"},
      {"2 players", "Players=2"},
      {"3x3 board", "GridControl=3"},
      {"press Finish Row", "GameEnds=True"},
      {"press Animation", "Animation=True"},
      {"press Hide Question", "HideQuestion=False"},
      {"press Incorrect Penalty", "IncorrectPenalty=True"},
      {"press Keyboard Control", "KeyControl=False"},
      {"user advances", "AutoContinue=6"},
      {"choose entry 1 of cboTimedResponse", "TimedResponse=3"},
      {"press Sound Bank 3", "SoundSet=3"},
      {"squares worth 70", "Scoring=7"},
      {"lines worth 20", "Bonus=2"},
      {"at the options: press Companion; press Cancel", "TSSupport=True"},
      {"at the options: choose entry 2 of routing 1; choose entry 15 of picture time; press OK",
       "Routing1=3 MODPictureTimer=20"},
      {"at the names dialog: press chkPlayer2Penalty; press OK", "Player2Penalty=True"},
      {"choose Trivia C", ""}};
  for (const auto& [change, kept] : changes) {
    GamePlayer player("Trivia C, 5x5, not started");
    player.fixture().sim.settings.Writes.clear();
    player.Do(change);
    std::string saved;
    for (const auto& [key, value] : player.fixture().sim.settings.Writes) {
      saved += (saved.empty() ? "" : " ") + key + "=" + value;
    }
    EXPECT_EQ(saved, kept) << change;
  }
}

TEST(SettingsInTheShow, AFullDiskIsReportedOnceAndTheExitSavesAnew) {
  GamePlayer player("Trivia C, 5x5, not started");
  SimPlatform& sim = player.fixture().sim;
  sim.settings.FailSaves = 2;
  player.Do("expect Procedure: SaveSettings, 2 players, user advances, press Animation");
  player.fixture().Exit();
  EXPECT_EQ(sim.settings.GetSetting("Pawnfield", "Settings", "Players", ""), "2");
  EXPECT_EQ(sim.settings.Flushes, 1) << "the end waits for the disk";
}

TEST(SettingsInTheShow, AClaimAsksTheStoreNothing) {
  GamePlayer player("Challenge A, 5x5, not started");
  player.Do("squares worth 70, start");
  const int reads = player.fixture().sim.settings.Reads;
  player.Do("claim A1, scores 70/0/0");
  EXPECT_EQ(player.fixture().sim.settings.Reads, reads);
}

}  // namespace
}  // namespace pawnfield
