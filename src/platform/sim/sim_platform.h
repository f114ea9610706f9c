// A whole machine in memory: every port as a simulation, composed into the platform that the program is given.
#pragma once

#include "platform/ports.h"
#include "platform/sim/memory_settings.h"
#include "platform/sim/recorded_media.h"
#include "platform/sim/scripted_dialogs.h"
#include "platform/sim/sim_devices.h"
#include "platform/sim/sim_files.h"
#include "platform/sim/sim_hid.h"
#include "platform/sim/sim_serial.h"
#include "platform/sim/virtual_clock.h"

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
  SimDisplays displays;
  SimProcesses processes;
  SimRandom random;
  SimHid hid{clock};
  SimPrinter printing;
  SimPages pages;
  SimSerial serial;
  Platform platform;
};

}  // namespace pawnfield
