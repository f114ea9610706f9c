// Interface.txt: the line that names the ports of the wired hardware.
#pragma once

#include <array>
#include <string>

namespace pawnfield {

struct Show;

struct InterfaceSettings {
  std::array<int, 5> Fields{4, 0, 0, 0, 0};
  bool ZR650Present = false;
};

// The one line of Interface.txt and back; what is missing or odd has its default.
InterfaceSettings ParseInterface(const std::string& bytes);
std::string FormatInterface(const InterfaceSettings& settings);
void LoadInterfaceFile(Show& show);
void SaveInterfaceFile(Show& show);

}  // namespace pawnfield
