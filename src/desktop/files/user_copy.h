// The operator's own copy of what the program ships, for an installation that cannot be written.
#pragma once

#include <QString>
#include <optional>

#include "platform/ports.h"

namespace pawnfield {

struct CopyFailure {
  RuntimeError Error;
  QString File;
};

// Brings the copy up to what is shipped now. A file that the operator changed stays as it is, a set that he removed
// stays away, and a shipped file that he never touched follows the version that is installed. What each file was when
// it was copied is kept in userFolder/Shipped.lst. A file that cannot be copied is left for the next start; the first
// such failure comes back.
std::optional<CopyFailure> UpdateUserCopy(const QString& shared, const QString& userFolder);

// Reports to the operator.
void ReportCopyFailure(Dialogs& dialogs, const CopyFailure& failure);

}  // namespace pawnfield
