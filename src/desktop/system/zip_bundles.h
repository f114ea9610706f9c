// Bundles as zip files. What takes long is done beside the program, which goes on behind a bar and a Stop.
#pragma once

#include "platform/set_ports.h"

namespace pawnfield {

class ZipBundles : public Bundles {
 public:
  bool Pack(const std::string& path, const std::string& setName, const std::string& setBytes,
            const std::vector<PackedFile>& media) override;
  BundleContents Look(const std::string& path) const override;
  bool Unpack(const std::string& path, const std::string& folder) override;
};

}  // namespace pawnfield
