#include "desktop/files/sheet_reader.h"

#include <QFile>
#include <QFileInfo>

#include "desktop/files/native_path.h"
#include "desktop/files/sheet_xml.h"
#include "desktop/files/whole_file.h"
#include "desktop/files/windows_1252.h"
#include "desktop/files/zip_file.h"
#include "platform/ports.h"
#include "sets/table_text.h"

namespace pawnfield {

namespace {

constexpr qint64 kLargestFile = 32 * 1024 * 1024;
constexpr std::uint64_t kLargestPart = 64 * 1024 * 1024;

[[noreturn]] void Refuse(const char* words) { throw RuntimeError(kErrorDeviceIo, words); }

QByteArray Part(const ZipReader& zip, const std::string& name) {
  const int entry = zip.Find(name);
  if (entry < 0) return {};
  return QByteArray::fromStdString(zip.Read(static_cast<std::size_t>(entry), kLargestPart));
}

Sheet SheetOfZip(std::string_view bytes) {
  const ZipReader zip = ZipReader::OfBytes(bytes);
  if (zip.Find("content.xml") >= 0) return ParseOpenDocument(Part(zip, "content.xml"));
  if (zip.Find("xl/workbook.xml") < 0) Refuse("It holds no sheet");
  const std::string first = FirstSheetName(Part(zip, "xl/workbook.xml"), Part(zip, "xl/_rels/workbook.xml.rels"));
  if (zip.Find(first) < 0) Refuse("Its first sheet is missing");
  return ParseWorksheet(Part(zip, first), ParseSharedStrings(Part(zip, "xl/sharedStrings.xml")));
}

Sheet SheetOfText(std::string_view bytes) {
  if (bytes.find('\0') != std::string_view::npos && EncodingOf(bytes) == TableEncoding::Utf8) {
    Refuse("It is neither a table nor a sheet");
  }
  Sheet sheet = ReadTable(bytes);
  if (sheet.size() > kMostRows) Refuse("It has too many rows");
  for (auto& row : sheet) {
    if (row.size() > kMostColumns) row.resize(kMostColumns);
    for (std::string& cell : row) cell = EscapeLines(QString::fromStdString(cell));
  }
  return sheet;
}

}  // namespace

Sheet SheetOf(std::string_view bytes) {
  return bytes.starts_with("PK\x03\x04") ? SheetOfZip(bytes) : SheetOfText(bytes);
}

std::string BytesOf(const Sheet& sheet) {
  Table table = sheet;
  for (TableRow& row : table) {
    for (std::string& cell : row) cell = Unescape(cell).toStdString();
  }
  return FormatTable(table);
}

Sheet SheetReader::Read(const std::string& path) const {
  const QString native = NativePath(path);
  if (QFileInfo(native).isFile() && QFileInfo(native).size() > kLargestFile) Refuse("It is larger than 32 MB");
  const QByteArray bytes = ReadFile(native);
  return SheetOf({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

void SheetReader::Write(const std::string& path, const Sheet& sheet) { ReplaceFile(NativePath(path), BytesOf(sheet)); }

}  // namespace pawnfield
