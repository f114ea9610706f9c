// Any bytes load as a sound table; a table that was loaded survives being written and read again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "media/sound_table.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pawnfield;
  SoundBanks read;
  SoundBanks again;
  ParseSoundTable(std::string(reinterpret_cast<const char*>(data), size), read);
  if (!ParseSoundTable(FormatSoundTable(read), again) || again != read) std::abort();
  return 0;
}
