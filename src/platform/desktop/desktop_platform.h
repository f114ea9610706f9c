// Every port on this desktop, made once and handed to the show.
#pragma once

#include <functional>
#include <optional>

#include "platform/desktop/desktop_folders.h"
#include "platform/desktop/desktop_pages.h"
#include "platform/desktop/form_windows.h"
#include "platform/desktop/hidapi_port.h"
#include "platform/desktop/linux_processes.h"
#include "platform/desktop/mpv_video.h"
#include "platform/desktop/qt_clock.h"
#include "platform/desktop/qt_dialogs.h"
#include "platform/desktop/qt_displays.h"
#include "platform/desktop/qt_file_system.h"
#include "platform/desktop/qt_printing.h"
#include "platform/desktop/qt_readers.h"
#include "platform/desktop/qt_serial_port.h"
#include "platform/desktop/qt_settings_store.h"

namespace pawnfield {

// Where things lie; the defaults are the machine's own places.
struct DesktopPlaces {
  std::optional<CopyFailure> copyFailure{};
  Folders folders = FindFolders(copyFailure);
  QString configFolder = ConfigFolder();
  QString runtimeFolder = RuntimeFolder();
  QString manualFolder = ManualFolder();
  std::function<std::vector<SerialAdapter>()> serialAdapters = FindSerialAdapters;
};

class DesktopPlatform {
 public:
  DesktopPlatform(const DesktopPlaces& places, std::function<void()> onActivate);

  FormWindows windows;
  Screens screens;
  QtClock clock;
  QtDialogs dialogs;
  MpvChannel eventPlayer, keyPressPlayer, soundClipPlayer, correctIncorrectPlayer, backgroundPlayer;
  MpvVideo mediaPlayer1;
  QtSettingsStore settings;
  QtFileSystem files;
  QtTextMeasurer text;
  QtPictureReader pictures;
  QtDisplays displays;
  LinuxProcesses processes;
  SeededRandom random;
  HidapiPort hid;
  QtPrinting printing;
  DesktopPages pages;
  QtSerialPort serial;
  Platform platform;
};

}  // namespace pawnfield
