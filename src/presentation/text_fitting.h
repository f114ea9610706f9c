// Fits questions, answers and the winner's text into their boxes by a downward search for the size, and outlines
// labels.
#pragma once

#include <string>

#include "platform/controls.h"

namespace pawnfield {

class TextMeasurer;
struct Show;

struct FitLimits {
  int FirstSize = 80;
  double WrapWidth = 0;
  double MaxWidth = 0;   // The measured width must be under this,
  double MaxHeight = 0;  // and the measured height under this.
};

// The largest whole size from FirstSize down to 6 at which the text fits; 5 when none does. Equal to the plain downward
// search for every text, but quicker.
int FittingSize(const TextMeasurer& measurer, const Font& font, const std::string& text, const FitLimits& limits);

// What the audience's question panel gives a wording, before the band of a question takes its foot.
FitLimits AudienceQuestionLimits(const Show& show);

// Fits a question into the console's or the audience's lblQuestion array, in white, and outlines it.
void SetQuestion(Show& show, const std::string& text, ControlArray<Label, 5>& labels);
// Fits the winner's text into the console's or the audience's lblWinner, in green.
void SetWinner(Show& show, const std::string& text, Label& label);
// Fits the answer into lblAnswer, whose box does not move.
void SetAnswer(Show& show, const std::string& text);

enum class OutlineMode { Outline = 0, Plain = 1, Clear = 2 };
// Writes a question in that colour, with an edge that sets it off from any ground.
void SetQuestionColor(ControlArray<Label, 5>& labels, Color color);
// Outlines labels(0) with four copies, thickness in twips before the size is added.
void OutlineLabel(ControlArray<Label, 5>& labels, OutlineMode mode, int thickness, const std::string& caption,
                  const Control* container);

}  // namespace pawnfield
