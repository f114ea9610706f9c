// The parts of a spreadsheet program's files as they are read out of the zip. Each is a RuntimeError where it is broken
// or defines entities of its own. Cells are text of the program, with line breaks as escapes.
#pragma once

#include <QByteArray>
#include <cstddef>
#include <string>
#include <vector>

#include "platform/set_ports.h"

namespace pawnfield {

// What lies beyond is refused or left out: no set has as many.
inline constexpr std::size_t kMostRows = 10000;
inline constexpr std::size_t kMostColumns = 64;

// The name of the first sheet's part, by the workbook and its relations.
std::string FirstSheetName(const QByteArray& workbook, const QByteArray& relations);
std::vector<std::string> ParseSharedStrings(const QByteArray& part);
Sheet ParseWorksheet(const QByteArray& part, const std::vector<std::string>& shared);
// The first table of an OpenDocument's content.
Sheet ParseOpenDocument(const QByteArray& content);

}  // namespace pawnfield
