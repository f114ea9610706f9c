// The show: the platform, the running game and the forms, handed to every handler. One instance lives as long as the
// program.
#pragma once

#include <array>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "data/game_state.h"
#include "data/trivia_set.h"
#include "platform/common_dialog.h"
#include "platform/ports.h"
#include "show/press_state.h"

namespace pawnfield {

inline constexpr const char* kAppTitle = "Pawnfield";

struct AlwaysLoadedForm;
struct ConfigKeysForm;
struct ConnectToProjectorForm;
struct EditChoiceForm;
class EditorForm;
class FSMainForm;
class Form;
struct GameInProgressForm;
struct GameLoadingForm;
struct GameTypeHelpForm;
struct HelpAboutForm;
struct ImportForm;
class Image;
struct LoadingForm;
class MainForm;
struct MapMFForm;
struct MissingMediaForm;
struct OptionalHeadersForm;
struct OptionsForm;
struct PagesForm;
struct PageState;
struct PlayerNamesForm;
struct ResultsForm;
struct SecondScreenForm;
struct SetInterfaceForm;
struct ShowCheckForm;
struct ShowCheckState;
struct SoundEffectsForm;
struct SplashForm;
class Transceiver;
struct ShowRecord;

// How one of the two flipping squares moves between ticks.
struct Flip {
  Image* Square = nullptr;
  double Step = 0;
  double FullHeight = 0;
  bool Larger = false;
  bool AtEdge = false;
  // Where the square stands when it doesn't turn.
  double RestTop = 0;
  double RestHeight = 0;
};

// The square being typed: empty, a letter, or a letter and a digit. Row and Column are named as the typed halves are:
// the letter stands above a column of the board and the digit beside a row.
struct SquareEntry {
  std::string DJEntry;
  std::string DJRowLetter;
  int DJRow = 0;
  int DJColumn = 0;
};

// Paths of media files by bank 1..3 and row 1..34; index 0 of both is unused.
using SoundBanks = std::array<std::array<std::string, 35>, 4>;

// The look at the media of a set that has been loaded.
struct MediaCheck {
  // Counts the looks, so that a report on an earlier set is known to be late.
  int Number = 0;
  int Files = 0, Left = 0;
  // What can't be shown, by the question's number.
  std::map<int, std::string> Errors;
};

// The verdict given last, counted so that two alike are told apart.
struct LastVerdict {
  int Count = 0;
  int Player = 0;
  bool Correct = false;
};

// All forms of the program, which the show's references below name.
struct Forms;

struct Show {
  explicit Show(Platform& platformPorts);
  ~Show();
  Show(const Show&) = delete;
  Show& operator=(const Show&) = delete;

  Platform& platform;
  GameState state;
  TriviaSet GameSet;
  int NumGameQuestions = 0;
  // The question that was asked last, as it stood in the set then.
  TriviaQuestion Asked;
  // The set that is open in the editor, which begins with the game's set where EditCurrentSet says so.
  TriviaSet EditSet;
  int NumEditQuestions = 0;
  bool EditCurrentSet = false;
  // Counted from 1: the question that frmDialog2 is about.
  int MissingQuestion = 0;
  // The file dialog of the console; FileName is the set that was loaded by it.
  CommonDialog consoleDialog;
  SoundBanks soundBanks;
  // As they were when the table was opened.
  SoundBanks SoundBanksBefore;
  Flip flip, fsFlip;
  SquareEntry entry;
  bool FlashToggle = false;
  // What flashes: the claimed square and the lines that it completed. Empty once the board was cleared under it.
  std::vector<BoardSquare> FlashSquares;
  // The game has ended with a claim, and its winner waits for the flash and a bonus.
  bool WinnerDue = false;
  int FlashCount = 0;
  std::array<int, 2> AnimateCount{};
  PressState presses;
  LastVerdict lastVerdict;
  // Phones and pages on the local network; never null.
  std::unique_ptr<PageState> pages;
  // The events of the show; show/show_record.h has what it is.
  std::unique_ptr<ShowRecord> record;
  // What the check before the show has found; show/show_check_state.h has what it is. Never null.
  std::unique_ptr<ShowCheckState> check;
  // Lives from the console's load to the exit, whether or not a device was found.
  std::unique_ptr<Transceiver> dgTransceiver;
  // Whether a picture of the program could be opened when it was first asked for.
  std::map<std::string, bool> PictureFound;
  MediaCheck mediaCheck;
  // The letter's sound and the track of music that were given to their players last.
  std::string CuePlayed, MusicPlayed;
  // How many seconds the letters' sounds and films last, as far as that has been told; 0 until then.
  std::map<std::string, double> CueLengths;
  // Whether the machine has something to play sound on, and had it at some time of this evening.
  bool SoundLookedFor = false, SoundFound = false, SoundOnceFound = false;
  // Counts the films and pictures that the operator has called for on demand.
  int MediaAsked = 0;
  // The background that was drawn last, which may still be on its way.
  std::string DrawnBackground;
  // Texts for the companion that wait until the present event is done, oldest first.
  std::deque<std::string> CompanionReports;
  // Whether the last report, the last write to the external keyboard program's key, and the last save of settings
  // failed; that has been reported.
  bool CompanionFails = false, SharedKeyFails = false, SettingsFail = false;
  // The values of that key: those that wait until the present event is done, and what each was when it was written.
  std::vector<Setting> SharedKeyWaiting;
  std::map<std::string, std::string> SharedKeyWritten;
  // Each setting as it was saved last, in the table's order; empty until the console has loaded them.
  std::vector<std::string> SavedSettings;
  std::vector<MonitorInfo> Monitors;
  // frmFSMain has been loaded; and the desktop's saver and sleep are held off.
  bool AudienceLoaded = false, AwakeHeld = false;

  // Those who watch the forms' controls for as long as the show lives.
  std::vector<std::unique_ptr<Observer>> Observers;

  // Every form, made with the show. Whoever works one includes its header; touching that rebuilds nobody else.
  MainForm& frmMain;
  FSMainForm& frmFSMain;
  SecondScreenForm& frmSS;
  ConnectToProjectorForm& frmConnectToProjector;
  LoadingForm& frmLoading;
  AlwaysLoadedForm& frmAlwaysLoaded;
  SplashForm& frmSplash;
  GameLoadingForm& frmGameLoading;
  GameInProgressForm& frmGameInProgress;
  GameTypeHelpForm& frmGameTypeHelp;
  EditorForm& frmEditor;
  EditChoiceForm& frmEditChoice;
  ImportForm& frmImport;
  MissingMediaForm& frmDialog2;
  MapMFForm& frmMapMF;
  SetInterfaceForm& frmSetInterface;
  PlayerNamesForm& frmPlayerNames;
  HelpAboutForm& frmHelpAbout;
  ConfigKeysForm& frmConfigKeys;
  SoundEffectsForm& frmSoundEffects;
  OptionalHeadersForm& frmOptionalHeaders;
  OptionsForm& frmOptions;
  PagesForm& frmPages;
  ShowCheckForm& frmShowCheck;
  ResultsForm& frmResults;

  // The path of a file of the program's folder, as in AppPath("\\Images\\scorebox.bmp").
  std::string AppPath(const std::string& tail) const { return platform.folders.App + tail; }

 private:
  Show(Platform& platformPorts, std::unique_ptr<Forms> forms);

  std::unique_ptr<Forms> forms_;
};

// Every form, each once.
std::vector<Form*> AllForms(Show& show);
// True when a form of that name is shown.
bool IsFormVisible(Show& show, const std::string& name);

}  // namespace pawnfield
