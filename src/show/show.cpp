#include "show/show.h"

#include <algorithm>
#include <utility>

#include "devices/transceiver.h"
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
#include "platform/text.h"
#include "show/page_state.h"
#include "show/show_check_state.h"
#include "show/show_record.h"

namespace pawnfield {

struct Forms {
  MainForm frmMain;
  FSMainForm frmFSMain;
  SecondScreenForm frmSS;
  ConnectToProjectorForm frmConnectToProjector;
  LoadingForm frmLoading;
  AlwaysLoadedForm frmAlwaysLoaded;
  SplashForm frmSplash;
  GameLoadingForm frmGameLoading;
  GameInProgressForm frmGameInProgress;
  GameTypeHelpForm frmGameTypeHelp;
  EditorForm frmEditor;
  EditChoiceForm frmEditChoice;
  ImportForm frmImport;
  MissingMediaForm frmDialog2;
  MapMFForm frmMapMF;
  SetInterfaceForm frmSetInterface;
  PlayerNamesForm frmPlayerNames;
  HelpAboutForm frmHelpAbout;
  ConfigKeysForm frmConfigKeys;
  SoundEffectsForm frmSoundEffects;
  OptionalHeadersForm frmOptionalHeaders;
  OptionsForm frmOptions;
  PagesForm frmPages;
  ShowCheckForm frmShowCheck;
  ResultsForm frmResults;
};

Show::Show(Platform& platformPorts) : Show(platformPorts, std::make_unique<Forms>()) {}

Show::Show(Platform& platformPorts, std::unique_ptr<Forms> forms)
    : platform(platformPorts),
      pages(std::make_unique<PageState>()),
      record(std::make_unique<ShowRecord>()),
      check(std::make_unique<ShowCheckState>()),
      frmMain(forms->frmMain),
      frmFSMain(forms->frmFSMain),
      frmSS(forms->frmSS),
      frmConnectToProjector(forms->frmConnectToProjector),
      frmLoading(forms->frmLoading),
      frmAlwaysLoaded(forms->frmAlwaysLoaded),
      frmSplash(forms->frmSplash),
      frmGameLoading(forms->frmGameLoading),
      frmGameInProgress(forms->frmGameInProgress),
      frmGameTypeHelp(forms->frmGameTypeHelp),
      frmEditor(forms->frmEditor),
      frmEditChoice(forms->frmEditChoice),
      frmImport(forms->frmImport),
      frmDialog2(forms->frmDialog2),
      frmMapMF(forms->frmMapMF),
      frmSetInterface(forms->frmSetInterface),
      frmPlayerNames(forms->frmPlayerNames),
      frmHelpAbout(forms->frmHelpAbout),
      frmConfigKeys(forms->frmConfigKeys),
      frmSoundEffects(forms->frmSoundEffects),
      frmOptionalHeaders(forms->frmOptionalHeaders),
      frmOptions(forms->frmOptions),
      frmPages(forms->frmPages),
      frmShowCheck(forms->frmShowCheck),
      frmResults(forms->frmResults),
      forms_(std::move(forms)) {}

Show::~Show() = default;

std::vector<Form*> AllForms(Show& show) {
  return {&show.frmMain,
          &show.frmFSMain,
          &show.frmLoading,
          &show.frmAlwaysLoaded,
          &show.frmSplash,
          &show.frmGameLoading,
          &show.frmGameInProgress,
          &show.frmGameTypeHelp,
          &show.frmPlayerNames,
          &show.frmEditor,
          &show.frmEditChoice,
          &show.frmImport,
          &show.frmDialog2,
          &show.frmHelpAbout,
          &show.frmConfigKeys,
          &show.frmSS,
          &show.frmConnectToProjector,
          &show.frmSoundEffects,
          &show.frmOptionalHeaders,
          &show.frmOptions,
          &show.frmPages,
          &show.frmResults,
          &show.frmShowCheck,
          &show.frmMapMF,
          &show.frmSetInterface};
}

bool IsFormVisible(Show& show, const std::string& name) {
  const auto forms = AllForms(show);
  return std::any_of(forms.begin(), forms.end(),
                     [&](const Form* form) { return Trim(form->Name()) == Trim(name) && form->Visible; });
}

}  // namespace pawnfield
