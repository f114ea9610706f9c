#include "show/settings.h"

#include <utility>

#include "platform/errors.h"
#include "show/settings_table.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr const char* kSection = "Settings";

void Save(Show& show, const std::vector<Setting>& settings) {
  show.platform.settings.SaveSettings(kAppTitle, kSection, settings);
}

// One line for a setting that can't be read, or none when all is well with it.
std::string LoadSetting(Show& show, const SettingRow& row) {
  const std::string text = show.platform.settings.GetSetting(kAppTitle, kSection, row.Key, row.Default);
  if (row.Take(show.state, text)) return {};
  row.Take(show.state, row.Default);
  return "\r\n" + row.Key + " = " + row.Default;
}

void ReportUnreadable(Show& show, const std::string& problem, const std::string& lines) {
  std::string text;
  if (!problem.empty())
    text = "The settings cannot be read, so that every option stands as at the first start:\r\n" + problem;
  if (!lines.empty()) text = "These settings cannot be read. What stands instead:\r\n" + lines;
  if (!text.empty()) show.platform.dialogs.MessageBox(text, kAppTitle, BoxKind::Exclamation);
}

std::vector<std::string> TextsOf(const GameState& state) {
  std::vector<std::string> texts;
  for (const SettingRow& row : SettingsTable()) texts.push_back(row.Text(state));
  return texts;
}

}  // namespace

void LoadSettings(Show& show) {
  std::string lines;
  for (const SettingRow& row : SettingsTable()) {
    if (row.Read == ReadAt::Load) lines += LoadSetting(show, row);
  }
  ReportUnreadable(show, show.platform.settings.Problem(kAppTitle), lines);
}

void BeginSavingSettings(Show& show) { show.SavedSettings = TextsOf(show.state); }

void SaveChangedSettings(Show& show) {
  if (show.SavedSettings.empty()) return;
  std::vector<Setting> changed;
  const auto& table = SettingsTable();
  for (std::size_t i = 0; i < table.size(); ++i) {
    std::string text = table[i].Text(show.state);
    if (text == show.SavedSettings[i]) continue;
    // Also after a failure: the exit saves it once more, and a full disk isn't asked at each event.
    show.SavedSettings[i] = text;
    changed.push_back({table[i].Key, std::move(text)});
  }
  if (changed.empty()) return;
  try {
    show.platform.settings.SaveSettingsAsync(kAppTitle, kSection, changed);
    show.SettingsFail = false;
  } catch (const RuntimeError& error) {
    ReportSettingsFailure(show, error);
  }
}

void SaveSetting(Show& show, const std::string& key, const std::string& value) { Save(show, {{key, value}}); }

void SaveSettingOrReport(Show& show, const std::string& key, const Form& form, const std::string& procedure) {
  const auto& table = SettingsTable();
  for (std::size_t i = 0; i < show.SavedSettings.size(); ++i) {
    if (table[i].Key == key) show.SavedSettings[i] = table[i].Text(show.state);
  }
  RunGuarded(
      show.platform.dialogs, [&] { SaveSetting(show, key, SettingOf(key).Text(show.state)); }, form.Name(), procedure);
}

void SaveAllSettings(Show& show) {
  std::vector<Setting> settings;
  for (const SettingRow& row : SettingsTable()) {
    if (row.Save == SaveAt::ExitToo) settings.push_back({row.Key, row.Text(show.state)});
  }
  if (!show.SavedSettings.empty()) show.SavedSettings = TextsOf(show.state);
  Save(show, settings);
  show.platform.settings.Flush();
}

void ReportSettingsFailure(Show& show, const RuntimeError& error) {
  if (!std::exchange(show.SettingsFail, true)) {
    ReportError(show.platform.dialogs, error, "frmMain", "SaveSettings");
  }
}

}  // namespace pawnfield
