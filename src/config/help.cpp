#include "config/help.h"

#include <string>
#include <utility>

#include "forms/help_about_form.h"
#include "forms/main_form.h"
#include "show/show.h"

namespace pawnfield {

const char* HelpPageOf(const std::string& form) {
  constexpr std::pair<const char*, const char*> kPages[] = {{"", "messages.html"},
                                                            {"frmOptions", "options.html"},
                                                            {"frmPlayerNames", "options.html"},
                                                            {"frmEditor", "preparing-sets.html"},
                                                            {"frmEditChoice", "preparing-sets.html"},
                                                            {"frmDialog2", "preparing-sets.html"},
                                                            {"frmSoundEffects", "sound-and-music.html"},
                                                            {"frmOptionalHeaders", "sound-and-music.html"},
                                                            {"frmConfigKeys", "keys.html"},
                                                            {"frmMapMF", "pads-remotes.html"},
                                                            {"frmSetInterface", "pads-remotes.html"},
                                                            {"frmConnectToProjector", "two-screens.html"},
                                                            {"frmGameTypeHelp", "game-types.html"},
                                                            {"frmShowCheck", "before-the-doors-open.html"},
                                                            {"frmGameInProgress", "game-types.html"},
                                                            {"frmHelpAbout", "documentation.html"}};
  for (const auto& [name, page] : kPages) {
    if (form == name) return page;
  }
  return kManualPage.Shipped;
}

void OpenHelpPage(Show& show, const HelpPage& page) {
  HelpPages& pages = show.platform.pages;
  const std::string address = page.Address;
  if (!address.empty() && pages.Open(address)) return;
  if (pages.Open(page.Shipped)) return;
  show.platform.dialogs.MessageBox(std::string("The page \"") + page.Shipped +
                                       "\" of the manual was not found. Installing the program again brings it back.",
                                   kAppTitle, BoxKind::Plain);
}

void AttachHelpHandlers(Show& show) {
  MainForm& form = show.frmMain;
  form.mnuHelpManual.OnClick = [&show] { OpenHelpPage(show, kManualPage); };
  form.mnuHelpDocumentation.OnClick = [&show] { OpenHelpPage(show, kDocumentationPage); };
  form.mnuHelpSupport.OnClick = [&show] { OpenHelpPage(show, kSupportPage); };
  form.mnuHelpAbout.OnClick = [&show] { show.platform.dialogs.ShowModal(show.frmHelpAbout); };
  show.frmHelpAbout.btnLicence.OnClick = [&show] {
    // The page stands in a window of its own, which a modal form would keep shut.
    show.frmHelpAbout.Unload();
    OpenHelpPage(show, kLicencePage);
  };
  show.frmHelpAbout.btnOK.OnClick = [&show] { show.frmHelpAbout.Unload(); };
}

}  // namespace pawnfield
