// The shared error box: one wording, one place that turns an exception into a message so that the show goes on.
#pragma once

#include <functional>
#include <string>

#include "platform/ports.h"

namespace pawnfield {

// The box's text; filename may be empty, which leaves its line out.
std::string UntrappedErrorText(int number, const std::string& description, const std::string& location,
                               const std::string& procedure, const std::string& filename = "");

// The same with a full stop where a colon stands, as the boxes of media and printing have it.
std::string NotedErrorText(const RuntimeError& error, const std::string& location, const std::string& procedure,
                           const std::string& filename = "");

// Shows the box for an error that a routine caught itself.
void ReportError(Dialogs& dialogs, const RuntimeError& error, const std::string& location, const std::string& procedure,
                 const std::string& filename = "");

// Runs a handler; whatever it throws ends in the box and nowhere else.
void RunGuarded(Dialogs& dialogs, const std::function<void()>& handler, const std::string& location,
                const std::string& procedure);

}  // namespace pawnfield
