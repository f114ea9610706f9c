#include "desktop/system/zip_bundles.h"

#include "desktop/files/bundle_file.h"
#include "desktop/files/bundle_rules.h"
#include "desktop/files/native_path.h"
#include "desktop/system/work_beside.h"

namespace pawnfield {

namespace {

GoesOn Telling(WorkProgress& work) {
  return [&work](double done) {
    work.Tell(done);
    return !work.IsStopped();
  };
}

}  // namespace

bool ZipBundles::Pack(const std::string& path, const std::string& setName, const std::string& setBytes,
                      const std::vector<PackedFile>& media) {
  return WorkBeside("Packing the set...", [&](WorkProgress& work) {
    return WriteBundle(NativePath(path), setName, setBytes, media, Telling(work));
  });
}

BundleContents ZipBundles::Look(const std::string& path) const {
  return LookInto(ZipReader::OfFile(NativePath(path).toStdString()));
}

bool ZipBundles::Unpack(const std::string& path, const std::string& folder) {
  return WorkBeside("Unpacking the set...", [&](WorkProgress& work) {
    return UnpackBundle(NativePath(path), NativePath(folder), Telling(work));
  });
}

}  // namespace pawnfield
