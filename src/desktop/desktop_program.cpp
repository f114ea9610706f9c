#include "desktop/desktop_program.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QStyleFactory>
#include <clocale>

#include "desktop/painting/text_layout.h"
#include "desktop/system/flat_memory.h"
#include "desktop/system/list_guard.h"
#include "desktop/system/x_windows.h"
#include "desktop/windows/access.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/config_keys_window.h"
#include "desktop/windows/connect_to_projector_window.h"
#include "desktop/windows/console_window.h"
#include "desktop/windows/editor_window.h"
#include "desktop/windows/file_drop.h"
#include "desktop/windows/help_about_window.h"
#include "desktop/windows/help_key.h"
#include "desktop/windows/hold_guard.h"
#include "desktop/windows/house_palette.h"
#include "desktop/windows/import_window.h"
#include "desktop/windows/last_screen.h"
#include "desktop/windows/optional_headers_window.h"
#include "desktop/windows/options_window.h"
#include "desktop/windows/pages_window.h"
#include "desktop/windows/player_names_window.h"
#include "desktop/windows/press_windows.h"
#include "desktop/windows/results_window.h"
#include "desktop/windows/show_check_window.h"
#include "desktop/windows/show_speaker.h"
#include "desktop/windows/small_windows.h"
#include "desktop/windows/sound_effects_window.h"
#include "forms/config_keys_form.h"
#include "forms/connect_to_projector_form.h"
#include "forms/editor_form.h"
#include "forms/fs_main_form.h"
#include "forms/help_about_form.h"
#include "forms/import_form.h"
#include "forms/main_form.h"
#include "forms/missing_media_form.h"
#include "forms/optional_headers_form.h"
#include "forms/options_form.h"
#include "forms/pages_form.h"
#include "forms/player_names_form.h"
#include "forms/press_forms.h"
#include "forms/results_form.h"
#include "forms/second_screen_form.h"
#include "forms/show_check_form.h"
#include "forms/small_forms.h"
#include "forms/sound_effects_form.h"
#include "program/handlers.h"

namespace pawnfield {

namespace {

// The sizes that desktops show windows in, for those that have none of their own for the name.
QIcon Icon() {
  QIcon icon;
  for (const char* side : {"16", "32", "48", "128"}) icon.addFile(QString(":/look/icon-") + side + ".png");
  return icon;
}

}  // namespace

struct DesktopProgram::AllWindows {
  AllWindows(DesktopPlatform& desktop, Show& show);

  ConsoleWindow Console;
  AudienceWindow Audience;
  LastScreen OneLeft;
  ConnectToProjectorWindow ConnectToProjector;
  LoadingWindow Loading;
  SplashWindow Splash;
  GameLoadingWindow GameLoading;
  GameInProgressWindow GameInProgress;
  GameTypeHelpWindow GameTypeHelp;
  PlayerNamesWindow PlayerNames;
  HelpAboutWindow HelpAbout;
  ConfigKeysWindow ConfigKeys;
  EditorWindow Editor;
  EditChoiceWindow EditChoice;
  ImportWindow Import;
  MissingMediaWindow MissingMedia;
  SoundEffectsWindow SoundEffects;
  OptionalHeadersWindow OptionalHeaders;
  OptionsWindow Options;
  PagesWindow Pages;
  ResultsWindow Results;
  ShowCheckWindow ShowCheck;
  MapMFWindow MapMF;
  SetInterfaceWindow SetInterface;
  HelpKey Help;
  ShowSpeaker Speaker;
};

DesktopProgram::AllWindows::AllWindows(DesktopPlatform& desktop, Show& show)
    : Console(show.frmMain, desktop.windows, desktop.pictures, desktop.screens, desktop.mediaPlayer1),
      Audience(show.frmFSMain, show.frmSS, desktop.windows, desktop.pictures, desktop.screens, desktop.mediaPlayer1),
      OneLeft(Console, Audience, desktop.screens),
      ConnectToProjector(show.frmConnectToProjector, desktop.windows, desktop.pictures),
      Loading(show.frmLoading, desktop.windows),
      Splash(show.frmSplash, desktop.windows),
      GameLoading(show.frmGameLoading, desktop.windows),
      GameInProgress(show.frmGameInProgress, desktop.windows),
      GameTypeHelp(show.frmGameTypeHelp, desktop.windows),
      PlayerNames(show.frmPlayerNames, desktop.windows),
      HelpAbout(show.frmHelpAbout, desktop.windows),
      ConfigKeys(show.frmConfigKeys, desktop.windows),
      Editor(show.frmEditor, desktop.windows, desktop.pictures, desktop.spelling),
      EditChoice(show.frmEditChoice, desktop.windows),
      Import(show.frmImport, desktop.windows),
      MissingMedia(show.frmDialog2, desktop.windows),
      SoundEffects(show.frmSoundEffects, desktop.windows),
      OptionalHeaders(show.frmOptionalHeaders, desktop.windows),
      Options(show.frmOptions, desktop.windows),
      Pages(show.frmPages, desktop.windows),
      Results(show.frmResults, desktop.windows),
      ShowCheck(show.frmShowCheck, desktop.windows),
      MapMF(show.frmMapMF, desktop.windows),
      SetInterface(show.frmSetInterface, desktop.windows),
      Help(show),
      Speaker(show, Console, Audience) {}

DesktopProgram::DesktopProgram(const DesktopPlaces& places)
    : desktop_(places, [this] { windows_->Console.ComeForward(); }),
      show_(desktop_.platform),
      windows_(std::make_unique<AllWindows>(desktop_, show_)) {
  GuardConsole(show_, windows_->Console);
  if (auto* list = windows_->Console.findChild<QWidget*>("cboList")) {
    TakeDrops(*list, [this](const std::string& path) {
      if (desktop_.bundles.OnOpened) desktop_.bundles.OnOpened(path);
    });
  }
  windows_->Audience.HandKeysTo(windows_->Console);
}

// The clock, the serial line and the watch over the devices outlive the forms, whose timers must not be looked at any
// more.
DesktopProgram::~DesktopProgram() {
  desktop_.webPages.Close();
  desktop_.webPages.OnEvent = {};
  desktop_.serial.OnComm = {};
  desktop_.devices.OnChanged({});
  desktop_.settings.OnSaveFailed = {};
  desktop_.bundles.OnOpened = {};
  desktop_.records.OnFailed = {};
  desktop_.records.OnBack = {};
  for (Form* form : AllForms(show_)) desktop_.clock.Detach(*form);
}

ConsoleWindow& DesktopProgram::Console() { return windows_->Console; }

AudienceWindow& DesktopProgram::Audience() { return windows_->Audience; }

std::vector<FormWindow*> DesktopProgram::Windows() {
  AllWindows& all = *windows_;
  return {&all.Console,         &all.Audience,     &all.ConnectToProjector,
          &all.Loading,         &all.Splash,       &all.GameLoading,
          &all.GameInProgress,  &all.GameTypeHelp, &all.PlayerNames,
          &all.HelpAbout,       &all.ConfigKeys,   &all.Editor,
          &all.EditChoice,      &all.MissingMedia, &all.SoundEffects,
          &all.OptionalHeaders, &all.Options,      &all.MapMF,
          &all.SetInterface,    &all.Pages,        &all.Import,
          &all.ShowCheck,       &all.Results};
}

void NameApplication() {
  QCoreApplication::setApplicationName("Pawnfield");
  QCoreApplication::setApplicationVersion(PAWNFIELD_VERSION);
}

void PrepareApplication() {
  KeepMemoryFlat();
  // The player reads numbers in the C form, and the application object has just set the user's.
  setlocale(LC_NUMERIC, "C");
  SubstituteFonts();
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(HousePalette());
  // The windows come and go as the forms say; the last one that goes does not end the program.
  QApplication::setQuitOnLastWindowClosed(false);
  QGuiApplication::setDesktopFileName(kAppId);
  QApplication::setWindowIcon(Icon());
  InstallAccess();
  // They live as long as the application.
  (new WindowClass)->setParent(qApp);
  (new ActiveByServer)->setParent(qApp);
  (new ListGuard)->setParent(qApp);
  QFile look(":/look/look.qss");
  if (look.open(QIODevice::ReadOnly)) qApp->setStyleSheet(QString::fromUtf8(look.readAll()));
}

}  // namespace pawnfield
