// Where the help menu's entries lead: the one place that holds the addresses of the maker's pages.
#pragma once

#include <string>

namespace pawnfield {

// A page of the maker's and the page of the shipped manual that stands in for it while it has no address or can't be
// opened.
struct HelpPage {
  const char* Address;
  const char* Shipped;
};

inline constexpr HelpPage kManualPage{"", "index.html"};
inline constexpr HelpPage kDocumentationPage{"", "documentation.html"};
inline constexpr HelpPage kSupportPage{"", "messages.html"};
inline constexpr HelpPage kLicencePage{"", "licence.html"};
inline constexpr HelpPage kEmergencyPage{"", "emergency.html"};
inline constexpr HelpPage kTroublePage{"", "when-something-goes-wrong.html"};

// What F1 opens in the window of that form; the contents for a form that has no page of its own, and the messages for a
// window that is none of the forms'.
const char* HelpPageOf(const std::string& form);

}  // namespace pawnfield
