#include "desktop/desktop_program.h"

#include <QApplication>
#include <QFile>
#include <QStyleFactory>
#include <clocale>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "desktop/painting/text_layout.h"
#include "forms/config_keys_form.h"
#include "forms/connect_to_projector_form.h"
#include "forms/editor_form.h"
#include "forms/fs_main_form.h"
#include "forms/help_about_form.h"
#include "forms/main_form.h"
#include "forms/missing_media_form.h"
#include "forms/optional_headers_form.h"
#include "forms/options_form.h"
#include "forms/player_names_form.h"
#include "forms/press_forms.h"
#include "forms/second_screen_form.h"
#include "forms/small_forms.h"
#include "forms/sound_effects_form.h"
#include "program/handlers.h"

namespace pawnfield {

namespace {

// Pictures of a whole screen and the players' short-lived threads would leave the C library's heap full of holes, which
// the process kept for good. So large blocks go back to the system when they are freed, and all threads share two
// heaps.
void KeepMemoryFlat() {
#ifdef __GLIBC__
  constexpr int kLargeBlock = 1024 * 1024;
  mallopt(M_MMAP_THRESHOLD, kLargeBlock);
  mallopt(M_ARENA_MAX, 2);
#endif
}

}  // namespace

DesktopProgram::DesktopProgram(const DesktopPlaces& places)
    : desktop_(places, [this] { console_.ComeForward(); }),
      show_(desktop_.platform),
      console_(show_.frmMain, desktop_.windows, desktop_.pictures, desktop_.screens, desktop_.mediaPlayer1),
      audience_(show_.frmFSMain, show_.frmSS, desktop_.windows, desktop_.pictures, desktop_.screens,
                desktop_.mediaPlayer1),
      connectToProjector_(show_.frmConnectToProjector, desktop_.windows, desktop_.pictures),
      loading_(show_.frmLoading, desktop_.windows),
      splash_(show_.frmSplash, desktop_.windows, desktop_.screens),
      gameLoading_(show_.frmGameLoading, desktop_.windows),
      gameInProgress_(show_.frmGameInProgress, desktop_.windows),
      gameTypeHelp_(show_.frmGameTypeHelp, desktop_.windows),
      playerNames_(show_.frmPlayerNames, desktop_.windows),
      helpAbout_(show_.frmHelpAbout, desktop_.windows),
      configKeys_(show_.frmConfigKeys, desktop_.windows),
      editor_(show_.frmEditor, desktop_.windows, desktop_.pictures),
      editChoice_(show_.frmEditChoice, desktop_.windows),
      missingMedia_(show_.frmDialog2, desktop_.windows),
      soundEffects_(show_.frmSoundEffects, desktop_.windows),
      optionalHeaders_(show_.frmOptionalHeaders, desktop_.windows),
      options_(show_.frmOptions, desktop_.windows),
      mapMF_(show_.frmMapMF, desktop_.windows),
      setInterface_(show_.frmSetInterface, desktop_.windows),
      helpKey_(show_) {}

// The clock, the serial line and the watch over the devices outlive the forms, whose timers must not be looked at any
// more.
DesktopProgram::~DesktopProgram() {
  desktop_.serial.OnComm = {};
  desktop_.devices.OnChanged({});
  desktop_.settings.OnSaveFailed = {};
  for (Form* form : AllForms(show_)) desktop_.clock.Detach(*form);
}

std::vector<FormWindow*> DesktopProgram::Windows() {
  return {&console_,        &audience_,     &connectToProjector_, &loading_,         &splash_,     &gameLoading_,
          &gameInProgress_, &gameTypeHelp_, &playerNames_,        &helpAbout_,       &configKeys_, &editor_,
          &editChoice_,     &missingMedia_, &soundEffects_,       &optionalHeaders_, &options_,    &mapMF_,
          &setInterface_};
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
  // The windows come and go as the forms say; the last one that goes does not end the program.
  QApplication::setQuitOnLastWindowClosed(false);
  QFile look(":/look/look.qss");
  if (look.open(QIODevice::ReadOnly)) qApp->setStyleSheet(QString::fromUtf8(look.readAll()));
}

}  // namespace pawnfield
