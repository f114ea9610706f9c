// Bundles on the disk: written whole or not at all, and unpacked beside their place until they are whole.
#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "platform/set_ports.h"

namespace pawnfield {

// Is told the done share of 1, and says whether to go on.
using GoesOn = std::function<bool(double done)>;

// Replaces the file as ReplaceFile does. False when it didn't go on. A RuntimeError for more than a bundle holds.
bool WriteBundle(const QString& path, const std::string& setName, const std::string& setBytes,
                 const std::vector<PackedFile>& media, const GoesOn& goesOn);
// Puts the media into the folder, which must not be there, and is there whole or not at all, on the disk when this
// returns. False when it didn't go on. A RuntimeError for what no bundle should hold.
bool UnpackBundle(const QString& bundle, const QString& folder, const GoesOn& goesOn);

}  // namespace pawnfield
