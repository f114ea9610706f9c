// frmResults: the shows on record; of one the questions with who rang in, the verdict and the scores, and each player's
// totals; saved as a table and printed.
#pragma once

#include "platform/controls.h"

namespace pawnfield {

struct ResultsForm : Form {
  ResultsForm();

  Label lblShows{*this, "lblShows"};
  ListView lstShows{*this, "lstShows"};
  // What is shown, or why nothing is.
  Label lblShown{*this, "lblShown"};
  ListView lstQuestions{*this, "lstQuestions"};
  Label lblTotals{*this, "lblTotals"};
  ListView lstTotals{*this, "lstTotals"};
  Label lblResultsStatus{*this, "lblResultsStatus"};
  Button btnSaveTable{*this, "btnSaveTable"};
  Button btnPrint{*this, "btnPrint"};
  Button btnClose{*this, "btnClose"};
};

}  // namespace pawnfield
