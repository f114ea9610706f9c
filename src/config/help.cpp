#include "config/help.h"

#include <string>

#include "forms/help_about_form.h"
#include "forms/main_form.h"
#include "show/show.h"

namespace pawnfield {

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
