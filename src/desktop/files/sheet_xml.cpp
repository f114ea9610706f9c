#include "desktop/files/sheet_xml.h"

#include <QXmlStreamReader>
#include <algorithm>

#include "desktop/files/windows_1252.h"
#include "platform/ports.h"

namespace pawnfield {

namespace {

[[noreturn]] void Refuse(const char* words) { throw RuntimeError(kErrorDeviceIo, words); }

// Walks the elements of a part. A document type is what entity bombs are made of, and no spreadsheet writes one.
class XmlPart {
 public:
  explicit XmlPart(const QByteArray& bytes) : xml_(bytes) {}

  // The next begin or end of an element or piece of text; false at the end.
  bool Next() {
    while (!xml_.atEnd()) {
      const auto token = xml_.readNext();
      if (token == QXmlStreamReader::DTD) Refuse("It defines entities, which no sheet needs");
      if (token == QXmlStreamReader::StartElement || token == QXmlStreamReader::EndElement ||
          token == QXmlStreamReader::Characters) {
        return true;
      }
    }
    if (xml_.hasError()) Refuse("It is broken");
    return false;
  }

  bool Begins(const char* name) const { return xml_.isStartElement() && xml_.name() == QLatin1String(name); }
  bool Ends(const char* name) const { return xml_.isEndElement() && xml_.name() == QLatin1String(name); }
  bool IsText() const { return xml_.isCharacters(); }
  QString Text() const { return xml_.text().toString(); }

  // By the local name, whatever stands before it.
  QString Attribute(const char* name) const {
    for (const QXmlStreamAttribute& one : xml_.attributes()) {
      if (one.name() == QLatin1String(name)) return one.value().toString();
    }
    return {};
  }
  std::size_t Count(const char* name) const {
    const QString text = Attribute(name);
    const int count = text.isEmpty() ? 1 : text.toInt();
    return static_cast<std::size_t>(std::max(count, 0));
  }

 private:
  QXmlStreamReader xml_;
};

// "_x000D_" is how a workbook writes a character that XML can't hold.
QString WithCharacters(const QString& text) {
  constexpr qsizetype kLength = 7;
  QString result;
  for (qsizetype i = 0; i < text.size(); ++i) {
    bool isCode = false;
    const bool looksSo = i + kLength <= text.size() && text[i] == '_' && text[i + 1] == 'x' && text[i + 6] == '_';
    const uint code = looksSo ? text.mid(i + 2, 4).toUInt(&isCode, 16) : 0;
    result += isCode ? QChar(static_cast<char16_t>(code)) : text[i];
    if (isCode) i += kLength - 1;
  }
  return result;
}

// The text of a string of a workbook up to the end of that element: its runs, without the reading marks above them.
QString StringUntil(XmlPart& part, const char* end) {
  QString text;
  bool inText = false, inMarks = false;
  while (part.Next() && !part.Ends(end)) {
    if (part.Begins("rPh")) inMarks = true;
    if (part.Ends("rPh")) inMarks = false;
    if (part.Begins("t")) inText = true;
    if (part.Ends("t")) inText = false;
    if (part.IsText() && inText && !inMarks) text += part.Text();
  }
  return WithCharacters(text);
}

// The column of a reference such as "BC12", counted from 0; `after` where there is none.
std::size_t ColumnOf(const QString& reference, std::size_t after) {
  std::size_t column = 0;
  for (const QChar letter : reference) {
    if (letter < 'A' || letter > 'Z') break;
    column = column * 26 + static_cast<std::size_t>(letter.unicode() - 'A' + 1);
    if (column > kMostColumns) return kMostColumns;
  }
  return column == 0 ? after : column - 1;
}

std::string CellText(const QString& type, const QString& value, const std::vector<std::string>& shared) {
  if (type == "s") {
    const std::size_t index = value.toUInt();
    return index < shared.size() ? shared[index] : std::string();
  }
  if (type == "b") return value == "1" ? "TRUE" : "FALSE";
  return EscapeLines(type == "str" ? WithCharacters(value) : value);
}

// A cell of a worksheet, from its beginning to its end.
std::string ReadCell(XmlPart& part, const std::vector<std::string>& shared) {
  const QString type = part.Attribute("t");
  QString value, inlined;
  bool inValue = false;
  while (part.Next() && !part.Ends("c")) {
    if (part.Begins("is")) inlined = StringUntil(part, "is");
    if (part.Begins("v")) inValue = true;
    if (part.Ends("v")) inValue = false;
    if (part.IsText() && inValue) value += part.Text();
  }
  return type == "inlineStr" ? EscapeLines(inlined) : CellText(type, value, shared);
}

void Put(std::vector<std::string>& row, std::size_t column, const std::string& text) {
  if (text.empty() || column >= kMostColumns) return;
  if (row.size() <= column) row.resize(column + 1);
  row[column] = text;
}

std::vector<std::string> ReadRow(XmlPart& part, const std::vector<std::string>& shared) {
  std::vector<std::string> row;
  std::size_t next = 0;
  while (part.Next() && !part.Ends("row")) {
    if (!part.Begins("c")) continue;
    const std::size_t column = ColumnOf(part.Attribute("r"), next);
    Put(row, column, ReadCell(part, shared));
    next = column + 1;
  }
  return row;
}

// The paragraphs of an OpenDocument's cell, which a line break parts; its notes are not its text.
QString ReadParagraphs(XmlPart& part, const char* end) {
  QString text;
  int paragraphs = 0, notes = 0;
  bool inParagraph = false;
  while (part.Next() && !part.Ends(end)) {
    if (part.Begins("annotation")) ++notes;
    if (part.Ends("annotation")) --notes;
    if (notes > 0) continue;
    if (part.Begins("p")) {
      if (paragraphs++ > 0) text += '\n';
      inParagraph = true;
    }
    if (part.Ends("p")) inParagraph = false;
    if (part.Begins("s")) text += QString(static_cast<int>(std::min<std::size_t>(part.Count("c"), 1000)), ' ');
    if (part.Begins("tab")) text += '\t';
    if (part.Begins("line-break")) text += '\n';
    if (part.IsText() && inParagraph) text += part.Text();
  }
  return text;
}

// The cells of a row; one that is repeated to the sheet's end is blank and counts for nothing.
std::vector<std::string> ReadTableRow(XmlPart& part) {
  std::vector<std::string> row;
  std::size_t column = 0;
  while (part.Next() && !part.Ends("table-row")) {
    const bool covered = part.Begins("covered-table-cell");
    if (!part.Begins("table-cell") && !covered) continue;
    const std::size_t times = part.Count("number-columns-repeated");
    const std::string text = EscapeLines(ReadParagraphs(part, covered ? "covered-table-cell" : "table-cell"));
    for (std::size_t i = 0; i < times && column + i < kMostColumns; ++i) Put(row, column + i, text);
    column += std::min(times, kMostColumns);
  }
  return row;
}

void DropBlankEnd(Sheet& sheet) {
  while (!sheet.empty() && sheet.back().empty()) sheet.pop_back();
}

}  // namespace

std::string FirstSheetName(const QByteArray& workbook, const QByteArray& relations) {
  QString id;
  for (XmlPart part(workbook); id.isEmpty() && part.Next();) {
    if (part.Begins("sheet")) id = part.Attribute("id");
  }
  for (XmlPart part(relations); part.Next();) {
    if (!part.Begins("Relationship") || part.Attribute("Id") != id) continue;
    const QString target = part.Attribute("Target");
    return (target.startsWith('/') ? target.mid(1) : "xl/" + target).toStdString();
  }
  return "xl/worksheets/sheet1.xml";
}

std::vector<std::string> ParseSharedStrings(const QByteArray& bytes) {
  std::vector<std::string> strings;
  if (bytes.isEmpty()) return strings;
  for (XmlPart part(bytes); part.Next();) {
    if (part.Begins("si")) strings.push_back(EscapeLines(StringUntil(part, "si")));
  }
  return strings;
}

Sheet ParseWorksheet(const QByteArray& bytes, const std::vector<std::string>& shared) {
  Sheet sheet;
  for (XmlPart part(bytes); part.Next();) {
    if (!part.Begins("row")) continue;
    // A row without cells may be left out of the file and counts all the same.
    const std::size_t number = part.Attribute("r").toUInt();
    if (std::max(number, sheet.size()) > kMostRows) Refuse("It has too many rows");
    if (number > sheet.size() + 1) sheet.resize(number - 1);
    sheet.push_back(ReadRow(part, shared));
  }
  DropBlankEnd(sheet);
  return sheet;
}

Sheet ParseOpenDocument(const QByteArray& content) {
  Sheet sheet;
  for (XmlPart part(content); part.Next() && !part.Ends("table");) {
    if (!part.Begins("table-row")) continue;
    const std::size_t times = part.Count("number-rows-repeated");
    const std::vector<std::string> row = ReadTableRow(part);
    // What is blank to the end of all rows is no row.
    if (row.empty() && times > kMostRows) continue;
    if (sheet.size() + times > kMostRows) Refuse("It has too many rows");
    sheet.insert(sheet.end(), times, row);
  }
  DropBlankEnd(sheet);
  return sheet;
}

}  // namespace pawnfield
