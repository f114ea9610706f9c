// What the console's load makes of stored settings, and what the exit makes of them again.
#include <map>
#include <sstream>

#include "../support/show_fixture.h"

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
      {"LCDResolutions", "4 0", "1 1"},
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
}

TEST(SettingsAtStart, AnEmptyStoreComesUpInTriviaModeCForThreeAndListsShowTheStoredChoice) {
  ShowFixture fixture;
  fixture.Preset("AutoContinue", "6");
  fixture.Preset("PenaltyPoints", "20");
  fixture.Preset("TimedResponse", "5");
  fixture.Preset("Scoring", "2");
  fixture.Preset("SoundSet", "3");
  fixture.Start();
  const GameState& state = fixture.show().state;
  EXPECT_EQ((std::array{state.GameType, state.GridSize, state.Players, state.Routing[1], state.Routing[20]}),
            (std::array{kTriviaModeC, 5, 3, 1, 20}));
  EXPECT_TRUE(state.HideQuestion && state.KeyControl && state.ShowBaseHeader);
  EXPECT_FALSE(state.Animation || state.GameEnds || state.IncorrectPenalty || state.TSSupport);
  EXPECT_EQ(fixture.sim.media.SoundClipPlayer.Volume, 75);
  EXPECT_EQ(fixture.form().cboAutoContinue.Text(), "User Advances");
  EXPECT_EQ(fixture.show().frmPlayerNames.cboPenaltyPoints.ListIndex, 11);
  EXPECT_EQ(fixture.form().cboTimedResponse.Text() + " " + fixture.form().cbxScore[0].Text(), "5 20");
  EXPECT_TRUE(fixture.form().optSoundBank[2].Value);
}

TEST(SettingsAtStart, EachUnreadableValueIsToldAndTheRestStillLoads) {
  for (const char* key : {"Routing7", "GameType", "HideQuestion", "SoundSet", "EventPlayerVolume", "Screen2BG",
                          "LCDScreensTop", "TSSupport", "LedSpeed", "MODPictureTimer"}) {
    ShowFixture fixture(Screens::One);
    for (const auto& [name, value] :
         {std::pair{key, "nonsense"}, {"Routing2", "9"}, {"BackgroundPlayerVolume", "33"}, {"Screen3FontSize", "44"}}) {
      fixture.sim.settings.Preset("Pawnfield", "Settings", name, value);
    }
    fixture.sim.hid.PlugTransceiver();
    fixture.sim.dialogs.ExpectMessage("Error Number: 13\r\nDescription: Type mismatch\r\nLocation: frmMain\r\n");
    fixture.Start();
    const GameState& state = fixture.show().state;
    EXPECT_EQ((std::array{state.Routing[7], state.Routing[2], state.GameType, state.BackgroundPlayerVolume,
                          state.ScreenFonts[2].FontSize}),
              (std::array{7, 9, static_cast<int>(kTriviaModeC), 33, 44}))
        << key;
    EXPECT_TRUE(fixture.form().Visible) << key;
  }
}

}  // namespace
}  // namespace pawnfield
