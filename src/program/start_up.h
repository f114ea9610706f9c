// Start-up and shutdown: the data folders, the splash, and the exit that saves the settings.
#pragma once

namespace pawnfield {

struct Show;

// Of the windows without a frame, in pixels.
inline constexpr int kCornerRadius = 10;

enum class ScanMode { Report, AskOnly };
// True when a sibling title runs; with Report a message says so, its window comes to the front and the program ends.
bool ScanForSiblings(Show& show, ScanMode mode);
// Makes what is missing of DataRoot and its folders.
void PrepareDataFolders(Show& show);

void tmrAlwaysLoaded_Timer(Show& show);
void tmrProgress_Timer(Show& show);
// A click or a key on the splash ends it.
void frmSplash_Click(Show& show);

// The close box's question; true lets the console close.
bool Form_QueryUnload(Show& show);
// The system ends the program: what the exit saves is saved, and nobody is asked.
void EndWithoutAsking(Show& show);
// Saves what the exit saves and shows nothing, not even an error.
void SaveSettingsAtDeath(Show& show);
// Stops the timers, saves the settings, unloads every form and ends the program.
void fileExit(Show& show);

}  // namespace pawnfield
