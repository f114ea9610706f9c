// Printing on paper or to a PDF file, through the desktop's own print dialog.
#pragma once

#include <QPrinter>
#include <memory>

#include "platform/ports.h"

namespace pawnfield {

class QtPrinting : public Printing {
 public:
  std::optional<int> ChoosePrinter() override;
  void Print(const PrintDocument& document, int copies) override;

 private:
  std::unique_ptr<QPrinter> printer_;
};

// Prints on paper, or puts the pages in the place of the printer's output file as a whole.
void PrintOn(QPrinter& printer, const PrintDocument& document, int copies);

// The pages of a document: the title large, blocks one below the other, and a page begun before a block that would not
// end on the present one. A block longer than a page is split between its lines. One whose first line goes from right
// to left stands at the right.
void PaintDocument(QPagedPaintDevice& device, const PrintDocument& document, int copies);

}  // namespace pawnfield
