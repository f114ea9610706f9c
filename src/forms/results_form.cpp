#include "forms/results_form.h"

namespace pawnfield {

ResultsForm::ResultsForm() : Form("frmResults") {
  Form::Caption = "Results";
  lblShows.Caption = "Shows on record";
  lstShows.ColumnHeaders = {"Begun"};
  lblTotals.Caption = "Players";
  lstQuestions.ColumnHeaders = {"Time", "No.", "Question", "Answer", "Rang in", "Verdict", "Score after"};
  lstTotals.ColumnHeaders = {"Player", "Right", "Wrong", "Fastest", "Mean margin", "Score"};
  btnSaveTable.Caption = "Save as CSV...";
  btnSaveTable.ToolTipText = "A table for any spreadsheet";
  btnPrint.Caption = "Print...";
  btnClose.Caption = "Close";
}

}  // namespace pawnfield
