// Reads and writes zip files. What one says of its sizes is not believed: bytes are counted as they come.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct zip;

namespace pawnfield {

struct ZipEntry {
  // UTF-8.
  std::string Name;
  std::uint64_t Size = 0;
  bool IsLink = false;
  bool IsEncrypted = false;
};

class ZipReader {
 public:
  // A RuntimeError with words for what can't be read. The bytes must outlive the reader.
  static ZipReader OfFile(const std::string& path);
  static ZipReader OfBytes(std::string_view bytes);

  const std::vector<ZipEntry>& Entries() const { return entries_; }
  // The entry of that name; negative for none.
  int Find(std::string_view name) const;
  // Gives the entry's bytes piece by piece; a RuntimeError for a broken one and for more bytes than the limit. The sink
  // says whether to go on.
  void Copy(std::size_t entry, std::uint64_t limit, const std::function<bool(std::string_view)>& sink) const;
  std::string Read(std::size_t entry, std::uint64_t limit) const;

 private:
  struct Close {
    void operator()(zip* archive) const;
  };
  explicit ZipReader(zip* archive);

  std::unique_ptr<zip, Close> archive_;
  std::vector<ZipEntry> entries_;
};

// What goes into a zip file: bytes, or else the file of that path.
struct ZipContent {
  // UTF-8.
  std::string Name;
  std::string Path;
  std::string Bytes;
};

// Writes the zip into the file, which is open and empty. `progress` is told the done share of 1 and says whether to go
// on; false when it didn't, and what the file holds is worth nothing then, nor after a RuntimeError.
bool WriteZip(std::FILE* file, const std::vector<ZipContent>& contents,
              const std::function<bool(double done)>& progress);

}  // namespace pawnfield
