// How the console's board and the audience's screen are painted alike.
#pragma once

#include <map>

#include "desktop/painting/canvas.h"
#include "forms/board_labels.h"
#include "forms/winner_panel.h"

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

// The texts that a rule has fitted are drawn as told. They are measured in a hair less room than they are drawn in and
// may then need a line less, so they stand in the middle of their label.
template <typename BoardForm>
ItemStyles FittedTextStyles(BoardForm& form) {
  ItemStyle fitted;
  fitted.ShrinkToFit = false;
  fitted.Align = Qt::AlignCenter;
  ItemStyles styles;
  for (std::size_t i = 0; i < 5; ++i) styles[&form.lblQuestion[i]] = fitted;
  return styles;
}

// The result is drawn in the players' colours; lblWinner holds the told text of it and isn't seen.
template <typename BoardForm>
ItemStyles ResultStyles(BoardForm& form) {
  ItemStyles styles;
  WinnerPanel& winner = form.Winner;
  styles[&form.picWinner].PaintsGround = styles[&form.picWinner].IsResult = true;
  ItemStyle rising;
  rising.Rises = true;
  rising.IsOutlined = true;
  styles[&winner.lblWinnerHead] = {};
  styles[&winner.lblWinnerWord] = rising;
  for (std::size_t i = 0; i < kPlayers; ++i) {
    ItemStyle& large = styles[&winner.lblWinnerName[i]] = rising;
    large.Sign = static_cast<int>(i) + 1;
    styles[&winner.picFinal[i]].Card = static_cast<int>(i) + 1;
    ItemStyle& name = styles[&winner.lblFinalName[i]];
    name.Align = Qt::AlignVCenter | Qt::AlignLeft;
    ItemStyle& score = styles[&winner.lblFinalScore[i]];
    score.Align = Qt::AlignVCenter | Qt::AlignRight;
    for (ItemStyle* text : {&name, &score}) text->OnCardOf = &winner.picFinal[i];
  }
  return styles;
}

}  // namespace pawnfield
