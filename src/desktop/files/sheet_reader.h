// Sheets of other programs: CSV and TSV as text, .xlsx and .ods out of their zip files.
#pragma once

#include <string_view>

#include "platform/set_ports.h"

class QString;

namespace pawnfield {

class SheetReader : public SheetFiles {
 public:
  Sheet Read(const std::string& path) const override;
  void Write(const std::string& path, const Sheet& sheet) override;
};

// The sheet of a file's bytes, whatever it is named. A RuntimeError for what holds none, what is too large, and what
// defines entities of its own.
Sheet SheetOf(std::string_view bytes);
// The bytes of a CSV, such that SheetOf gives back each cell.
std::string BytesOf(const Sheet& sheet);

}  // namespace pawnfield
