// Sheets, bundles and spelling as simulations: tables that a test puts down, and bundles whose files lie in the
// simulated tree.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/set_ports.h"
#include "sim/sim_files.h"

namespace pawnfield {

class SimSheets : public SheetFiles {
 public:
  explicit SimSheets(const SimFiles& files) : files_(files) {}
  // A file that isn't there or holds no sheet is a RuntimeError.
  Sheet Read(const std::string& path) const override;
  void Write(const std::string& path, const Sheet& sheet) override { Sheets[path] = sheet; }

  // By path.
  std::map<std::string, Sheet> Sheets;

 private:
  const SimFiles& files_;
};

class SimBundles : public Bundles {
 public:
  explicit SimBundles(SimFiles& files) : files_(files) {}
  bool Pack(const std::string& path, const std::string& setName, const std::string& setBytes,
            const std::vector<PackedFile>& media) override;
  BundleContents Look(const std::string& path) const override;
  bool Unpack(const std::string& path, const std::string& folder) override;

  struct Bundle {
    BundleContents Contents;
    // By name.
    std::map<std::string, std::string> Files;
  };
  // By path.
  std::map<std::string, Bundle> All;
  // The operator stops what is under way.
  bool Stopped = false;

 private:
  SimFiles& files_;
};

class SimSpelling : public Spelling {
 public:
  std::string Problem() const override { return Missing; }
  std::string Missing;
};

}  // namespace pawnfield
