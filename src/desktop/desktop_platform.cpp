#include "desktop/desktop_platform.h"

#include <QCoreApplication>

#include "desktop/files/native_path.h"

namespace pawnfield {

DesktopPlatform::DesktopPlatform(const DesktopPlaces& places, std::function<void()> onActivate)
    : windows(pictures),
      dialogs(windows),
      settings(places.configFolder),
      displays(screens, [this](Form& form) { return windows.Find(form); }),
      processes(places.runtimeFolder, std::move(onActivate),
                {QCoreApplication::applicationDirPath(), NativePath(places.folders.App)}),
      hid([this](std::function<void()> task) {
        QMetaObject::invokeMethod(&home, std::move(task), Qt::QueuedConnection);
      }),
      pages(places.manualFolder),
      serial(places.serialAdapters),
      records(NativePath(places.folders.DataRoot + "\\Pawnfield\\Shows")),
      platform{clock,
               dialogs,
               {eventPlayer, keyPressPlayer, soundClipPlayer, correctIncorrectPlayer, backgroundPlayer, mediaPlayer1},
               settings,
               files,
               text,
               pictures,
               mediaFiles,
               displays,
               processes,
               random,
               hid,
               devices,
               printing,
               pages,
               serial,
               webPages,
               records,
               sheets,
               bundles,
               spelling,
               places.folders} {
  for (const char* own : {"\\Images", "\\Question Backgrounds"}) pictures.HoldFolder(places.folders.App + own);
  processes.OnHandedOver = [this](const std::string& path) {
    if (bundles.OnOpened) bundles.OnOpened(path);
  };
  mediaFiles.OnMeasure = [this](const std::string& path, std::function<void(double)> then) {
    if (!mediaLength) mediaLength = std::make_unique<MediaLength>();
    mediaLength->Measure(path, std::move(then));
  };
}

}  // namespace pawnfield
