// What the console's load makes of stored settings: defaults, clamps, and values that can't be read.
#include <gtest/gtest.h>

#include "../support/show_fixture.h"

namespace pawnfield {
namespace {

struct Case {
  const char* key;
  const char* stored;
  std::string wanted;
  std::string (*running)(const GameState&);
};

template <auto Member>
std::string Running(const GameState& state) {
  if constexpr (std::is_same_v<decltype(state.*Member), const std::string&>) {
    return state.*Member;
  } else {
    return std::to_string(state.*Member);
  }
}

template <std::size_t Remote>
std::string Routing(const GameState& state) {
  return std::to_string(state.Routing[Remote]);
}

using S = GameState;

const Case kClamps[] = {
    {"Routing1", "20", "20", Routing<1>},
    {"Routing1", "0", "1", Routing<1>},
    {"Routing20", "21", "1", Routing<20>},
    {"MODPictureTimer", "20", "20", Running<&S::MODPictureTimer>},
    {"MODPictureTimer", "4", "5", Running<&S::MODPictureTimer>},
    {"MODPictureTimer", "21", "5", Running<&S::MODPictureTimer>},
    {"GameType", "4", "4", Running<&S::GameType>},
    {"GameType", "0", "1", Running<&S::GameType>},
    {"GameType", "6", "1", Running<&S::GameType>},
    {"Players", "2", "2", Running<&S::Players>},
    {"Players", "4", "3", Running<&S::Players>},
    {"GridControl", "3", "3", Running<&S::GridSize>},
    {"GridControl", "2", "5", Running<&S::GridSize>},
    {"GridControl", "6", "5", Running<&S::GridSize>},
    {"SoundSet", "7", "7", Running<&S::SoundSet>},
    {"TimedResponse", "7", "7", Running<&S::TimedResponse>},
    {"TimedResponse", "4", "0", Running<&S::TimedResponse>},
    {"PenaltyPoints", "10", "10", Running<&S::PenaltyPoints>},
    {"PenaltyPoints", "20", "20", Running<&S::PenaltyPoints>},
    {"PenaltyPoints", "15", "0", Running<&S::PenaltyPoints>},
    {"PenaltyPoints", "-1", "0", Running<&S::PenaltyPoints>},
    {"KeyCorrect", "   ", "Y", Running<&S::KeyCorrect>},
    {"KeyIncorrect", "", "N", Running<&S::KeyIncorrect>},
    {"KeyIncorrect", "Q", "Q", Running<&S::KeyIncorrect>},
    {"AutoContinue", "6", "6", Running<&S::AutoContinue>},
    {"AutoContinue", "7", "3", Running<&S::AutoContinue>},
    {"AutoContinue", "2", "3", Running<&S::AutoContinue>},
    {"LedSpeed", "900", "900", Running<&S::LedSpeed>},
    {"EventPlayerVolume", "0", "0", Running<&S::EventPlayerVolume>},
    {"BackgroundPlayerVolume", "101", "75", Running<&S::BackgroundPlayerVolume>},
    {"LCDResolutions", "4", "1", Running<&S::LCDResolutions>},
    {"BackGroundMusic", "3", "0", Running<&S::BackgroundMusic>},
    {"HideQuestion", "False", "0", Running<&S::HideQuestion>},
    {"KeyControl", "False", "0", Running<&S::KeyControl>},
    {"Animation", "True", "1", Running<&S::Animation>},
    {"GameEnds", "True", "1", Running<&S::GameEnds>},
    {"IncorrectPenalty", "True", "1", Running<&S::IncorrectPenalty>},
    {"Player2Penalty", "True", "1", Running<&S::Player2Penalty>},
    {"MicsOnWithBuzzer", "True", "1", Running<&S::MicsOnWithBuzzer>},
    {"ShowBaseHeader", "False", "0", Running<&S::ShowBaseHeader>},
};

TEST(SettingsAtStart, ValuesAreTakenOrClamped) {
  for (const Case& c : kClamps) {
    ShowFixture fixture(Screens::One);
    fixture.sim.settings.Preset("Pawnfield", "Settings", c.key, c.stored);
    fixture.Start();
    EXPECT_EQ(c.running(fixture.show().state), c.wanted) << c.key << " stored as " << c.stored;
  }
}

TEST(SettingsAtStart, AnEmptyStoreComesUpInTriviaModeCForThree) {
  ShowFixture fixture;
  fixture.Start();
  const GameState& state = fixture.show().state;
  EXPECT_EQ(state.GameType, kTriviaModeC);
  EXPECT_EQ(state.GridSize, 5);
  EXPECT_EQ(state.Players, 3);
  for (std::size_t remote = 1; remote <= 20; ++remote) EXPECT_EQ(state.Routing[remote], static_cast<int>(remote));
  EXPECT_TRUE(state.HideQuestion && state.KeyControl && state.ShowBaseHeader);
  EXPECT_FALSE(state.Animation || state.GameEnds || state.IncorrectPenalty || state.TSSupport);
  EXPECT_EQ(fixture.sim.media.SoundClipPlayer.Volume, 75);
}

TEST(SettingsAtStart, ListsShowTheStoredChoice) {
  const std::pair<const char*, const char*> stored[] = {
      {"AutoContinue", "6"}, {"PenaltyPoints", "20"}, {"TimedResponse", "5"}, {"Scoring", "2"}, {"SoundSet", "3"}};
  ShowFixture fixture;
  for (const auto& [key, value] : stored) fixture.sim.settings.Preset("Pawnfield", "Settings", key, value);
  fixture.Start();
  EXPECT_EQ(fixture.form().cboAutoContinue.Text(), "User Advances");
  EXPECT_EQ(fixture.show().frmPlayerNames.cboPenaltyPoints.ListIndex, 11);
  EXPECT_EQ(fixture.form().cboTimedResponse.Text(), "5");
  EXPECT_EQ(fixture.form().cbxScore[0].Text(), "20");
  EXPECT_TRUE(fixture.form().optSoundBank[2].Value);
}

TEST(SettingsAtStart, EachUnreadableValueIsToldAndTheRestStillLoads) {
  for (const char* key : {"Routing7", "GameType", "HideQuestion", "SoundSet", "EventPlayerVolume", "Screen2BG",
                          "LCDScreensTop", "TSSupport", "LedSpeed", "MODPictureTimer"}) {
    ShowFixture fixture(Screens::One);
    fixture.sim.settings.Preset("Pawnfield", "Settings", key, "nonsense");
    fixture.sim.settings.Preset("Pawnfield", "Settings", "Routing2", "9");
    fixture.sim.settings.Preset("Pawnfield", "Settings", "BackgroundPlayerVolume", "33");
    fixture.sim.settings.Preset("Pawnfield", "Settings", "Screen3FontSize", "44");
    fixture.sim.dialogs.ExpectMessage("No hardware was detected");
    fixture.sim.dialogs.ExpectMessage("Error Number: 13\r\nDescription: Type mismatch\r\nLocation: frmMain\r\n");
    Main(fixture.show());
    fixture.sim.clock.Advance(10000);
    const GameState& state = fixture.show().state;
    EXPECT_EQ(state.Routing[7], 7) << key;
    EXPECT_EQ(state.Routing[2], 9) << key;
    EXPECT_EQ(state.GameType, kTriviaModeC) << key;
    EXPECT_EQ(state.BackgroundPlayerVolume, 33) << key;
    EXPECT_EQ(state.ScreenFonts[2].FontSize, 44) << key;
    EXPECT_TRUE(fixture.form().Visible) << key;
  }
}

}  // namespace
}  // namespace pawnfield
