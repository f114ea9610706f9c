// A file tree in memory: blind to case, takes both separators, and fails where a test wants it to.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/ports.h"

namespace pawnfield {

class SimFiles : public FileSystem {
 public:
  std::string Read(const std::string& path) const override;
  void Write(const std::string& path, const std::string& bytes) override;
  void WriteLike(const std::string& path, const std::string& bytes, const std::string&) override { Write(path, bytes); }
  bool CanOpen(const std::string& path) const override;
  bool FolderExists(const std::string& path) const override;
  void CreateFolder(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder, const std::string& extension) const override;

  // Puts a file there, with all the folders above it; never fails.
  void Put(const std::string& path, const std::string& bytes);
  void PutFolder(const std::string& path);
  void Remove(const std::string& path);
  // Copies a folder of the real disk, with all below it, to the path.
  void Import(const std::string& realFolder, const std::string& path);

  // The next Write leaves the old file and throws this error.
  void FailNextWrite(int errorNumber) { failNextWrite_ = errorNumber; }
  // Reading that file, listing that folder or creating it fails with 75 from now on.
  void Deny(const std::string& path);

 private:
  struct File {
    std::string name;
    std::string bytes;
  };

  bool IsDenied(const std::string& key) const { return denied_.contains(key); }

  // By lower-case path with backslashes.
  std::map<std::string, File> files_;
  std::set<std::string> folders_;
  std::set<std::string> denied_;
  int failNextWrite_ = 0;
};

}  // namespace pawnfield
