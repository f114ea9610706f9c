// The ports that the editor of sets alone uses: tables of spreadsheets, bundles of a set with its media, and spelling.
// Failures are RuntimeErrors whose words an operator can act on.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace pawnfield {

using Sheet = std::vector<std::vector<std::string>>;

class SheetFiles {
 public:
  virtual ~SheetFiles() = default;
  // The first sheet of the file, row by row: CSV and TSV in any of their forms, .ods and .xlsx. Cells are text of the
  // program, in which a line break is an escape too.
  virtual Sheet Read(const std::string& path) const = 0;
  // Replaces the file, which becomes a CSV.
  virtual void Write(const std::string& path, const Sheet& sheet) = 0;
};

// A file that goes into a bundle: where it is, and its name there.
struct PackedFile {
  std::string Path;
  std::string Name;
};

// What a bundle holds. The names are plain ones, without a folder.
struct BundleContents {
  // Without ".txt".
  std::string SetName;
  std::string SetBytes;
  std::vector<std::string> Media;
};

class Bundles {
 public:
  virtual ~Bundles() = default;
  // Called when another program's double click or a second start of this one hands over a file.
  std::function<void(const std::string& path)> OnOpened;

  // Makes the bundle anew, whole or not at all. False when the operator has stopped it.
  virtual bool Pack(const std::string& path, const std::string& setName, const std::string& setBytes,
                    const std::vector<PackedFile>& media) = 0;
  // Refuses what no bundle of a set should hold: other folders, links, more than 1,000 files or 2 GB.
  virtual BundleContents Look(const std::string& path) const = 0;
  // Puts the media into the folder, which must not be there yet. False when the operator has stopped it; nothing is
  // left then, nor after a failure.
  virtual bool Unpack(const std::string& path, const std::string& folder) = 0;
};

class Spelling {
 public:
  virtual ~Spelling() = default;
  // Why nothing can be checked; empty when it can.
  virtual std::string Problem() const = 0;
};

}  // namespace pawnfield
