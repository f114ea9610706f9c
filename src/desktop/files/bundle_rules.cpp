#include "desktop/files/bundle_rules.h"

#include <QString>
#include <set>

#include "desktop/files/windows_1252.h"
#include "media/media_kinds.h"
#include "platform/large_file.h"
#include "platform/ports.h"
#include "sets/table_text.h"

namespace pawnfield {

namespace {

constexpr std::uint64_t kLargestSet = 4ULL * 1024 * 1024;
constexpr std::size_t kLongestName = 200;

[[noreturn]] void Refuse(const std::string& words) { throw RuntimeError(kErrorPathAccess, words); }

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

// One part that means the same on every system, is no hidden file and can't be taken for a folder or a device.
bool IsPlainName(const std::string& name) {
  if (name.empty() || name.size() > kLongestName || !IsUtf8(name)) return false;
  if (name.front() == '.' || name.front() == ' ' || name.back() == '.' || name.back() == ' ') return false;
  if (name.find_first_of("/\\:*?\"<>|") != std::string::npos) return false;
  for (const char c : name) {
    if (IsControl(c)) return false;
  }
  return true;
}

void CheckEntry(const ZipEntry& entry) {
  // The words are for a box: what a name does to a line of text is kept out of it.
  const std::string name = Escape(QString::fromUtf8(entry.Name.substr(0, 80).c_str()).simplified());
  if (!IsPlainName(entry.Name)) Refuse("It holds \"" + name + "\", which is no plain file name");
  if (entry.IsLink) Refuse("It holds a link, \"" + name + "\"");
  if (entry.IsEncrypted) Refuse("It is locked by a password");
}

bool IsSetName(const std::string& name) { return QString::fromStdString(name).endsWith(".txt", Qt::CaseInsensitive); }

bool IsMediaName(const std::string& name) {
  const Medium kind = MediaKind(name);
  return kind == Medium::Picture || kind == Medium::Sound;
}

}  // namespace

BundleContents LookInto(const ZipReader& zip) {
  constexpr std::size_t kEnding = 4;
  const auto& entries = zip.Entries();
  if (entries.size() > kMostBundled) Refuse("It holds more than 1,000 files");
  std::uint64_t total = 0;
  std::set<QString> names;
  int set = -1;
  BundleContents contents;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    CheckEntry(entries[i]);
    if (entries[i].Size > kLargestBundle) Refuse("It holds more than 2 GB");
    total += entries[i].Size;
    const QString name = QString::fromStdString(entries[i].Name);
    if (!names.insert(name.toCaseFolded()).second) Refuse("It holds a file twice: \"" + Escape(name) + "\"");
    if (IsSetName(entries[i].Name)) {
      if (set >= 0) Refuse("It holds more than one set");
      set = static_cast<int>(i);
      contents.SetName = Escape(name.chopped(static_cast<qsizetype>(kEnding)));
    } else if (IsMediaName(Escape(name))) {
      contents.Media.push_back(Escape(name));
    } else {
      Refuse("It holds \"" + Escape(name) + "\", which is neither a picture nor a sound");
    }
  }
  if (total > kLargestBundle) Refuse("It holds more than 2 GB");
  if (set < 0) Refuse("It holds no set");
  contents.SetBytes = zip.Read(static_cast<std::size_t>(set), kLargestSet);
  return contents;
}

}  // namespace pawnfield
