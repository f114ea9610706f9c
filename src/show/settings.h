// The settings of application "Pawnfield", section "Settings": what a start takes from them, and how they are saved.
#pragma once

#include <string>

namespace pawnfield {

class Form;
class RuntimeError;
struct Show;

// Takes every setting into the state, in its range. What can't be read, or a store that can't, is reported in one box
// that lists the keys and what stands instead.
void LoadSettings(Show& show);
// From here on what changes is saved; what stands now counts as saved.
void BeginSavingSettings(Show& show);
// Saves what has changed since it was saved last; after each event of the program. A failure is reported once, and anew
// after a success.
void SaveChangedSettings(Show& show);
// Saves one setting as it stands. A failure is reported as the form's own and the caller goes on.
void SaveSettingOrReport(Show& show, const std::string& key, const Form& form, const std::string& procedure);
// Saves a text under a key that stands for nothing of the game's state.
void SaveSetting(Show& show, const std::string& key, const std::string& value);
// Every key that is saved at the exit, in order; all is on the disk when it returns.
void SaveAllSettings(Show& show);

// For the store, which saves beside the main thread: the same report as of a failure at once.
void ReportSettingsFailure(Show& show, const RuntimeError& error);

}  // namespace pawnfield
