// How the console's board and the audience's screen are painted alike.
#pragma once

#include <map>

#include "desktop/painting/canvas.h"
#include "forms/board_labels.h"

namespace pawnfield {

using ItemStyles = std::map<Control*, ItemStyle>;

// The labels are signs, and the squares are round at their corners.
template <typename BoardForm>
ItemStyles BoardStyles(BoardForm& form) {
  ItemStyles styles;
  for (Image* label : ColumnLabels(form)) styles[label].IsSign = true;
  for (Image* label : RowLabels(form)) styles[label].IsSign = true;
  form.img.ForEach([&](Image& square) { styles[&square].Corner = 0.09; });
  return styles;
}

// The texts that a rule has fitted are drawn as told.
template <typename BoardForm>
ItemStyles FittedTextStyles(BoardForm& form) {
  ItemStyle fitted;
  fitted.ShrinkToFit = false;
  fitted.Align = Qt::AlignHCenter;
  ItemStyles styles;
  for (std::size_t i = 0; i < 5; ++i) styles[&form.lblQuestion[i]] = fitted;
  styles[&form.lblWinner] = fitted;
  return styles;
}

}  // namespace pawnfield
