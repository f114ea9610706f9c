#include "config/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/show.h"
#include "platform/sim/sim_platform.h"

namespace pawnfield {
namespace {

using testing::IsEmpty;

class Settings : public testing::Test {
 protected:
  ~Settings() override { EXPECT_THAT(machine.dialogs.TakeFaults(), IsEmpty()); }
  void Preset(const std::string& key, const std::string& value) {
    machine.settings.Preset("Pawnfield", "Settings", key, value);
  }

  SimPlatform machine;
  Show show{machine.platform};
};

constexpr const char* kMismatch =
    "Error Number: 13\r\nDescription: Type mismatch\r\nLocation: frmMain\r\nProcedure: Form_Load";
constexpr const char* kOverflow =
    "Error Number: 6\r\nDescription: Overflow\r\nLocation: frmMain\r\nProcedure: Form_Load";

TEST_F(Settings, IntegersAreSixteenBitsOrReported) {
  struct Case {
    const char* stored;
    int value;
    const char* message;
  };
  const Case cases[] = {{"12", 12, nullptr},      {" -7 ", -7, nullptr},     {"2.5", 2, nullptr},
                        {"3.5", 4, nullptr},      {"32767", 32767, nullptr}, {"-32768", -32768, nullptr},
                        {"32768", 42, kOverflow}, {"1e300", 42, kOverflow},  {"", 42, kMismatch},
                        {"five", 42, kMismatch},  {"True", 42, kMismatch}};
  for (const Case& c : cases) {
    Preset("Players", c.stored);
    if (c.message != nullptr) machine.dialogs.ExpectMessage(c.message);
    EXPECT_EQ(GetIntSetting(show, "Players", 42), c.value) << c.stored;
  }
  EXPECT_EQ(GetIntSetting(show, "Absent", 42), 42);
}

TEST_F(Settings, BooleansAndRealsAreConvertedOrReported) {
  const std::pair<const char*, bool> booleans[] = {{"True", true}, {"false", false}, {"-1", true}, {"0", false}};
  for (const auto& [stored, value] : booleans) {
    Preset("Animation", stored);
    EXPECT_EQ(GetBoolSetting(show, "Animation", !value), value) << stored;
  }
  Preset("Animation", "yes");
  for (const bool fallback : {true, false}) {
    machine.dialogs.ExpectMessage(kMismatch);
    EXPECT_EQ(GetBoolSetting(show, "Animation", fallback), fallback);
    EXPECT_EQ(GetBoolSetting(show, "Absent", fallback), fallback);
  }
  Preset("Screen1FG", "255.5");
  EXPECT_EQ(GetRealSetting(show, "screen1fg", 1), 255.5);
  Preset("Screen1FG", "red");
  machine.dialogs.ExpectMessage(kMismatch);
  EXPECT_EQ(GetRealSetting(show, "Screen1FG", 16777215), 16777215);
}

TEST_F(Settings, AnEmptyStoreGivesEveryScreenItsDefaults) {
  for (ScreenStyle& style : show.state.ScreenFonts) style = {"Arial", 8, true, false, 5, 5};
  show.state.LCDResolutions = 3;
  show.state.LCDScreensTop = 9;
  LoadScreenSettings(show);
  for (const ScreenStyle& style : show.state.ScreenFonts) {
    EXPECT_EQ(style.FontName, "Comic Sans MS");
    EXPECT_EQ(style.FontSize, 100);
    EXPECT_TRUE(style.FontBold);
    EXPECT_FALSE(style.FontItalic);
    EXPECT_EQ(style.BackColor, 0);
    EXPECT_EQ(style.ForeColor, 16777215);
  }
  EXPECT_EQ(show.state.LCDResolutions, 1);
  EXPECT_EQ(show.state.LCDScreensTop, 0);
}

TEST_F(Settings, ScreenValuesOutOfRangeAreClampedAndUnreadableOnesSpareTheRest) {
  Preset("Screen1Font", "   ");
  Preset("Screen2FontSize", "0");
  Preset("Screen3FontBold", "maybe");
  Preset("Screen3FontItalic", "True");
  Preset("LCDScreensTop", "-300");
  machine.dialogs.ExpectMessage(kMismatch);
  LoadScreenSettings(show);
  EXPECT_EQ(show.state.ScreenFonts[0].FontName, "Comic Sans MS");
  EXPECT_EQ(show.state.ScreenFonts[1].FontSize, 100);
  EXPECT_TRUE(show.state.ScreenFonts[2].FontBold);
  EXPECT_TRUE(show.state.ScreenFonts[2].FontItalic);
  EXPECT_EQ(show.state.LCDScreensTop, -300);

  const std::pair<const char*, int> resolutions[] = {{"0", 1}, {"1", 1}, {"3", 3}, {"4", 1}, {"-1", 1}};
  Preset("Screen3FontBold", "True");
  for (const auto& [stored, value] : resolutions) {
    Preset("LCDResolutions", stored);
    LoadScreenSettings(show);
    EXPECT_EQ(show.state.LCDResolutions, value) << stored;
  }
}

// A value of its own for every key, so that a pair mixed up or left out shows.
void FillWithMarks(GameState& state) {
  for (std::size_t i = 1; i <= 20; ++i) state.Routing[i] = static_cast<int>(100 + i);
  state.MODPictureTimer = 6;
  state.GameType = 2;
  state.Players = 11;
  state.HideQuestion = false;
  state.GridSize = 4;
  state.SoundSet = 12;
  state.KeyControl = false;
  state.Animation = true;
  state.TimedResponse = 7;
  state.PenaltyPoints = 20;
  state.KeyCorrect = "C";
  state.KeyIncorrect = "I";
  state.GameEnds = true;
  state.IncorrectPenalty = true;
  state.LedEffects = 13;
  state.LedSpeed = 14;
  state.SerialComm = 15;
  state.AutoContinue = 16;
  state.Player2Penalty = true;
  state.EventPlayerVolume = 21;
  state.KeyPressPlayerVolume = 22;
  state.SoundClipPlayerVolume = 23;
  state.BackgroundPlayerVolume = 24;
  state.CorrectIncorrectVolume = 25;
  state.TSSupport = true;
  state.ScreenFonts = {
      {{"F1", 31, true, false, 41, 51}, {"F2", 32, false, true, 42.5, 52}, {"F3", 33, true, false, 43, 53}}};
  state.ZR650 = true;
  state.LCDResolutions = 7;
  state.BackgroundMusic = 2;
  state.BgMusicFileName = "C:\\m.mp3";
  state.LCDScreensTop = -45;
}

TEST_F(Settings, TheExitSavesEveryKeyInOrder) {
  FillWithMarks(show.state);
  SaveAllSettings(show);
  std::vector<std::pair<std::string, std::string>> wanted;
  for (int i = 1; i <= 20; ++i) wanted.emplace_back("Routing" + std::to_string(i), std::to_string(100 + i));
  const std::pair<const char*, const char*> rest[] = {{"RememberCommPort", "False"},
                                                      {"MODPictureTimer", "6"},
                                                      {"GameType", "2"},
                                                      {"Players", "11"},
                                                      {"HideQuestion", "False"},
                                                      {"GridControl", "4"},
                                                      {"SoundSet", "12"},
                                                      {"KeyControl", "False"},
                                                      {"Animation", "True"},
                                                      {"TimedResponse", "7"},
                                                      {"PenaltyPoints", "20"},
                                                      {"KeyCorrect", "C"},
                                                      {"KeyIncorrect", "I"},
                                                      {"GameEnds", "True"},
                                                      {"IncorrectPenalty", "True"},
                                                      {"LedEffects", "13"},
                                                      {"LedSpeed", "14"},
                                                      {"SerialComm", "15"},
                                                      {"AutoContinue", "16"},
                                                      {"Player1Penalty", "False"},
                                                      {"Player2Penalty", "True"},
                                                      {"Player3Penalty", "False"},
                                                      {"EventPlayerVolume", "21"},
                                                      {"KeyPressPlayerVolume", "22"},
                                                      {"SoundClipPlayerVolume", "23"},
                                                      {"BackgroundPlayerVolume", "24"},
                                                      {"CorrectIncorrectVolume", "25"},
                                                      {"MicsOnWithBuzzer", "False"},
                                                      {"TSSupport", "True"},
                                                      {"Screen1BG", "41"},
                                                      {"Screen2BG", "42.5"},
                                                      {"Screen3BG", "43"},
                                                      {"Screen1FG", "51"},
                                                      {"Screen2FG", "52"},
                                                      {"Screen3FG", "53"},
                                                      {"Screen1Font", "F1"},
                                                      {"Screen2Font", "F2"},
                                                      {"Screen3Font", "F3"},
                                                      {"Screen1FontSize", "31"},
                                                      {"Screen2FontSize", "32"},
                                                      {"Screen3FontSize", "33"},
                                                      {"Screen1FontBold", "False"},
                                                      {"Screen2FontBold", "True"},
                                                      {"Screen3FontBold", "False"},
                                                      {"Screen1FontItalic", "True"},
                                                      {"Screen2FontItalic", "False"},
                                                      {"Screen3FontItalic", "True"},
                                                      {"FullScreenGameBoard", "False"},
                                                      {"ZR650", "True"},
                                                      {"LCDResolutions", "1"},
                                                      {"BackGroundMusic", "2"},
                                                      {"BgMusicFileName", "C:\\m.mp3"},
                                                      {"LCDScreensTop", "-45"}};
  for (const auto& [key, value] : rest) wanted.emplace_back(key, value);
  EXPECT_EQ(machine.settings.Writes, wanted);
}

TEST_F(Settings, WhatIsSavedIsReadBack) {
  FillWithMarks(show.state);
  SaveAllSettings(show);
  const GameState saved = show.state;
  show.state = {};
  LoadScreenSettings(show);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(show.state.ScreenFonts[i].FontName, saved.ScreenFonts[i].FontName);
    EXPECT_EQ(show.state.ScreenFonts[i].FontSize, saved.ScreenFonts[i].FontSize);
    EXPECT_EQ(show.state.ScreenFonts[i].FontBold, saved.ScreenFonts[i].FontBold);
    EXPECT_EQ(show.state.ScreenFonts[i].FontItalic, saved.ScreenFonts[i].FontItalic);
    EXPECT_EQ(show.state.ScreenFonts[i].BackColor, saved.ScreenFonts[i].BackColor);
    EXPECT_EQ(show.state.ScreenFonts[i].ForeColor, saved.ScreenFonts[i].ForeColor);
  }
  EXPECT_EQ(show.state.LCDScreensTop, -45);
  EXPECT_EQ(GetIntSetting(show, "BackgroundMusic", 0), 2) << "keys know no case";
  EXPECT_EQ(GetIntSetting(show, "Routing20", 20), 120);
  EXPECT_TRUE(GetBoolSetting(show, "TSSupport", false));
}

}  // namespace
}  // namespace pawnfield
