// What the console's board and the audience's screen are painted from alike.
#pragma once

#include "desktop/painting/canvas.h"
#include "forms/board_labels.h"

namespace pawnfield {

// The labels, the typed square's picture and the squares.
template <typename BoardForm>
void AddBoard(Canvas& canvas, BoardForm& form) {
  ItemStyle sign;
  sign.IsSign = true;
  for (Image* label : ColumnLabels(form)) canvas.Add(*label, sign);
  for (Image* label : RowLabels(form)) canvas.Add(*label, sign);
  canvas.Add(form.imgDJEntry);
  ItemStyle rounded;
  rounded.Corner = 0.09;
  form.img.ForEach([&](Image& square) { canvas.Add(square, rounded); });
}

// The texts that a rule has fitted, which are drawn as told.
template <typename BoardForm>
void AddFittedTexts(Canvas& canvas, BoardForm& form) {
  ItemStyle fitted;
  fitted.ShrinkToFit = false;
  fitted.Align = Qt::AlignHCenter;
  for (std::size_t i = 0; i < 5; ++i) canvas.Add(form.lblQuestion[i], fitted);
  canvas.Add(form.lblWinner, fitted);
}

}  // namespace pawnfield
