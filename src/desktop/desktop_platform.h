// Every port on this desktop, made once and handed to the show.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "desktop/devices/hidapi_port.h"
#include "desktop/devices/qt_device_watch.h"
#include "desktop/devices/qt_serial_port.h"
#include "desktop/files/desktop_folders.h"
#include "desktop/files/qt_file_system.h"
#include "desktop/files/qt_settings_store.h"
#include "desktop/files/record_writer.h"
#include "desktop/files/sheet_reader.h"
#include "desktop/media/media_files.h"
#include "desktop/media/media_length.h"
#include "desktop/media/mpv_video.h"
#include "desktop/pages/qt_pages.h"
#include "desktop/painting/picture_cache.h"
#include "desktop/system/desktop_processes.h"
#include "desktop/system/form_windows.h"
#include "desktop/system/qt_clock.h"
#include "desktop/system/qt_dialogs.h"
#include "desktop/system/qt_displays.h"
#include "desktop/system/qt_printing.h"
#include "desktop/system/qt_readers.h"
#include "desktop/system/zip_bundles.h"
#include "desktop/windows/desktop_pages.h"
#include "desktop/windows/speller.h"

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

  PictureCache pictures;
  FormWindows windows;
  Screens screens;
  QtClock clock;
  QtDialogs dialogs;
  MpvChannel eventPlayer, keyPressPlayer, soundClipPlayer, correctIncorrectPlayer, backgroundPlayer;
  MpvVideo mediaPlayer1;
  QtSettingsStore settings;
  QtFileSystem files;
  QtTextMeasurer text;
  MediaFiles mediaFiles;
  // Made with the first file that is measured.
  std::unique_ptr<MediaLength> mediaLength;
  QtDisplays displays;
  DesktopProcesses processes;
  SeededRandom random;
  // Where threads have something done on the main one.
  QObject home;
  HidapiPort hid;
  QtDeviceWatch devices;
  QtPrinting printing;
  DesktopPages pages;
  QtSerialPort serial;
  QtPages webPages;
  RecordWriter records;
  SheetReader sheets;
  ZipBundles bundles;
  Speller spelling;
  Platform platform;
};

}  // namespace pawnfield
