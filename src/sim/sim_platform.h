// A whole machine in memory: every port as a simulation, composed into the platform that the program is given.
#pragma once

#include "platform/ports.h"
#include "sim/memory_records.h"
#include "sim/memory_settings.h"
#include "sim/recorded_media.h"
#include "sim/scripted_dialogs.h"
#include "sim/sim_devices.h"
#include "sim/sim_files.h"
#include "sim/sim_hid.h"
#include "sim/sim_network.h"
#include "sim/sim_serial.h"
#include "sim/sim_sets.h"
#include "sim/virtual_clock.h"

namespace pawnfield {

// The program's folder holds its pictures, an empty "Trivia Sets" and an empty "Sounds" from the start.
struct SimPlatform {
  explicit SimPlatform(Folders where = {"C:\\Pawnfield", "C:\\Ostara Show Kit Data"});

  VirtualClock clock;
  ScriptedDialogs dialogs;
  RecordedMedia media;
  MemorySettings settings;
  SimFiles files;
  LinearTextMeasurer text;
  SimPictures pictures{files};
  SimMediaFiles mediaFiles{files};
  SimDisplays displays;
  SimProcesses processes;
  SimRandom random;
  SimHid hid{clock};
  SimDeviceWatch devices;
  SimPrinter printing;
  SimPages pages;
  SimSerial serial;
  SimNetwork network{clock};
  MemoryRecords records;
  SimSheets sheets{files};
  SimBundles bundles{files};
  SimSpelling spelling;
  Platform platform;
};

}  // namespace pawnfield
