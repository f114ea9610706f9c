#include "forms/help_about_form.h"

namespace pawnfield {

HelpAboutForm::HelpAboutForm() : Form("frmHelpAbout") {
  Form::Caption = "About Pawnfield";
  lblTitle.Caption = "Pawnfield";
  lblVersion.Caption = "Version " PAWNFIELD_VERSION;
  lblDescription.Caption = "A live trivia game show on a board of squares, for one operator and a room.";
  lblLicence.Caption =
      "Free software under the GNU General Public License, version 3 or later, without any warranty. Its pictures, "
      "sounds and sample sets are in the public domain.";
  lblUsedHeading.Caption = "Built with";
  btnLicence.Caption = "Licence";
  btnOK.Caption = "OK";
  const struct {
    const char* name;
    const char* licence;
  } used[] = {
      {"Qt 6", "GNU LGPL 3"},
      {"libmpv", "GNU GPL 2 or later"},
      {"hidapi", "BSD licence of three clauses"},
      {"Boost", "Boost Software License 1.0"},
      {"libqrencode, liblo", "GNU LGPL 2.1 or later"},
      {"Inter, Comic Neue, Liberation fonts", "SIL Open Font License 1.1"},
  };
  std::string names, licences;
  for (const auto& [name, licence] : used) {
    const char* parted = names.empty() ? "" : "\r\n";
    names += parted + std::string(name);
    licences += parted + std::string(licence);
  }
  lblUsed.Caption = names;
  lblUsedLicence.Caption = licences;
}

}  // namespace pawnfield
