// Whether a file is a sound that can be decoded, found out without a device and without a tone.
#pragma once

#include <QString>

namespace pawnfield {

// Opens a player of its own and decodes the file's beginning: some 50 ms, and five seconds at most. A file that takes
// longer counts as a sound. For any thread.
bool IsDecodableSound(const QString& file);

}  // namespace pawnfield
