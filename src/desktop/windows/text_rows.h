// Rows of texts of any alphabet: each goes the way of its own letters, and one that is cut shows itself whole in a tip.
#pragma once

class QTreeWidget;

namespace pawnfield {

void ShowTextsWhole(QTreeWidget& list);

}  // namespace pawnfield
