#include "desktop/system/qt_printing.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QTextLayout>
#include <vector>

#include "desktop/files/whole_file.h"
#include "desktop/files/windows_1252.h"
#include "desktop/system/qt_dialogs.h"

namespace pawnfield {

namespace {

constexpr double kTitlePoints = 20;
constexpr double kTextPoints = 11;
constexpr double kMarginMm = 18;
// The answer stands a little to the right of its question.
constexpr double kIndentPoints = 18;
constexpr double kNumberPoints = 9;
// The foot of each page, for its number.
constexpr double kFootPoints = 24;

QFont PrintFont(double points, bool bold) {
  QFont font("Liberation Sans");
  font.setPointSizeF(points);
  font.setBold(bold);
  return font;
}

// One line of a document, wrapped to the page's width.
struct Paragraph {
  std::unique_ptr<QTextLayout> layout;
  // Off the page's left edge.
  double left = 0;
  double height = 0;
};

// A break in a text of the set is one on paper too.
QString Lines(const std::string& text) {
  QString lines = Unescape(text);
  lines.replace("\r\n", "\n");
  lines.replace('\r', '\n');
  return lines.replace('\n', QChar::LineSeparator);
}

// What begins at the right is indented there.
Paragraph Wrap(const std::string& text, const QFont& font, double indent, Qt::Alignment side, QPainter& painter) {
  const double left = side == Qt::AlignRight ? 0 : indent;
  Paragraph paragraph{std::make_unique<QTextLayout>(Lines(text), font, painter.device()), left, 0};
  QTextOption wrap(side);
  wrap.setTextDirection(Qt::LayoutDirectionAuto);
  wrap.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  paragraph.layout->setTextOption(wrap);
  paragraph.layout->beginLayout();
  for (QTextLine line = paragraph.layout->createLine(); line.isValid(); line = paragraph.layout->createLine()) {
    line.setLineWidth(painter.viewport().width() - indent);
    line.setPosition(QPointF(0, paragraph.height));
    paragraph.height += line.height();
  }
  paragraph.layout->endLayout();
  return paragraph;
}

// One copy. Without a total of pages nothing is drawn, and the pages are only counted.
class PrintedPages {
 public:
  PrintedPages(QPagedPaintDevice& device, QPainter& painter, int total)
      : device_(device), painter_(painter), total_(total) {
    BeginPage();
  }

  int Count() const { return page_; }

  void Add(const PrintBlock& block, bool isTitle) {
    std::vector<Paragraph> paragraphs;
    double height = 0;
    // An answer in figures stands at the side of its question too.
    const bool fromRight = !block.empty() && Lines(block[0]).isRightToLeft();
    const Qt::Alignment side = fromRight ? Qt::AlignRight : Qt::AlignLeft;
    for (std::size_t i = 0; i < block.size(); ++i) {
      const double indent = i == 1 && !isTitle ? kIndentPoints * device_.logicalDpiX() / 72 : 0;
      const QFont font = PrintFont(isTitle && i == 0 ? kTitlePoints : kTextPoints, i == 0);
      paragraphs.push_back(Wrap(block[i], font, indent, side, painter_));
      // The blank line that closes a block may fall off the page.
      if (Trailing(block, i)) continue;
      height += paragraphs.back().height;
    }
    if (y_ > 0 && y_ + height > PageHeight()) BreakPage();
    for (const Paragraph& paragraph : paragraphs) Draw(paragraph);
  }

 private:
  void BreakPage() {
    if (total_ > 0) device_.newPage();
    BeginPage();
  }

  void BeginPage() {
    ++page_;
    y_ = 0;
    if (total_ == 0) return;
    painter_.setFont(PrintFont(kNumberPoints, false));
    const QString number = QString("Page %1 of %2").arg(page_).arg(total_);
    painter_.drawText(painter_.viewport(), Qt::AlignRight | Qt::AlignBottom, number);
  }

  static bool Trailing(const PrintBlock& block, std::size_t i) { return i + 1 == block.size() && block[i] == " "; }
  double PageHeight() const { return painter_.viewport().height() - kFootPoints * device_.logicalDpiY() / 72; }

  void Draw(const Paragraph& paragraph) {
    const QTextLayout& layout = *paragraph.layout;
    for (int i = 0; i < layout.lineCount(); ++i) {
      const QTextLine line = layout.lineAt(i);
      if (y_ > 0 && y_ + line.height() > PageHeight()) {
        // A blank line is not carried over to the next page.
        if (layout.text().trimmed().isEmpty()) return;
        BreakPage();
      }
      if (total_ > 0) line.draw(&painter_, QPointF(paragraph.left, y_ - line.y()));
      y_ += line.height();
    }
  }

  QPagedPaintDevice& device_;
  QPainter& painter_;
  int total_;
  int page_ = 0;
  double y_ = 0;
};

int PrintCopy(QPagedPaintDevice& device, QPainter& painter, const PrintDocument& document, int total) {
  PrintedPages pages(device, painter, total);
  for (std::size_t i = 0; i < document.Blocks.size(); ++i) pages.Add(document.Blocks[i], i == 0);
  return pages.Count();
}

}  // namespace

std::optional<int> QtPrinting::ChoosePrinter() {
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer_->setCopyCount(1);
  QPrintDialog dialog(printer_.get(), OperatorsWindow());
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const int copies = printer_->copyCount();
  // The copies are laid out here; the printer must not multiply them once more.
  printer_->setCopyCount(1);
  return copies;
}

void QtPrinting::Print(const PrintDocument& document, int copies) {
  if (!printer_) throw RuntimeError(kErrorPrinter, "Printer error");
  PrintOn(*printer_, document, copies);
}

void PrintOn(QPrinter& printer, const PrintDocument& document, int copies) {
  const QString file = printer.outputFileName();
  if (printer.outputFormat() == QPrinter::NativeFormat || file.isEmpty()) {
    printer.setDocName(Unescape(document.Title));
    PaintDocument(printer, document, copies);
    if (printer.printerState() == QPrinter::Error) throw RuntimeError(kErrorPrinter, "Printer error");
    return;
  }
  // The toolkit writes a file as it goes and keeps silent about a disk that is full; so the pages are made in memory.
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QPdfWriter writer(&bytes);
  writer.setResolution(printer.resolution());
  writer.setPageLayout(printer.pageLayout());
  writer.setTitle(Unescape(document.Title));
  PaintDocument(writer, document, copies);
  ReplaceFile(file, {bytes.data().constData(), static_cast<std::size_t>(bytes.size())});
}

void PaintDocument(QPagedPaintDevice& device, const PrintDocument& document, int copies) {
  device.setPageMargins(QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm), QPageLayout::Millimeter);
  QPainter painter;
  if (!painter.begin(&device)) throw RuntimeError(kErrorPrinter, "Printer error");
  const int total = PrintCopy(device, painter, document, 0);
  for (int copy = 0; copy < copies; ++copy) {
    if (copy > 0) device.newPage();
    PrintCopy(device, painter, document, total);
  }
  if (!painter.end()) throw RuntimeError(kErrorPrinter, "Printer error");
}

}  // namespace pawnfield
