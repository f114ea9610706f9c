#include "program/interface_file.h"

#include <algorithm>
#include <vector>

#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kSmallestPort = 0;
constexpr int kLargestPort = 15;

std::vector<std::string> SplitFields(const std::string& line) {
  std::vector<std::string> fields;
  std::size_t from = 0;
  for (std::size_t end = line.find('^'); end != std::string::npos; end = line.find('^', from)) {
    fields.push_back(line.substr(from, end - from));
    from = end + 1;
  }
  fields.push_back(line.substr(from));
  return fields;
}

int FieldInRange(const std::string& text, int outside) {
  const auto number = ParseNumber(text);
  return number && *number >= kSmallestPort && *number <= kLargestPort ? static_cast<int>(RoundHalfEven(*number))
                                                                       : outside;
}

std::string InterfacePath(const Show& show) { return show.platform.folders.DataRoot + "\\Interface.txt"; }

}  // namespace

InterfaceSettings ParseInterface(const std::string& bytes) {
  constexpr int kPort = 4;
  InterfaceSettings settings;
  const auto fields = SplitFields(bytes.substr(0, bytes.find_first_of("\r\n")));
  for (std::size_t i = 0; i < std::min(fields.size(), settings.Fields.size()); ++i) {
    settings.Fields[i] = FieldInRange(fields[i], i == 0 ? kPort : 0);
  }
  settings.ZR650Present = fields.size() > settings.Fields.size() && ParseNumber(fields[5]) == 1.0;
  return settings;
}

std::string FormatInterface(const InterfaceSettings& settings) {
  std::string line;
  for (const int field : settings.Fields) line += std::to_string(field) + "^";
  return line + (settings.ZR650Present ? "1" : "0") + "\r\n";
}

void LoadInterfaceFile(Show& show) {
  InterfaceSettings settings;
  try {
    const FileSystem& files = show.platform.files;
    if (files.CanOpen(InterfacePath(show))) settings = ParseInterface(files.Read(InterfacePath(show)));
  } catch (const RuntimeError&) {
    settings = {};
  }
  show.presses.InterfaceFields = settings.Fields;
  show.state.ZR650 = settings.ZR650Present;
}

void SaveInterfaceFile(Show& show) {
  show.platform.files.Write(InterfacePath(show), FormatInterface({show.presses.InterfaceFields, show.state.ZR650}));
}

}  // namespace pawnfield
