// The whole program on this desktop: the platform, the show and the forms' windows.
#pragma once

#include "desktop/desktop_platform.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/config_keys_window.h"
#include "desktop/windows/connect_to_projector_window.h"
#include "desktop/windows/console_window.h"
#include "desktop/windows/editor_window.h"
#include "desktop/windows/help_about_window.h"
#include "desktop/windows/help_key.h"
#include "desktop/windows/optional_headers_window.h"
#include "desktop/windows/options_window.h"
#include "desktop/windows/player_names_window.h"
#include "desktop/windows/press_windows.h"
#include "desktop/windows/small_windows.h"
#include "desktop/windows/sound_effects_window.h"
#include "show/show.h"

namespace pawnfield {

class DesktopProgram {
 public:
  explicit DesktopProgram(const DesktopPlaces& places = {});
  ~DesktopProgram();
  DesktopProgram(const DesktopProgram&) = delete;
  DesktopProgram& operator=(const DesktopProgram&) = delete;

  Show& TheShow() { return show_; }
  ConsoleWindow& Console() { return console_; }
  AudienceWindow& Audience() { return audience_; }
  // What shows the manual.
  DesktopPages& ManualPages() { return desktop_.pages; }
  // All windows, for what goes over every form.
  std::vector<FormWindow*> Windows();

 private:
  DesktopPlatform desktop_;
  Show show_;
  ConsoleWindow console_;
  AudienceWindow audience_;
  ConnectToProjectorWindow connectToProjector_;
  LoadingWindow loading_;
  SplashWindow splash_;
  GameLoadingWindow gameLoading_;
  GameInProgressWindow gameInProgress_;
  GameTypeHelpWindow gameTypeHelp_;
  PlayerNamesWindow playerNames_;
  HelpAboutWindow helpAbout_;
  ConfigKeysWindow configKeys_;
  EditorWindow editor_;
  EditChoiceWindow editChoice_;
  MissingMediaWindow missingMedia_;
  SoundEffectsWindow soundEffects_;
  OptionalHeadersWindow optionalHeaders_;
  OptionsWindow options_;
  MapMFWindow mapMF_;
  SetInterfaceWindow setInterface_;
  HelpKey helpKey_;
};

// Its name and version, for the desktop and the command line.
void NameApplication();
// What the application object needs before the first window: fonts, colours, number format.
void PrepareApplication();

}  // namespace pawnfield
