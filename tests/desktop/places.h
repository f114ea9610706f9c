// Folders of a test's own, below a temporary one.
#pragma once

#include <QTemporaryDir>

#include "platform/desktop/desktop_program.h"
#include "platform/desktop/native_path.h"

namespace pawnfield {

inline DesktopPlaces PlacesIn(const QTemporaryDir& folder) {
  DesktopPlaces places;
  places.folders.DataRoot = *SpelledPath(folder.path() + "/data");
  places.configFolder = folder.path() + "/config";
  places.runtimeFolder = folder.path() + "/run";
  return places;
}

}  // namespace pawnfield
