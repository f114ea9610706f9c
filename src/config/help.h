// The Help menu: the operator's manual, the maker's pages and the about box.
#pragma once

#include "config/help_pages.h"

namespace pawnfield {

struct Show;

// Opens the maker's page, or else the shipped one; reports to the operator when neither can be shown.
void OpenHelpPage(Show& show, const HelpPage& page);

void AttachHelpHandlers(Show& show);

}  // namespace pawnfield
