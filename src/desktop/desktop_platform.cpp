#include "desktop/desktop_platform.h"

#include <QCoreApplication>

#include "desktop/files/native_path.h"

namespace pawnfield {

DesktopPlatform::DesktopPlatform(const DesktopPlaces& places, std::function<void()> onActivate)
    : dialogs(windows),
      settings(places.configFolder),
      displays(screens, [this](Form& form) { return windows.Find(form); }),
      processes(places.runtimeFolder, std::move(onActivate),
                {QCoreApplication::applicationDirPath(), NativePath(places.folders.App)}),
      pages(places.manualFolder),
      serial(places.serialAdapters),
      platform{clock,
               dialogs,
               {eventPlayer, keyPressPlayer, soundClipPlayer, correctIncorrectPlayer, backgroundPlayer, mediaPlayer1},
               settings,
               files,
               text,
               pictures,
               displays,
               processes,
               random,
               hid,
               devices,
               printing,
               pages,
               serial,
               places.folders} {}

}  // namespace pawnfield
