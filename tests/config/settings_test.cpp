#include "config/settings.h"

#include "platform/text.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

class Settings : public ShowFixture, public testing::Test {
 protected:
  std::string Screens() {
    LoadScreenSettings(show());
    std::string text;
    for (const ScreenStyle& style : show().state.ScreenFonts) {
      text += style.FontName + " " + std::to_string(style.FontSize) + (style.FontBold ? " bold" : "") +
              (style.FontItalic ? " italic " : " ") + NumberText(style.BackColor) + "/" + NumberText(style.ForeColor) +
              ", ";
    }
    return text + std::to_string(show().state.LCDResolutions) + " " + std::to_string(show().state.LCDScreensTop);
  }
};

constexpr const char* kMismatch =
    "Error Number: 13\r\nDescription: Type mismatch\r\nLocation: frmMain\r\nProcedure: Form_Load";
constexpr const char* kOverflow =
    "Error Number: 6\r\nDescription: Overflow\r\nLocation: frmMain\r\nProcedure: Form_Load";

TEST_F(Settings, ValuesAreConvertedOrReported) {
  const std::tuple<const char*, int, const char*> integers[] = {
      {" -7 ", -7, nullptr},       {"2.5", 2, nullptr},      {"3.5", 4, nullptr},       {"32767", 32767, nullptr},
      {"-32768", -32768, nullptr}, {"32768", 42, kOverflow}, {"-32769", 42, kOverflow}, {"1e300", 42, kOverflow},
      {"", 42, kMismatch},         {"five", 42, kMismatch},  {"True", 42, kMismatch}};
  for (const auto& [stored, value, message] : integers) {
    Preset("Players", stored);
    if (message != nullptr) sim.dialogs.ExpectMessage(message);
    EXPECT_EQ(GetIntSetting(show(), "players", 42), value) << stored;
  }
  for (const auto& [stored, value] : {std::pair{"True", true}, {"false", false}, {"-1", true}, {"0", false}}) {
    Preset("Animation", stored);
    EXPECT_EQ(GetBoolSetting(show(), "Animation", !value), value) << stored;
  }
  Preset("Animation", "yes");
  for (const bool fallback : {true, false}) {
    sim.dialogs.ExpectMessage(kMismatch);
    EXPECT_EQ(GetBoolSetting(show(), "Animation", fallback), fallback);
    EXPECT_EQ(GetBoolSetting(show(), "Absent", fallback), fallback);
  }
  Preset("Screen1FG", "red");
  sim.dialogs.ExpectMessage(kMismatch);
  EXPECT_EQ(GetRealSetting(show(), "Screen1FG", 16777215), 16777215);
}

TEST_F(Settings, ScreensTakeDefaultsClampsAndWhatCanBeRead) {
  for (ScreenStyle& style : show().state.ScreenFonts) style = {"Arial", 8, true, false, 5, 5};
  const std::string plain = "Comic Sans MS 100 bold 0/16777215, ";
  EXPECT_EQ(Screens(), plain + plain + plain + "1 0");
  const std::pair<const char*, const char*> stored[] = {
      {"Screen1Font", "   "},    {"Screen2Font", "Arial"},      {"Screen2FontSize", "0"}, {"Screen3FontBold", "maybe"},
      {"Screen3FontSize", "-7"}, {"Screen3FontItalic", "True"}, {"Screen2BG", "1.5"},     {"LCDScreensTop", "-300"}};
  for (const auto& [key, value] : stored) Preset(key, value);
  for (const auto& [resolution, value] : {std::pair{"0", "1"}, {"1", "1"}, {"3", "3"}, {"4", "1"}, {"-1", "1"}}) {
    Preset("LCDResolutions", resolution);
    sim.dialogs.ExpectMessage(kMismatch);
    EXPECT_EQ(Screens(),
              plain + "Arial 100 bold 1.5/16777215, Comic Sans MS -7 bold italic 0/16777215, " + value + " -300");
  }
}

}  // namespace
}  // namespace pawnfield
