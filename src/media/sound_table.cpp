#include "media/sound_table.h"

#include <initializer_list>

#include "platform/line_reader.h"

namespace pawnfield {

namespace {

std::string TablePath(const Show& show) { return show.platform.folders.DataRoot + "\\Sounds.dat"; }

// Visits the entries in the order of the file's lines, as long as the visitor answers true.
template <typename Banks, typename Visit>
bool VisitEntries(Banks& banks, Visit visit) {
  for (std::size_t bank = 1; bank <= kSoundBankCount; ++bank) {
    for (std::size_t row = 1; row <= kSoundRows; ++row) {
      if (!visit(banks[bank][row])) return false;
    }
  }
  return true;
}

}  // namespace

std::string SoundEntry(const Show& show, int row) {
  const int bank = show.state.SoundSet;
  if (bank < 1 || bank > kSoundBankCount || row < 1 || row > kSoundRows) return "";
  return show.soundBanks[static_cast<std::size_t>(bank)][static_cast<std::size_t>(row)];
}

bool ParseSoundTable(const std::string& bytes, SoundBanks& banks) {
  banks = {};
  return ReadSoundTable(bytes, banks);
}

bool ReadSoundTable(const std::string& bytes, SoundBanks& banks) {
  LineReader reader(bytes);
  return VisitEntries(banks, [&](std::string& entry) {
    const auto line = reader.Next();
    if (line) entry = *line;
    return line.has_value();
  });
}

std::string FormatSoundTable(const SoundBanks& banks) {
  std::string bytes;
  VisitEntries(banks, [&](const std::string& entry) {
    bytes += entry + "\r\n";
    return true;
  });
  return bytes;
}

bool LoadSoundTable(Show& show) {
  const FileSystem& files = show.platform.files;
  if (!files.CanOpen(TablePath(show))) return false;
  try {
    // Of a file that is too short, what it holds stands: the defaults would write over it.
    ParseSoundTable(files.Read(TablePath(show)), show.soundBanks);
    return true;
  } catch (const RuntimeError&) {
    show.soundBanks = {};
    return false;
  }
}

void SaveSoundTable(Show& show) { show.platform.files.Write(TablePath(show), FormatSoundTable(show.soundBanks)); }

void FillDefaultSounds(Show& show) {
  auto& bank = show.soundBanks[1];
  for (const GameSound& sound : kGameSounds) {
    bank[static_cast<std::size_t>(sound.Row)] = show.AppPath(std::string("\\Sound Effects\\") + sound.File);
  }
}

}  // namespace pawnfield
