#include "presentation/text_fitting.h"

#include "data/color_sight.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kSmallestTried = 6;
constexpr int kFirstSizeConsole = 80;
constexpr int kFirstSizeAudience = 120;
constexpr double kWrapTolerance = 100;
constexpr double kWidthTolerance = 50;
constexpr int kQuestionThickness = -10;
constexpr double kQuestionMarginX = 0.038, kQuestionMarginY = 0.05;

bool Fits(const TextMeasurer& measurer, Font font, const std::string& text, const FitLimits& limits, int size) {
  font.Size = size;
  const TextSize measured = measurer.Measure(font, text, limits.WrapWidth);
  return measured.Height < limits.MaxHeight && measured.Width < limits.MaxWidth;
}

void SetFontSize(Label& label, int size) {
  Font font = label.Font;
  font.Size = size;
  label.Font = font;
}

double Margin(double length, double factor) { return static_cast<double>(RoundHalfEven(length * factor)); }

// The part of a box that a text may take.
struct Inside {
  double MarginX, MarginY, Width, Height;
};

Inside InsideOf(const Control& box, double acrossFactor, double downFactor) {
  const double x = Margin(box.Width, acrossFactor);
  const double y = Margin(box.Height, downFactor);
  return {x, y, box.Width - 2 * x, box.Height - 2 * y};
}

FitLimits LimitsOf(const Inside& inside, int firstSize) {
  return {firstSize, inside.Width - kWrapTolerance, inside.Width - kWidthTolerance, inside.Height - kWrapTolerance};
}

void FitIntoBox(Show& show, const std::string& text, Label& target, const Inside& inside, int firstSize, Color color) {
  const TextMeasurer& measurer = show.platform.text;
  const FitLimits limits = LimitsOf(inside, firstSize);
  const int size = FittingSize(measurer, target.Font, text, limits);
  target.ForeColor = color;
  SetFontSize(target, size);
  target.Caption = text;
  const double height = measurer.Measure(target.Font, text, limits.WrapWidth).Height;
  target.MoveTo(inside.MarginX, inside.MarginY + (inside.Height - height) / 2, inside.Width, height);
}

// The thickness grows with the letters. The step down at 50 is wanted.
int ThicknessForSize(int thickness, double fontSize) {
  if (fontSize < 40) return static_cast<int>(RoundHalfEven(thickness + fontSize));
  if (fontSize < 50) return static_cast<int>(RoundHalfEven(thickness + fontSize / 0.8));
  return static_cast<int>(RoundHalfEven(thickness + fontSize / 2));
}

// Black, or white where black wouldn't set the letters off.
Color EdgeFor(Color letters) {
  constexpr double kReadable = 4.5;
  return ContrastRatio(letters, kBlack) < kReadable ? kWhite : kBlack;
}

void PlaceCopies(ControlArray<Label, 5>& labels, int distance, Color edge) {
  const Label& text = labels[0];
  for (std::size_t i = 1; i < labels.Size(); ++i) {
    const int across = i % 2 == 1 ? -distance : distance;
    const int down = i < 3 ? -distance : distance;
    labels[i].Font = text.Font;
    labels[i].Caption = text.Caption;
    labels[i].ForeColor = edge;
    labels[i].MoveTo(text.Left + across, text.Top + down, text.Width, text.Height);
    labels[i].BringToFront();
    labels[i].Visible = true;
  }
}

}  // namespace

// A measurer scales linearly, so a text that fits at a size fits at every smaller one, and halving finds the very size
// that stepping down from the top finds. An empty text takes no room at any size.
int FittingSize(const TextMeasurer& measurer, const Font& font, const std::string& text, const FitLimits& limits) {
  if (text.empty() || Fits(measurer, font, text, limits, limits.FirstSize)) return limits.FirstSize;
  int fitting = kSmallestTried - 1;
  int tooLarge = limits.FirstSize;
  while (tooLarge - fitting > 1) {
    const int middle = (fitting + tooLarge) / 2;
    (Fits(measurer, font, text, limits, middle) ? fitting : tooLarge) = middle;
  }
  return fitting;
}

FitLimits AudienceQuestionLimits(const Show& show) {
  return LimitsOf(InsideOf(show.frmFSMain.picQuestion, kQuestionMarginX, kQuestionMarginY), kFirstSizeAudience);
}

void SetQuestion(Show& show, const std::string& text, ControlArray<Label, 5>& labels) {
  const bool onConsole = &labels[0] == &show.frmMain.lblQuestion[0];
  const Control& box = onConsole ? show.frmMain.picQuestion : show.frmFSMain.picQuestion;
  FitIntoBox(show, text, labels[0], InsideOf(box, kQuestionMarginX, kQuestionMarginY),
             onConsole ? kFirstSizeConsole : kFirstSizeAudience, kWhite);
  OutlineLabel(labels, OutlineMode::Outline, kQuestionThickness, "", nullptr);
}

void SetWinner(Show& show, const std::string& text, Label& label) {
  const bool onConsole = &label == &show.frmMain.lblWinner;
  const Control& box = onConsole ? show.frmMain.picWinner : show.frmFSMain.picWinner;
  FitIntoBox(show, text, label, InsideOf(box, 0.1, 0.1), onConsole ? kFirstSizeConsole : kFirstSizeAudience, kGreen);
}

void SetAnswer(Show& show, const std::string& text) {
  Label& answer = show.frmMain.lblAnswer;
  const FitLimits limits{kFirstSizeConsole, answer.Width - kWrapTolerance, answer.Width, answer.Height};
  SetFontSize(answer, FittingSize(show.platform.text, answer.Font, text, limits));
  answer.Caption = text;
}

void OutlineLabel(ControlArray<Label, 5>& labels, OutlineMode mode, int thickness, const std::string& caption,
                  const Control* container) {
  Label& text = labels[0];
  for (std::size_t i = 1; i < labels.Size(); ++i) labels[i].Visible = false;
  if (mode == OutlineMode::Clear) {
    text.Caption = "";
    return;
  }
  text.BackStyle = 0;
  if (!caption.empty()) text.Caption = caption;
  if (container != nullptr) text.Left = (container->Width - text.Width) / 2;
  text.Visible = true;
  if (mode == OutlineMode::Plain) return;
  PlaceCopies(labels, ThicknessForSize(thickness, text.Font->Size), EdgeFor(text.ForeColor));
  text.BringToFront();
}

void SetQuestionColor(ControlArray<Label, 5>& labels, Color color) {
  labels[0].ForeColor = color;
  for (std::size_t i = 1; i < labels.Size(); ++i) labels[i].ForeColor = EdgeFor(color);
}

}  // namespace pawnfield
