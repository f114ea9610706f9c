#include "show/settings.h"

#include <cstdint>
#include <limits>
#include <optional>

#include "platform/errors.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr const char* kSection = "Settings";
constexpr int kRoutingCount = 20;

void ReportUnreadable(Show& show, int number, const char* description) {
  ReportError(show.platform.dialogs, RuntimeError(number, description), "frmMain", "Form_Load");
}

std::string ScreenKey(int player, const char* field) { return "Screen" + std::to_string(player) + field; }

void LoadScreen(Show& show, int screen) {
  ScreenStyle& style = show.state.ScreenFonts[screen];
  style.BackColor = GetRealSetting(show, ScreenKey(screen, "BG"), 0);
  style.ForeColor = GetRealSetting(show, ScreenKey(screen, "FG"), kWhite);
  style.FontName = GetSetting(show, ScreenKey(screen, "Font"), "Comic Sans MS");
  if (Trim(style.FontName).empty()) style.FontName = "Comic Sans MS";
  style.FontSize = GetIntSetting(show, ScreenKey(screen, "FontSize"), 100);
  if (style.FontSize == 0) style.FontSize = 100;
  style.FontBold = GetBoolSetting(show, ScreenKey(screen, "FontBold"), true);
  style.FontItalic = GetBoolSetting(show, ScreenKey(screen, "FontItalic"), false);
}

void ClampResolution(GameState& state) {
  if (state.LCDResolutions < 1 || state.LCDResolutions > 3) state.LCDResolutions = 1;
}

// Collects settings by the type of their value.
class Saver {
 public:
  void operator()(const std::string& key, int value) { settings_.push_back({key, std::to_string(value)}); }
  void operator()(const std::string& key, bool value) { settings_.push_back({key, BooleanText(value)}); }
  void operator()(const std::string& key, double value) { settings_.push_back({key, NumberText(value)}); }
  void operator()(const std::string& key, const std::string& value) { settings_.push_back({key, value}); }
  void operator()(const std::string& key, const char*) = delete;

  void Finish(SettingsStore& store) const { store.SaveSettings(kAppTitle, kSection, settings_); }

 private:
  std::vector<Setting> settings_;
};

void SaveGameOptions(const GameState& state, Saver& save) {
  save("MODPictureTimer", state.MODPictureTimer);
  save("GameType", static_cast<int>(state.GameType));
  save("Players", state.Players);
  save("HideQuestion", state.HideQuestion);
  save("GridControl", state.GridSize);
  save("SoundSet", state.SoundSet);
  save("KeyControl", state.KeyControl);
  save("Animation", state.Animation);
  save("TimedResponse", state.TimedResponse);
  save("PenaltyPoints", state.PenaltyPoints);
  save("KeyCorrect", state.KeyCorrect);
  save("KeyIncorrect", state.KeyIncorrect);
  save("GameEnds", state.GameEnds);
  save("IncorrectPenalty", state.IncorrectPenalty);
  save("LedEffects", state.LedEffects);
  save("LedSpeed", state.LedSpeed);
  save("SerialComm", static_cast<int>(state.SerialComm));
  save("AutoContinue", state.AutoContinue);
  for (int player = 1; player <= kPlayers; ++player) {
    save("Player" + std::to_string(player) + "Penalty", state.PlayerPenalty[player]);
  }
}

void SaveDevices(const GameState& state, Saver& save) {
  save("EventPlayerVolume", state.EventPlayerVolume);
  save("KeyPressPlayerVolume", state.KeyPressPlayerVolume);
  save("SoundClipPlayerVolume", state.SoundClipPlayerVolume);
  save("BackgroundPlayerVolume", state.BackgroundPlayerVolume);
  save("CorrectIncorrectVolume", state.CorrectIncorrectVolume);
  save("MicsOnWithBuzzer", state.MicsOnWithBuzzer);
  save("TSSupport", state.TSSupport);
}

void SaveScreens(const PerPlayer<ScreenStyle>& screens, Saver& save) {
  const auto each = [&](const char* field, auto member) {
    for (int player = 1; player <= kPlayers; ++player) save(ScreenKey(player, field), screens[player].*member);
  };
  each("BG", &ScreenStyle::BackColor);
  each("FG", &ScreenStyle::ForeColor);
  each("Font", &ScreenStyle::FontName);
  each("FontSize", &ScreenStyle::FontSize);
  each("FontBold", &ScreenStyle::FontBold);
  each("FontItalic", &ScreenStyle::FontItalic);
}

}  // namespace

std::string GetSetting(const Show& show, const std::string& key, const std::string& fallback) {
  return show.platform.settings.GetSetting(kAppTitle, kSection, key, fallback);
}

void SaveSetting(Show& show, const std::string& key, const std::string& value) {
  show.platform.settings.SaveSetting(kAppTitle, kSection, key, value);
}

void SaveSettingOrTell(Show& show, const std::string& key, const std::string& value, const Form& form,
                       const std::string& procedure) {
  RunGuarded(
      show.platform.dialogs, [&] { SaveSetting(show, key, value); }, form.Name(), procedure);
}

int GetIntSetting(Show& show, const std::string& key, int fallback) {
  using Limits = std::numeric_limits<std::int16_t>;
  const std::optional<double> value = ParseNumber(GetSetting(show, key, std::to_string(fallback)));
  if (!value) {
    ReportUnreadable(show, kErrorTypeMismatch, "Type mismatch");
    return fallback;
  }
  if (*value < Limits::min() || *value > Limits::max()) {
    ReportUnreadable(show, kErrorOverflow, "Overflow");
    return fallback;
  }
  return static_cast<int>(RoundHalfEven(*value));
}

bool GetBoolSetting(Show& show, const std::string& key, bool fallback) {
  const std::optional<bool> value = ParseBoolean(GetSetting(show, key, BooleanText(fallback)));
  if (!value) ReportUnreadable(show, kErrorTypeMismatch, "Type mismatch");
  return value.value_or(fallback);
}

double GetRealSetting(Show& show, const std::string& key, double fallback) {
  const std::optional<double> value = ParseNumber(GetSetting(show, key, NumberText(fallback)));
  if (!value) ReportUnreadable(show, kErrorTypeMismatch, "Type mismatch");
  return value.value_or(fallback);
}

void LoadScreenSettings(Show& show) {
  for (int player = 1; player <= kPlayers; ++player) LoadScreen(show, player);
  show.state.LCDResolutions = GetIntSetting(show, "LCDResolutions", 1);
  ClampResolution(show.state);
  show.state.LCDScreensTop = GetIntSetting(show, "LCDScreensTop", 0);
}

void SaveAllSettings(Show& show) {
  GameState& state = show.state;
  ClampResolution(state);
  Saver save;
  for (int remote = 1; remote <= kRoutingCount; ++remote) {
    save("Routing" + std::to_string(remote), state.Routing[static_cast<std::size_t>(remote)]);
  }
  save("RememberCommPort", false);
  SaveGameOptions(state, save);
  SaveDevices(state, save);
  SaveScreens(state.ScreenFonts, save);
  save("FullScreenGameBoard", state.FullScreenGameBoard);
  save("ZR650", state.ZR650);
  save("LCDResolutions", state.LCDResolutions);
  save("BackGroundMusic", state.BackgroundMusic);
  save("BgMusicFileName", state.BgMusicFileName);
  save("LCDScreensTop", state.LCDScreensTop);
  save.Finish(show.platform.settings);
}

}  // namespace pawnfield
