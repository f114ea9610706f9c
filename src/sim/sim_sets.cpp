#include "sim/sim_sets.h"

#include "platform/ports.h"

namespace pawnfield {

Sheet SimSheets::Read(const std::string& path) const {
  const auto found = Sheets.find(path);
  if (found != Sheets.end()) return found->second;
  if (files_.CanOpen(path)) throw RuntimeError(kErrorDeviceIo, "This file is no sheet");
  throw RuntimeError(kErrorFileNotFound, "File not found");
}

bool SimBundles::Pack(const std::string& path, const std::string& setName, const std::string& setBytes,
                      const std::vector<PackedFile>& media) {
  if (Stopped) return false;
  Bundle bundle{{setName, setBytes, {}}, {}};
  for (const PackedFile& file : media) {
    bundle.Files[file.Name] = files_.Read(file.Path);
    bundle.Contents.Media.push_back(file.Name);
  }
  All[path] = bundle;
  return true;
}

BundleContents SimBundles::Look(const std::string& path) const {
  const auto found = All.find(path);
  if (found == All.end()) throw RuntimeError(kErrorFileNotFound, "File not found");
  return found->second.Contents;
}

bool SimBundles::Unpack(const std::string& path, const std::string& folder) {
  if (Stopped) return false;
  files_.PutFolder(folder);
  const std::string inside = folder + "\\";
  for (const auto& [name, bytes] : All.at(path).Files) files_.Put(std::string(inside).append(name), bytes);
  return true;
}

}  // namespace pawnfield
