// The wired pads of the ZR-610 on their serial line: the port, the frames, and the presses and judgements they carry.
#pragma once

#include <string>

#include "platform/ports.h"

namespace pawnfield {

struct Show;

// True for a port of the system's adapter.
bool IsZR610Adapter(const SerialDevice& device);
// The number of the last port of the system's adapter, -1 when there is none.
int FindZR610Port(const SerialPort& port);
// The port number that a caption ends with. Of one with a closing bracket, "Serial (COM12)", only the last digit
// counts; a device's own name, "ttyUSB12", gives its whole number.
int PortNumber(const std::string& caption);

// Looks for the system at the console's load, and opens it with its table of pads.
void LoadZR610(Show& show);
// Opens the port that was found. The port's error when it can't be opened.
void OpenZR610Port(Show& show);
// An event of the line. While a message box waits for the operator, frames wait too.
void mscZR610_OnComm(Show& show, SerialEvent event);
// One whole frame. Error 5 when it is too short for what it is.
void ProcessZR610Frame(Show& show, const std::string& frame);

void mnuReconnectMF_Click(Show& show);
void mTestK7Controllers_Click(Show& show);

// Ties the serial line, the menu of the system and the dialogs of this room to their routines.
void AttachPressHandlers(Show& show);

}  // namespace pawnfield
