// The settings of application "Pawnfield", section "Settings": typed reads and the save at exit.
#pragma once

#include <string>

namespace pawnfield {

class Form;
struct Show;

std::string GetSetting(const Show& show, const std::string& key, const std::string& fallback);
void SaveSetting(Show& show, const std::string& key, const std::string& value);
// The same, but a failure is told as the form's own and the caller goes on.
void SaveSettingOrTell(Show& show, const std::string& key, const std::string& value, const Form& form,
                       const std::string& procedure);

// A value that can't be converted is reported through the shared error box once and gives the fallback.
int GetIntSetting(Show& show, const std::string& key, int fallback);
bool GetBoolSetting(Show& show, const std::string& key, bool fallback);
double GetRealSetting(Show& show, const std::string& key, double fallback);

// The three score screens' styles, and LCDResolutions and LCDScreensTop with their clamps.
void LoadScreenSettings(Show& show);
// Every key that is saved at exit, in order.
void SaveAllSettings(Show& show);

}  // namespace pawnfield
