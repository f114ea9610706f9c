// Files on this machine's disks. A file is replaced as a whole or not at all.
#pragma once

#include "platform/ports.h"

namespace pawnfield {

class QtFileSystem : public FileSystem {
 public:
  std::string Read(const std::string& path) const override;
  void Write(const std::string& path, const std::string& bytes) override;
  void WriteLike(const std::string& path, const std::string& bytes, const std::string& other) override;
  bool CanOpen(const std::string& path) const override;
  bool FolderExists(const std::string& path) const override;
  void CreateFolder(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder, const std::string& extension) const override;
};

}  // namespace pawnfield
