#include "platform/line_reader.h"

namespace pawnfield {

std::optional<std::string_view> LineReader::Next() {
  if (rest_.empty()) return std::nullopt;
  const std::size_t end = rest_.find('\r');
  const std::string_view line = rest_.substr(0, end);
  if (end == std::string_view::npos) {
    rest_ = {};
    return line;
  }
  rest_.remove_prefix(end + 1);
  if (rest_.starts_with('\n')) rest_.remove_prefix(1);
  return line;
}

}  // namespace pawnfield
