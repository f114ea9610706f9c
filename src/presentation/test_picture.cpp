#include "presentation/test_picture.h"

#include <string>

#include "forms/fs_main_form.h"
#include "presentation/monitors.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr const char* kLine = "The quick brown fox jumps over the lazy dog; 0123456789 done";
static_assert(std::char_traits<char>::length(kLine) == kTestLineLetters);
constexpr int kLargest = 60;

bool IsOneLine(const Show& show, const Font& font) {
  const TextMeasurer& measurer = show.platform.text;
  const double width = show.frmFSMain.lblTestLine.Width;
  return measurer.Measure(font, kLine, width).Height < 1.5 * measurer.Measure(font, "x", width).Height;
}

}  // namespace

int SmallestLineSize(const Show& show) {
  Font font = show.frmFSMain.lblTestLine.Font;
  int size = kLargest;
  for (font.Size = size; size > 1 && !IsOneLine(show, font); font.Size = size) --size;
  return size;
}

void ShowTestPicture(Show& show, int lineSize) {
  FSMainForm& form = show.frmFSMain;
  constexpr int kSecond = 2;
  const MonitorInfo monitor = MonitorRect(show, kSecond);
  form.lblTestName.Caption = monitor.Name.empty() ? "The audience's screen" : monitor.Name;
  form.lblTestSize.Caption = SizeText(monitor);
  Font font = form.lblTestLine.Font;
  font.Size = lineSize;
  form.lblTestLine.Font = font;
  form.lblTestLine.Caption = std::string(kLine);
  form.picTest.Visible = true;
}

void HideTestPicture(Show& show) { show.frmFSMain.picTest.Visible = false; }

}  // namespace pawnfield
