// What each page shows at this moment, as the message that it is told. The answer to a question is in the host's alone.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// A press of anybody would be taken now.
bool BuzzersAreOpen(const Show& show);
// Of the phone that sits in that seat.
std::string PhoneView(const Show& show, int player);
// The seats to choose from, of a phone that has none.
std::string SeatsView(const Show& show);
std::string HostView(const Show& show);
std::string ScoresView(const Show& show);

// "BEN answers" and its like, empty while there is nothing to say.
std::string FloorText(const Show& show);

}  // namespace pawnfield
