#include "platform/nearest_letters.h"

#include <array>
#include <string_view>

namespace pawnfield {

namespace {

constexpr char kNone = '.';

// Letters of one alphabet as their codes follow one another, each with the one that stands for it.
struct Alphabet {
  char32_t First;
  std::string_view Nearest;
};

// Latin with its marks, Greek, Cyrillic and Hebrew; a point for what has none.
constexpr std::array<Alphabet, 5> kAlphabets{{
    {0x0100,
     "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLlNnNnNnnNnOoOoOo.."
     "RrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzsbB.......DD....EEFfG...IKkl....OOo..Pp.....tTtTUu.VYyZz............."
     "DDdLLlNNnAaIiOoUuUuUuUuUu.AaAa....GgKkOoOo..jDDdGg..NnAa....AaAaEeEeIiIiOoOoRrRrUuUuSsTt..Hh......AaEeOoOoOoOoYy."
     "..j..ACcL.....B..EeJj......"},
    {0x0386, "A.EII.O.YOiABGDEZITIKLMNXOPR.STYFHPOIYaeiiyabgdezitiklmnxoprsstyfhpoiyoyo"},
    {0x0400,
     "EEDGESIIJLNCKIUDABVGDEJZIIKLMNOPRSTUFHCCSS'Y'EUAabvgdejziiklmnoprstufhccss'y'euaeedgesiijlnckiud................."
     "...............................Gg"},
    {0x05D0, "abgdhvzhtykklmmnnsappzzqrst"},
    {0x1E00,
     "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMmMmMmNnNnNnNnOoOoOoOoPpPpRrRrRrRrSsSsSsSsSsTtTtTtT"
     "tUuUuUuUuUuVvVvWwWwWwWwWwXxXxYyZzZzZzhtwyas...."
     "AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEeEeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYy......"},
}};

}  // namespace

char NearestLetter(char32_t code) {
  if (code < 0x20) return ' ';
  for (const Alphabet& alphabet : kAlphabets) {
    if (code >= alphabet.First && code - alphabet.First < alphabet.Nearest.size()) {
      const char nearest = alphabet.Nearest[code - alphabet.First];
      return nearest == kNone ? '?' : nearest;
    }
  }
  const bool isDash = code >= 0x2010 && code <= 0x2015, isBlank = code >= 0x2000 && code <= 0x200B;
  if (isDash) return '-';
  return isBlank ? ' ' : '?';
}

}  // namespace pawnfield
