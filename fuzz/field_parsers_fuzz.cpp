// The five parsers take any format line, and what they make of it is what they make of the line written anew from it,
// but for what the shortest field and a name that is a number cost.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "platform/text.h"
#include "sets/set_parser.h"

namespace {

using namespace pawnfield;

constexpr std::size_t kShortestField = 2;

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string line = Trim(std::string(reinterpret_cast<const char*>(data), size));
  const std::string name = ParseFontName(line);
  const std::string color = ParseFontColor(line);
  const int fontSize = ParseFontSize(line);
  const bool bold = ParseFontBold(line);
  const bool italic = ParseFontItalic(line);
  Require(name.empty() || (name.size() >= kShortestField && !ParseNumber(name)));
  Require(color.size() >= kShortestField && (name + color).find('#') == std::string::npos);
  Require(fontSize >= -32768 && fontSize <= 32767);
  if (name.empty()) return 0;
  const std::string sizeText = std::to_string(fontSize);
  const std::string again =
      "T#" + name + "#" + sizeText + "#" + BooleanText(bold) + "#" + BooleanText(italic) + "#" + color + "#";
  Require(ParseFontName(again) == name && ParseFontColor(again) == color);
  Require(ParseFontBold(again) == bold && ParseFontItalic(again) == italic);
  Require(ParseFontSize(again) == (sizeText.size() < kShortestField ? 28 : fontSize));
  return 0;
}
