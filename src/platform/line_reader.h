// Splits a text file's bytes into lines. A line ends at CR or at CR LF; a lone LF belongs to its line.
#pragma once

#include <optional>
#include <string_view>

namespace pawnfield {

// Looks at the bytes it is given, which must outlive it.
class LineReader {
 public:
  explicit LineReader(std::string_view bytes) : rest_(bytes) {}
  // Nothing at the end of the file. A last line without an end is a line.
  std::optional<std::string_view> Next();

 private:
  std::string_view rest_;
};

}  // namespace pawnfield
